// SPDX-License-Identifier: MIT
#include "Model/LMWorkspace.h"

#include "Categories/LMAccessibilityException.h"
#include "Categories/LMSpaces.h"
#include "Categories/LMWorkspaceAdditions.h"
#include "Model/LMApplication.h"
#include "Model/LMProgress.h"
#include "Model/LMWindowArrangement.h"
#include "Model/Store/LMObjectContext.h"
#include "Platform/LMDesktop.h"
#include "Platform/LMEnvironment.h"
#include "Utilities/LMLogger.h"

#include <algorithm>

namespace {

void putApplicationsBack(LMEnvironment& environment, LMWorkspaceAdditions& additions) {
    if (!LMSpacesInUse(environment)) {
        additions.restoreHiddenApps();
        return;
    }
    additions.restoreUnhiddenApps();
    additions.restoreFinderHiddenStatus();
}

/// The record comes with a stored window for each window it was found by; they are read afresh now
/// that the application is shown.
void storeApplication(LMWorkspace& workspace, LMApplication& application,
                      const LMWindowArrangement& arrangement) {
    application.removeAllWindows();
    application.storeWindows(arrangement);
    if (!application.windows().isEmpty())
        workspace.addApplicationsObject(&application);
}

} // namespace

void LMWorkspace::storeWindowsWithProgressWindowController(LMProgress& progress) {
    environment().logger.debug(QStringLiteral("STORE WINDOWS"));
    removeAllWindows();
    const LMWindowArrangement arrangement(environment());
    LMWorkspaceAdditions additions(environment());
    showApplications(additions, arrangement);
    const std::vector<LMApplication*> running =
        LMApplication::currentApplications(managedObjectContext());
    progress.setMaxValue(static_cast<double>(running.size()));
    for (LMApplication* application : running) {
        if (!storesApplication(application->bundleIdentifier()))
            storeApplication(*this, *application, arrangement);
        progress.increment(this);
    }
    putApplicationsBack(environment(), additions);
    arrangement.putBack();
}

/// Makes the windows of all applications readable. Where there are several spaces, the file manager
/// is stored on the way, because it alone cannot stay hidden with the others.
void LMWorkspace::showApplications(LMWorkspaceAdditions& additions,
                                   const LMWindowArrangement& arrangement) {
    if (!LMSpacesInUse(environment())) {
        additions.storeAndUnhideApps();
        return;
    }
    additions.storeFinderHiddenStatus();
    additions.hideFinder();
    storeWindowsForApplication(environment().desktop.applications().fileManagerIdentifier(),
                               arrangement);
    additions.unhideFinder();
    additions.storeAndHideApps();
}

void LMWorkspace::storeWindowsForApplication(const QString& bundleIdentifier) {
    const LMWindowArrangement arrangement(environment());
    storeWindowsForApplication(bundleIdentifier, arrangement);
    arrangement.putBack();
}

void LMWorkspace::storeWindowsForApplication(const QString& bundleIdentifier,
                                             const LMWindowArrangement& arrangement) {
    removeWindowsForApplication(bundleIdentifier);
    try {
        storeRunningApplication(bundleIdentifier, arrangement);
    } catch (const LMAccessibilityException&) {
        // The workspace is left as far as it got.
    }
}

void LMWorkspace::storeRunningApplication(const QString& bundleIdentifier,
                                          const LMWindowArrangement& arrangement) {
    LMApplication* application =
        LMApplication::applicationWithBundleIdentifier(managedObjectContext(), bundleIdentifier);
    if (!application)
        return;
    application->removeAllWindows();
    if (LMSpacesInUse(environment()))
        environment().desktop.applications().hide(application->processIdentifier());
    application->storeWindows(arrangement);
    if (LMSpacesInUse(environment()))
        application->storeFloatingWindows(arrangement);
    if (!application->windows().isEmpty())
        addApplicationsObject(application);
}

void LMWorkspace::removeAllWindows() {
    for (LMApplication* application : applications().allObjects())
        removeApplicationsObject(application);
}

void LMWorkspace::removeWindowsForApplication(const QString& bundleIdentifier) {
    if (LMApplication* application = applicationForBundleIdentifier(bundleIdentifier))
        removeApplicationsObject(application);
}

LMApplication* LMWorkspace::applicationForBundleIdentifier(const QString& bundleIdentifier) const {
    const auto found =
        std::find_if(m_applications.begin(), m_applications.end(), [&](const auto* application) {
            return application->bundleIdentifier() == bundleIdentifier;
        });
    return found == m_applications.end() ? nullptr : *found;
}

bool LMWorkspace::storesApplication(const QString& bundleIdentifier) const {
    return applicationForBundleIdentifier(bundleIdentifier) != nullptr;
}
