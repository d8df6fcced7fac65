// SPDX-License-Identifier: MIT
#include "Model/LMWorkspace.h"

#include "Categories/LMSpaces.h"
#include "Categories/LMWorkspaceAdditions.h"
#include "Model/LMAction.h"
#include "Model/LMApplication.h"
#include "Model/LMProgress.h"
#include "Platform/LMClock.h"
#include "Platform/LMDesktop.h"
#include "Platform/LMEnvironment.h"
#include "Utilities/LMLogger.h"

#include <algorithm>

using namespace std::chrono_literals;

namespace {

/// Where there are several spaces, restores the file manager alone and hides all others: windows of
/// hidden applications can be moved wherever they are.
void hideApplications(LMWorkspace& workspace, LMWorkspaceAdditions& additions) {
    LMEnvironment& environment = workspace.environment();
    additions.storeFinderHiddenStatus();
    additions.hideFinder();
    workspace.restoreWindowsForApplication(
        environment.desktop.applications().fileManagerIdentifier());
    additions.unhideFinder();
    additions.storeAndHideApps();
}

/// All positions before all sizes: a window takes its size only on the screen it belongs to.
void restoreInTwoPasses(LMWorkspace& workspace, LMProgress& progress) {
    const std::vector<LMApplication*> applications = workspace.applications().allObjects();
    progress.setMaxValue(2.0 * static_cast<double>(applications.size()));
    for (LMApplication* application : applications) {
        application->restoreWindowPositions();
        progress.increment(&workspace);
    }
    workspace.environment().clock.sleep(1s);
    for (LMApplication* application : applications) {
        application->restoreWindowSizes();
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
    // What the user looks at comes first; it takes part in the common passes again.
    if (const auto active = additions.runningApplication())
        restoreWindowsForApplication(active->bundleIdentifier);
    if (LMSpacesInUse(environment()))
        hideApplications(*this, additions);
    restoreInTwoPasses(*this, progress);
    if (LMSpacesInUse(environment())) {
        additions.restoreUnhiddenApps();
        additions.restoreFinderHiddenStatus();
    }
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
