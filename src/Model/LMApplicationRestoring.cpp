// SPDX-License-Identifier: MIT
#include "Model/LMApplication.h"

#include "Categories/LMSpaces.h"
#include "Model/LMApplicationActivation.h"
#include "Model/LMRestorePlan.h"
#include "Model/LMStateRestoration.h"
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

/// The frame a window is to be given; none when nothing of it is to be set.
std::optional<QRectF> frameToSet(const LMWindowAssignment& assignment,
                                 const LMStateRestoration* states) {
    const LMStoredWindow& storedWindow = *assignment.match.storedWindow;
    return states ? states->frameFor(*assignment.window, storedWindow) : storedWindow.frame();
}

void restoreFrame(LMApplication& application, LMWindow& window, const LMStoredWindow& storedWindow,
                  const QRectF& frame, bool positions) {
    LMEnvironment& environment = application.environment();
    const bool unhidden = positions && unhideForMove(application, window, frame);
    // These programs follow the first request only half way.
    const bool twice = environment.knownApplications.plays(LMKnownApplications::Role::SocialClient,
                                                           application.bundleIdentifier());
    for (int round = 0; round < (twice ? 2 : 1); ++round) {
        if (positions)
            window.restorePositionWithWindow(storedWindow, frame);
        else
            window.restoreSizeWithWindow(storedWindow, frame);
    }
    if (unhidden)
        LMWaitAndHide(environment, application.processIdentifier());
}

/// What a pass is going to set, for the back end to do at once. Nothing where windows may have to
/// be shown before they are moved.
QList<LMElementValue> plannedChanges(const LMRestorePlan& plan, bool positions,
                                     const LMStateRestoration* states, LMDesktop& desktop) {
    QList<LMElementValue> changes;
    if (positions && desktop.screens().screensHaveSeparateSpaces())
        return changes;
    for (const LMWindowAssignment& assignment : plan.assignments) {
        if (!assignment.match.storedWindow)
            continue;
        if (const auto frame = frameToSet(assignment, states))
            changes.append({assignment.window->element(), positions
                                                              ? LMAttributeValue(frame->topLeft())
                                                              : LMAttributeValue(frame->size())});
    }
    return changes;
}

void restoreAssignedWindows(LMApplication& application, const LMRestorePlan& plan, bool positions,
                            const LMStateRestoration* states) {
    const LMLogger& logger = application.environment().logger;
    LMDesktop& desktop = application.environment().desktop;
    const LMSettingScope scope(desktop.accessibility(),
                               positions ? LMAttribute::Position : LMAttribute::Size,
                               plannedChanges(plan, positions, states, desktop));
    for (const LMWindowAssignment& assignment : plan.assignments) {
        LMStoredWindow* storedWindow = assignment.match.storedWindow;
        if (!storedWindow)
            continue;
        if (logger.isDebugEnabled())
            logger.debug(QStringLiteral("\t\t\"%@\" MATCHED \"%@\""),
                         {storedWindow->labelOrTitleIfNil(), assignment.window->title()});
        if (const auto frame = frameToSet(assignment, states))
            restoreFrame(application, *assignment.window, *storedWindow, *frame, positions);
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
    LMStateRestoration states(environment());
    restoreWindows(states);
    states.finishStates();
    states.finishStackingOrder();
}

void LMApplication::restoreWindows(LMStateRestoration& states) {
    if (!isLaunched())
        return;
    restoreWindowPositions(&states);
    // Windows that change screen take a new size only after they have settled there.
    environment().clock.sleep(1s);
    restoreWindowSizes(&states);
}

void LMApplication::restoreWindowPositions(LMStateRestoration* states) {
    restoreWindowSizesOrPositions(true, states);
}

void LMApplication::restoreWindowSizes(LMStateRestoration* states) {
    restoreWindowSizesOrPositions(false, states);
}

void LMApplication::restoreWindowSizesOrPositions(bool positions, LMStateRestoration* states) {
    const std::optional<LMRunningApplication> running = runningApplication();
    if (!running)
        return;
    const bool storesFloating = storesFloatingWindows();
    if (storesFloating) {
        environment().logger.debug(QStringLiteral("%@ stores floating windows"),
                                   {m_bundleIdentifier});
        if (!LMSpacesInUse(environment())) {
            LMActivateAndWait(environment(), running->processIdentifier);
            if (states)
                states->noteFocusTaken();
        }
    }
    LMRestorePlan plan = restorePlan();
    if (states) {
        const LMMinimized minimized = storesFloating && running->isHidden
                                          ? LMMinimized::StaysMinimized
                                          : LMMinimized::MayBeShown;
        positions ? states->begin(plan, minimized) : states->reconsider(plan, minimized);
    }
    restoreAssignedWindows(*this, plan, positions, states);
    logUnmatchedWindows(environment().logger, plan);
    if (storesFloating && running->isHidden && !LMSpacesInUse(environment()))
        LMWaitAndHide(environment(), running->processIdentifier);
}
