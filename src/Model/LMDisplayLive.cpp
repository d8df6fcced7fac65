// SPDX-License-Identifier: MIT
#include "Model/LMDisplay.h"

#include "Categories/LMScreenAdditions.h"
#include "Model/Store/LMObjectContext.h"
#include "Platform/LMDesktop.h"
#include "Platform/LMEnvironment.h"
#include "Utilities/LMRectangle.h"

#include <algorithm>

LMDisplay* LMDisplay::displayWithScreen(LMObjectContext& context, const LMScreen* screen) {
    const LMScreenAdditions additions(screen);
    auto* display = context.insertObject<LMDisplay>();
    display->setProductName(additions.CGDisplayProductName());
    display->setVendorNumber(additions.CGDisplayVendorNumber());
    display->setModelNumber(additions.CGDisplayModelNumber());
    display->setSerialNumber(additions.CGDisplaySerialNumber());
    display->setDisplayBounds(LMStringFromRect(additions.CGDisplayBounds()));
    return display;
}

std::vector<LMDisplay*> LMDisplay::currentDisplays(LMObjectContext& context) {
    std::vector<LMDisplay*> displays;
    const QList<LMScreen> screens = context.environment().desktop.screens().screens();
    for (const LMScreen& screen : screens)
        displays.push_back(displayWithScreen(context, &screen));
    return displays;
}

QStringList LMDisplay::currentBounds(LMEnvironment& environment) {
    QStringList bounds;
    const QList<LMScreen> screens = environment.desktop.screens().screens();
    for (const LMScreen& screen : screens)
        bounds.append(LMStringFromRect(LMScreenAdditions(&screen).CGDisplayBounds()));
    return bounds;
}

bool LMDisplay::isEqualToDisplay(const LMDisplay& other) const {
    return LMRectsEqual(LMRectFromString(m_displayBounds), LMRectFromString(other.m_displayBounds));
}

bool LMDisplay::sizeIsEqualToDisplay(const LMDisplay& other) const {
    return LMSizesEqual(LMRectFromString(m_displayBounds).size(),
                        LMRectFromString(other.m_displayBounds).size());
}

bool LMDisplaysAreEqual(const std::vector<LMDisplay*>& a, const std::vector<LMDisplay*>& b) {
    const auto boundsOf = [](const std::vector<LMDisplay*>& displays) {
        QStringList bounds;
        for (const LMDisplay* display : displays)
            bounds.append(display->displayBounds());
        return bounds;
    };
    return LMDisplayBoundsAreEqual(boundsOf(a), boundsOf(b));
}

bool LMDisplayBoundsAreEqual(QStringList a, QStringList b) {
    a.sort();
    b.sort();
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](const QString& left, const QString& right) {
                          return LMRectsEqual(LMRectFromString(left), LMRectFromString(right));
                      });
}
