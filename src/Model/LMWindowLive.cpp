// SPDX-License-Identifier: MIT
#include "Model/LMWindow.h"

#include "Categories/LMAccessibilityException.h"
#include "Categories/LMElementFunctions.h"
#include "Model/LMScreenshots.h"
#include "Model/Store/LMObjectContext.h"
#include "Platform/LMDesktop.h"
#include "Platform/LMEnvironment.h"
#include "Utilities/LMFolders.h"

#include <QFileInfo>

namespace {

/// A window that does not say whether it is modal is not.
bool isModal(LMAccessibility& accessibility, const LMElement& element) {
    try {
        return LMElementIsModal(accessibility, element);
    } catch (const LMAccessibilityException&) {
        return false;
    }
}

QString textOrEmpty(QString (*copyText)(LMAccessibility&, const LMElement&),
                    LMAccessibility& accessibility, const LMElement& element) {
    try {
        return copyText(accessibility, element);
    } catch (const LMAccessibilityException&) {
        return QStringLiteral("");
    }
}

/// The record of the window that the function names; none when it raises.
template <class CopyWindow>
LMWindow* recordOf(LMObjectContext& context, CopyWindow copyWindow) {
    try {
        const LMElement element = copyWindow();
        if (element.isNull())
            return nullptr;
        const LMReadingScope reading(context.environment().desktop.accessibility(), {element});
        return LMWindow::windowWithElement(context, element);
    } catch (const LMAccessibilityException&) {
        return nullptr;
    }
}

} // namespace

LMWindow* LMWindow::windowWithElement(LMObjectContext& context, const LMElement& element) {
    LMAccessibility& accessibility = context.environment().desktop.accessibility();
    if (isModal(accessibility, element))
        return nullptr;
    auto* window = context.insertObject<LMWindow>();
    window->setElement(element);
    if (window->readElement(accessibility) && !window->isDesktopWindow())
        return window;
    context.deleteObject(window);
    return nullptr;
}

bool LMWindow::readElement(LMAccessibility& accessibility) {
    setTitle(textOrEmpty(LMElementCopyTitle, accessibility, m_element));
    setSubrole(textOrEmpty(LMElementCopySubrole, accessibility, m_element));
    try {
        setFrameString(LMElementCopyFrameString(accessibility, m_element));
        setHasToolbarButton(LMElementHasToolbarButton(accessibility, m_element));
        setHasGrowArea(LMElementHasGrowArea(accessibility, m_element));
        setHasDocument(LMElementHasDocument(accessibility, m_element));
        setChildren(LMElementCopyChildRoles(accessibility, m_element));
    } catch (const LMAccessibilityException&) {
        return false;
    }
    setScreenshotFilename(QStringLiteral(""));
    if (const auto state = environment().desktop.windowStates().stateOfWindow(m_element))
        setStateString(LMStringFromState({*state, std::nullopt}));
    return true;
}

std::vector<LMWindow*> LMWindow::windowsOfProcess(LMObjectContext& context,
                                                  qint64 processIdentifier) {
    LMAccessibility& accessibility = context.environment().desktop.accessibility();
    std::vector<LMWindow*> windows;
    try {
        const QList<LMElement> elements = LMElementCopyWindows(accessibility, processIdentifier);
        const LMReadingScope reading(accessibility, elements);
        for (const LMElement& element : elements) {
            if (LMWindow* window = windowWithElement(context, element))
                windows.push_back(window);
        }
    } catch (const LMAccessibilityException&) {
        // An application that cannot be read has no windows.
    }
    return windows;
}

LMWindow* LMWindow::focusedWindow(LMObjectContext& context) {
    return recordOf(context, [&] { return LMElementCopyFocusedWindow(context.environment()); });
}

LMWindow* LMWindow::focusedWindowOfProcess(LMObjectContext& context, qint64 processIdentifier) {
    return recordOf(context, [&] {
        LMAccessibility& accessibility = context.environment().desktop.accessibility();
        const LMElement application = LMElementCreateApplication(accessibility, processIdentifier);
        return LMElementCopyFocusedWindow(accessibility, application);
    });
}

bool LMWindow::isDesktopWindow() const {
    const auto isEmpty = [](const QString& text) { return !text.isNull() && text.isEmpty(); };
    return !m_hasDocument && !m_hasGrowArea && !m_hasToolbarButton && isEmpty(m_subrole) &&
           isEmpty(m_title) && m_children && *m_children == QStringList{QStringLiteral("AXGroup")};
}

QString LMWindow::screenshotPath() const {
    // Only a name: a store file from elsewhere must not lead out of the folder.
    const QString name = QFileInfo(m_screenshotFilename).fileName();
    const QString folder = environment().folders.screenshotsDirectoryURL();
    return name.isEmpty() || folder.isNull() ? QString() : QString(folder + u'/' + name);
}

QImage LMWindow::screenshot() const {
    return LMLoadScreenshot(screenshotPath());
}
