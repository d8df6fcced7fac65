// SPDX-License-Identifier: MIT
#pragma once

#include "Model/Store/LMManagedObject.h"
#include "Platform/LMScreens.h"

#include <QRectF>
#include <QString>
#include <QStringList>

#include <vector>

class LMWorkspace;

/// One display of a display configuration. All attributes are text.
class LMDisplay final : public LMManagedObject {
public:
    static QString entityName();
    static LMEntityDescription entityDescription();

    /// A new record of the screen (of no screen: all zero), inserted into the context.
    static LMDisplay* displayWithScreen(LMObjectContext& context, const LMScreen* screen);
    /// A new record for each attached screen.
    static std::vector<LMDisplay*> currentDisplays(LMObjectContext& context);
    /// The bounds' texts of the attached screens, without making records.
    static QStringList currentBounds(LMEnvironment& environment);

    /// "{{x, y}, {width, height}}", global display coordinates, y down.
    QString displayBounds() const { return m_displayBounds; }
    void setDisplayBounds(const QString& displayBounds);
    QString productName() const { return m_productName; }
    void setProductName(const QString& productName);
    /// Unsigned decimals.
    QString vendorNumber() const { return m_vendorNumber; }
    void setVendorNumber(const QString& vendorNumber);
    QString modelNumber() const { return m_modelNumber; }
    void setModelNumber(const QString& modelNumber);
    QString serialNumber() const { return m_serialNumber; }
    void setSerialNumber(const QString& serialNumber);

    LMWorkspace* workspace() const;

    /// The rectangles are equal; what monitor stands there plays no part.
    bool isEqualToDisplay(const LMDisplay& other) const;
    bool sizeIsEqualToDisplay(const LMDisplay& other) const;

private:
    QString m_displayBounds;
    QString m_productName;
    QString m_vendorNumber;
    QString m_modelNumber;
    QString m_serialNumber;
};

/// Whether two display configurations are the same: equal counts and, sorted by their bounds' text,
/// pairwise equal bounds.
bool LMDisplaysAreEqual(const std::vector<LMDisplay*>& a, const std::vector<LMDisplay*>& b);
/// The same for the bounds' texts alone, in any order.
bool LMDisplayBoundsAreEqual(QStringList a, QStringList b);
