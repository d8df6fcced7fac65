// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/LMAccessibility.h"
#include "Platform/X11/LMX11FrameSetter.h"
#include "Platform/X11/LMX11WindowReader.h"

#include <QHash>

class LMX11ApplicationIndex;
class LMX11WindowManager;

/// The windows of X clients. A window element's identifier is that of the client's window.
///
/// What a window is made of decides which stored window it may match, so nothing enters that
/// changes while a window lives: neither its states nor what the manager allows at the moment.
///
/// - Subrole: normal windows are "AXStandardWindow", dialogs "AXDialog", utility windows and
///   toolbars "AXFloatingWindow", normal windows kept above all others and out of task bars
///   "AXSystemFloatingWindow"; a window of none of the standard's types has "".
/// - Grow area: the client allows more than one size.
/// - Children: "AXCloseButton", "AXMinimizeButton" and "AXZoomButton" as far as the client lets
///   the title bar offer them, then WM_WINDOW_ROLE when it is a constant word.
/// - Document and toolbar button: X clients do not tell.
class LMX11Accessibility final : public LMAccessibility {
public:
    /// All must outlive it.
    LMX11Accessibility(LMX11Connection& connection, LMX11ApplicationIndex& index,
                       LMX11WindowManager& windowManager, LMX11NormalFrames& normalFrames);

    LMPlatformResult<LMElement> createApplication(qint64 processIdentifier) override;
    LMPlatformResult<LMAttributeValue> copyAttributeValue(const LMElement& element,
                                                          QLatin1String attribute) override;
    LMPlatformResult<int> attributeValueCount(const LMElement& element,
                                              QLatin1String attribute) override;
    LMPlatformResult<QList<LMElement>> copyAttributeValues(const LMElement& element,
                                                           QLatin1String attribute, int index,
                                                           int maxValues) override;
    LMPlatformResult<bool> isAttributeSettable(const LMElement& element,
                                               QLatin1String attribute) override;
    LMPlatformStatus setAttributeValue(const LMElement& element, QLatin1String attribute,
                                       const LMAttributeValue& value) override;
    void beginReading(const QList<LMElement>& windows) override;
    void endReading() override;
    void beginSetting(QLatin1String attribute, const QList<LMElementValue>& changes) override;
    void endSetting() override { endReading(); }

    /// What a reading tells of a window.
    struct Known {
        LMX11Window window;
        QRectF frame; ///< Global pixels.
        LMX11Coordinates coordinates;
        QStringList desktopNames;
    };
    /// From memory within a reading scope.
    LMPlatformResult<Known> readWindow(const LMElement& element);
    /// The window has been changed by somebody else.
    void forget(const LMElement& window);
    LMX11FrameSetter& frameSetter() { return m_setter; }

private:
    LMPlatformResult<LMAttributeValue> applicationValue(const LMElement& element,
                                                        QLatin1String attribute);
    LMPlatformResult<QList<LMElement>> elements(const LMElement& element, QLatin1String attribute);
    LMPlatformError absence();

    LMX11Connection& m_connection;
    LMX11ApplicationIndex& m_index;
    LMX11NormalFrames& m_normalFrames;
    LMX11WindowReader m_reader;
    LMX11FrameSetter m_setter;
    QHash<qint64, Known> m_known;           ///< By window, while reading or setting a batch.
    QHash<qint64, LMAttributeValue> m_done; ///< By window, what a batch has set it to.
    int m_readingDepth = 0;
};
