// SPDX-License-Identifier: MIT
#include "Model/LMWorkspace.h"

#include "Categories/LMSpaces.h"
#include "Categories/LMWorkspaceAdditions.h"
#include "Model/LMAction.h"
#include "Model/LMApplication.h"
#include "Model/LMProgress.h"
#include "Model/LMStateRestoration.h"
#include "Platform/LMClock.h"
#include "Platform/LMDesktop.h"
#include "Platform/LMEnvironment.h"
#include "Utilities/LMLogger.h"

#include <algorithm>

using namespace std::chrono_literals;

namespace {

void restoreApplication(LMWorkspace& workspace, const QString& bundleIdentifier,
                        LMStateRestoration& states) {
    if (LMApplication* application = workspace.applicationForBundleIdentifier(bundleIdentifier))
        application->restoreWindows(states);
}

/// Where there are several spaces, restores the file manager alone and hides all others: windows of
/// hidden applications can be moved wherever they are.
void hideApplications(LMWorkspace& workspace, LMWorkspaceAdditions& additions,
                      LMStateRestoration& states) {
    LMEnvironment& environment = workspace.environment();
    additions.storeFinderHiddenStatus();
    additions.hideFinder();
    restoreApplication(workspace, environment.desktop.applications().fileManagerIdentifier(),
                       states);
    additions.unhideFinder();
    additions.storeAndHideApps();
    states.noteFocusTaken();
}

/// All positions before all sizes: a window takes its size only on the screen it belongs to.
void restoreInTwoPasses(LMWorkspace& workspace, LMProgress& progress, LMStateRestoration& states) {
    const std::vector<LMApplication*> applications = workspace.applications().allObjects();
    progress.setMaxValue(2.0 * static_cast<double>(applications.size()));
    for (LMApplication* application : applications) {
        application->restoreWindowPositions(&states);
        progress.increment(&workspace);
    }
    workspace.environment().clock.sleep(1s);
    for (LMApplication* application : applications) {
        application->restoreWindowSizes(&states);
        progress.increment(&workspace);
    }
}

} // namespace

void LMWorkspace::restoreWindowsWithProgressWindowController(LMProgress& progress,
                                                             bool displayChanged) {
    environment().logger.debug(QStringLiteral("RESTORE WINDOWS"));
    for (LMAction* action : filteredActions(displayChanged))
        action->run();
    LMWorkspaceAdditions additions(environment());
    LMStateRestoration states(environment());
    // What the user looks at comes first; it takes part in the common passes again.
    if (const auto active = additions.runningApplication())
        restoreApplication(*this, active->bundleIdentifier, states);
    states.finishStates();
    if (LMSpacesInUse(environment()))
        hideApplications(*this, additions, states);
    restoreInTwoPasses(*this, progress, states);
    if (LMSpacesInUse(environment())) {
        additions.restoreUnhiddenApps();
        additions.restoreFinderHiddenStatus();
    }
    // Not before hidden applications are shown again: to be hidden is to be minimised.
    states.finishStates();
    states.finishStackingOrder();
}

void LMWorkspace::restoreWindowsForApplication(const QString& bundleIdentifier) {
    if (LMApplication* application = applicationForBundleIdentifier(bundleIdentifier))
        application->restoreWindows();
}

std::vector<LMAction*> LMWorkspace::filteredActions(bool displayChanged) const {
    std::vector<LMAction*> result;
    std::copy_if(
        m_actions.begin(), m_actions.end(), std::back_inserter(result),
        [&](const LMAction* action) { return displayChanged || !action->runOnDisplayChange(); });
    return result;
}

std::vector<LMApplication*> LMWorkspace::applicationsWithFloatingWindows() const {
    std::vector<LMApplication*> result;
    std::copy_if(
        m_applications.begin(), m_applications.end(), std::back_inserter(result),
        [](const LMApplication* application) { return application->storesFloatingWindows(); });
    return result;
}
