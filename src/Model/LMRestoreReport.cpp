// SPDX-License-Identifier: MIT
#include "Model/LMRestoreReport.h"

#include "Model/LMApplication.h"
#include "Model/LMRestorePlan.h"
#include "Model/LMStateRules.h"
#include "Model/LMStoredWindow.h"
#include "Model/LMWindow.h"
#include "Model/LMWorkspace.h"
#include "Platform/LMDesktop.h"
#include "Platform/LMEnvironment.h"

namespace {

LMPlannedWindow plannedWindow(const LMWindow& window) {
    return {window.title(), window.frame(), std::nullopt, window.state()};
}

LMPlannedWindow plannedWindow(const LMWindowAssignment& assignment, const LMStateRules& rules) {
    LMPlannedWindow planned = plannedWindow(*assignment.window);
    const LMWindowMatch& match = assignment.match;
    if (!match.storedWindow)
        return planned;
    LMPlannedMove& move = planned.move.emplace();
    move.label = match.storedWindow->labelOrTitleIfNil();
    move.frame = match.storedWindow->frame();
    move.score = match.score;
    move.likeness = match.likeness;
    move.pattern = match.pattern;
    move.tieBreak = match.tieBreak;
    const auto stored = match.storedWindow->state();
    if (!stored || !planned.state)
        return planned;
    LMStateComparison comparison =
        LMCompareState(planned.state->window, planned.frame, stored->window, move.frame, rules);
    LMWindowState& wanted = comparison.wanted;
    wanted.desktopName = rules.desktopNames.value(wanted.desktop.value_or(-1));
    if (!wanted.isMaximized() && !wanted.isFullscreen)
        wanted.normalFrame.reset();
    else if (!comparison.isFrameRight)
        wanted.normalFrame = comparison.normalFrame;
    move.state = {wanted, stored->stackingPosition};
    move.notRestored = comparison.notRestored;
    return planned;
}

LMApplicationReport reportStored(LMApplication& application, const LMStateRules& rules) {
    LMApplicationReport report;
    report.bundleIdentifier = application.bundleIdentifier();
    report.name = application.name();
    report.isStored = true;
    report.isLaunched = application.isLaunched();
    const LMRestorePlan plan = application.restorePlan();
    for (const LMWindowAssignment& assignment : plan.assignments)
        report.windows.push_back(plannedWindow(assignment, rules));
    for (LMStoredWindow* storedWindow : plan.unmatchedStoredWindows)
        report.unusedStoredWindows.push_back(
            {storedWindow->labelOrTitleIfNil(), storedWindow->frame()});
    return report;
}

std::optional<LMApplicationReport> reportUnstored(LMObjectContext& context,
                                                  const LMRunningApplication& running) {
    LMApplicationReport report;
    report.bundleIdentifier = running.bundleIdentifier;
    report.name = running.localizedName;
    report.isLaunched = true;
    for (const LMWindow* window : LMWindow::windowsOfProcess(context, running.processIdentifier))
        report.windows.push_back(plannedWindow(*window));
    return report.windows.empty() ? std::nullopt : std::optional(report);
}

} // namespace

std::vector<LMApplicationReport> LMReportRestore(LMWorkspace& workspace,
                                                 const QString& bundleIdentifier) {
    const auto isAskedFor = [&](const QString& identifier) {
        return bundleIdentifier.isEmpty() || identifier == bundleIdentifier;
    };
    LMEnvironment& environment = workspace.environment();
    const LMStateRules rules = LMStateRules::inForce(environment);
    std::vector<LMApplicationReport> reports;
    for (LMApplication* application : workspace.applications().allObjects()) {
        if (isAskedFor(application->bundleIdentifier()))
            reports.push_back(reportStored(*application, rules));
    }
    const auto allRunning = environment.desktop.applications().runningApplications();
    for (const LMRunningApplication& running : allRunning) {
        if (!isAskedFor(running.bundleIdentifier) ||
            workspace.storesApplication(running.bundleIdentifier) ||
            !LMApplication::isHandled(environment, running))
            continue;
        if (const auto report = reportUnstored(workspace.managedObjectContext(), running))
            reports.push_back(*report);
    }
    return reports;
}
