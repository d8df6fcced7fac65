// SPDX-License-Identifier: MIT
#include "Model/LMApplication.h"

#include "Categories/LMSpaces.h"
#include "Model/LMApplicationActivation.h"
#include "Model/LMRestorePlan.h"
#include "Model/LMStoredWindow.h"
#include "Model/LMWindow.h"
#include "Platform/LMClock.h"
#include "Platform/LMDesktop.h"
#include "Platform/LMEnvironment.h"
#include "Platform/LMKnownApplications.h"
#include "Utilities/LMLogger.h"

using namespace std::chrono_literals;

namespace {

/// Shows a hidden application that would not survive the move. Answers whether it did.
bool unhideForMove(LMApplication& application, const LMWindow& window, const QRectF& frame) {
    if (!window.settingFrameMayTriggerAccessibilityBug(frame))
        return false;
    const std::optional<LMRunningApplication> running = application.runningApplication();
    if (!running || !running->isHidden)
        return false;
    LMEnvironment& environment = application.environment();
    environment.logger.debug(QStringLiteral("RESTORE MAY TRIGGER ACCESSIBILITY BUG. UNHIDING %@"),
                             {application.name()});
    environment.desktop.applications().unhide(running->processIdentifier);
    LMSleepActivationDelay(environment);
    return true;
}

void restoreWindow(LMApplication& application, LMWindow& window, LMStoredWindow& storedWindow,
                   bool positions) {
    LMEnvironment& environment = application.environment();
    if (environment.logger.isDebugEnabled())
        environment.logger.debug(QStringLiteral("\t\t\"%@\" MATCHED \"%@\""),
                                 {storedWindow.labelOrTitleIfNil(), window.title()});
    const bool unhidden = positions && unhideForMove(application, window, storedWindow.frame());
    // These programs follow the first request only half way.
    const bool twice = environment.knownApplications.plays(LMKnownApplications::Role::SocialClient,
                                                           application.bundleIdentifier());
    for (int round = 0; round < (twice ? 2 : 1); ++round) {
        if (positions)
            window.restorePositionWithWindow(storedWindow);
        else
            window.restoreSizeWithWindow(storedWindow);
    }
    if (unhidden)
        LMWaitAndHide(environment, application.processIdentifier());
}

/// What a pass is going to set, for the back end to do at once. Nothing where windows may have to
/// be shown before they are moved.
QList<LMElementValue> plannedChanges(const LMRestorePlan& plan, bool positions,
                                     LMDesktop& desktop) {
    QList<LMElementValue> changes;
    if (positions && desktop.screens().screensHaveSeparateSpaces())
        return changes;
    for (const LMWindowAssignment& assignment : plan.assignments) {
        if (!assignment.match.storedWindow)
            continue;
        const QRectF frame = assignment.match.storedWindow->frame();
        changes.append({assignment.window->element(), positions ? LMAttributeValue(frame.topLeft())
                                                                : LMAttributeValue(frame.size())});
    }
    return changes;
}

void restoreAssignedWindows(LMApplication& application, const LMRestorePlan& plan, bool positions) {
    LMDesktop& desktop = application.environment().desktop;
    const LMSettingScope scope(desktop.accessibility(),
                               positions ? LMAttribute::Position : LMAttribute::Size,
                               plannedChanges(plan, positions, desktop));
    for (const LMWindowAssignment& assignment : plan.assignments) {
        if (assignment.match.storedWindow)
            restoreWindow(application, *assignment.window, *assignment.match.storedWindow,
                          positions);
    }
}

void logUnmatchedWindows(const LMLogger& logger, const LMRestorePlan& plan) {
    if (!logger.isDebugEnabled())
        return;
    for (LMStoredWindow* storedWindow : plan.unmatchedStoredWindows)
        logger.debug(QStringLiteral("\t\t\"%@\" WAS UNMATCHED"),
                     {storedWindow->labelOrTitleIfNil()});
}

} // namespace

LMRestorePlan LMApplication::restorePlan() {
    return LMPlanRestore(currentWindows(), orderedWindows(), environment().regexCache);
}

void LMApplication::restoreWindows() {
    if (!isLaunched())
        return;
    restoreWindowPositions();
    // Windows that change screen take a new size only after they have settled there.
    environment().clock.sleep(1s);
    restoreWindowSizes();
}

void LMApplication::restoreWindowPositions() {
    restoreWindowSizesOrPositions(true);
}

void LMApplication::restoreWindowSizes() {
    restoreWindowSizesOrPositions(false);
}

void LMApplication::restoreWindowSizesOrPositions(bool positions) {
    const std::optional<LMRunningApplication> running = runningApplication();
    if (!running)
        return;
    const bool storesFloating = storesFloatingWindows();
    if (storesFloating) {
        environment().logger.debug(QStringLiteral("%@ stores floating windows"),
                                   {m_bundleIdentifier});
        if (!LMSpacesInUse(environment()))
            LMActivateAndWait(environment(), running->processIdentifier);
    }
    const LMRestorePlan plan = restorePlan();
    restoreAssignedWindows(*this, plan, positions);
    logUnmatchedWindows(environment().logger, plan);
    if (storesFloating && running->isHidden && !LMSpacesInUse(environment()))
        LMWaitAndHide(environment(), running->processIdentifier);
}
