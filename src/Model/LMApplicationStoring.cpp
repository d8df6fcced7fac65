// SPDX-License-Identifier: MIT
#include "Model/LMApplication.h"

#include "Categories/LMSpaces.h"
#include "Model/LMApplicationActivation.h"
#include "Model/LMScreenshots.h"
#include "Model/LMStoredWindow.h"
#include "Model/LMWindow.h"
#include "Model/LMWindowArrangement.h"
#include "Platform/LMDesktop.h"
#include "Platform/LMEnvironment.h"
#include "Platform/LMKnownApplications.h"
#include "Utilities/LMLogger.h"
#include "Utilities/LMUserDefaults.h"
#include "Utilities/LMUserDefaultsKeys.h"

namespace {

/// Browsers of this family keep such windows around without showing them.
bool isInvisibleHelper(const LMWindow& window) {
    const bool isUntitled = !window.title().isNull() && window.title().isEmpty();
    return isUntitled && window.children() && window.children()->isEmpty();
}

LMStoredWindow* storeWindow(LMApplication& application, LMWindow* window) {
    LMStoredWindow* storedWindow = LMStoredWindow::storedWindowWithWindow(window);
    if (storedWindow)
        application.addWindowsObject(storedWindow);
    return storedWindow;
}

/// Makes all windows readable: where windows of other spaces come within reach only of a hidden
/// application it is hidden, otherwise shown.
void showForStoring(LMEnvironment& environment, const LMRunningApplication& running) {
    if (LMSpacesInUse(environment))
        environment.desktop.applications().hide(running.processIdentifier);
    else
        LMActivateAndWait(environment, running.processIdentifier);
}

/// Puts the visibility back as it was when the application was looked up.
void putBackAfterStoring(LMEnvironment& environment, const LMRunningApplication& running) {
    LMApplications& applications = environment.desktop.applications();
    const bool spacesInUse = LMSpacesInUse(environment);
    if (spacesInUse && running.isHidden)
        applications.hide(running.processIdentifier);
    else if (spacesInUse)
        applications.unhide(running.processIdentifier);
    else if (running.isHidden)
        LMWaitAndHide(environment, running.processIdentifier);
}

void storeCurrentWindows(LMApplication& application, const LMWindowArrangement& arrangement) {
    const bool hasHelpers = application.environment().knownApplications.plays(
        LMKnownApplications::Role::ChromiumFamily, application.bundleIdentifier());
    const std::vector<LMWindow*> windows = application.currentWindows();
    application.attachScreenshotsToWindows(windows);
    for (LMWindow* window : windows) {
        arrangement.describe(*window);
        if (!hasHelpers || !isInvisibleHelper(*window))
            storeWindow(application, window);
    }
}

void attachScreenshot(LMWindow& window, const QList<LMWindowDescription>& descriptions) {
    const LMScreenshot screenshot =
        LMTakeScreenshot(window.environment(), descriptions, window.frame());
    if (screenshot.index >= 0)
        LMAttachScreenshot(screenshot.image, window);
}

/// Takes the window's record out of a stored window, which goes when nothing is left in it.
void unlinkWindow(LMApplication& application, LMStoredWindow& from, const LMWindow& window) {
    from.removeMatchingWindowsObject(from.identicalMatchingWindow(window));
    if (from.matchingWindows().isEmpty())
        application.removeWindowsObject(&from);
}

} // namespace

void LMApplication::storeWindows() {
    storeWindows(LMWindowArrangement(environment()));
}

void LMApplication::storeWindows(const LMWindowArrangement& arrangement) {
    const std::optional<LMRunningApplication> running = runningApplication();
    const LMLogger& logger = environment().logger;
    if (!running) {
        logger.debug(QStringLiteral("%@: Not Launched"), {m_bundleIdentifier});
        return;
    }
    showForStoring(environment(), *running);
    logger.debug(QStringLiteral("%@: "), {m_bundleIdentifier});
    storeCurrentWindows(*this, arrangement);
    putBackAfterStoring(environment(), *running);
    addDefaultTitleMatchPatterns();
}

void LMApplication::storeFloatingWindows() {
    storeFloatingWindows(LMWindowArrangement(environment()));
}

void LMApplication::storeFloatingWindows(const LMWindowArrangement& arrangement) {
    const std::optional<LMRunningApplication> running = runningApplication();
    if (!running)
        return;
    LMActivateAndWait(environment(), running->processIdentifier);
    const std::vector<LMWindow*> windows = currentWindows();
    attachScreenshotsToWindows(windows);
    for (LMWindow* window : windows) {
        arrangement.describe(*window);
        if (!identicalStoredWindow(*window))
            storeWindow(*this, window);
    }
}

void LMApplication::removeAllWindows() {
    removeWindows(windows().allObjects());
    setWindowsOrdering({});
}

void LMApplication::storeFocusedWindow(LMWindow* window) {
    if (!isLaunched()) {
        environment().logger.debug(QStringLiteral("%@: Not Launched"), {m_bundleIdentifier});
        return;
    }
    if (!window)
        return;
    if (environment().userDefaults.boolForKey(
            LMUserDefaultsKeys::CreateScreenshotsWhenStoringWindows))
        attachScreenshot(*window, currentCGWindowDescriptions());
    LMWindowArrangement(environment()).describe(*window);
    if (LMStoredWindow* replaced = identicalStoredWindow(*window))
        removeWindowsObject(replaced);
    if (LMStoredWindow* storedWindow = storeWindow(*this, window))
        prioritiseStoredWindow(*storedWindow);
}

void LMApplication::addMatchingWindow(LMWindow* window, LMStoredWindow* toStoredWindow) {
    LMStoredWindow* former = identicalStoredWindow(*window);
    if (former == toStoredWindow) {
        toStoredWindow->addMatchingWindow(window);
        return;
    }
    if (former)
        unlinkWindow(*this, *former, *window);
    // The pictures are found by the frame the window had when it was listed here.
    const QList<LMWindowDescription> descriptions = currentCGWindowDescriptions();
    toStoredWindow->addMatchingWindow(window);
    attachScreenshot(*window, descriptions);
    prioritiseStoredWindow(*toStoredWindow);
}
