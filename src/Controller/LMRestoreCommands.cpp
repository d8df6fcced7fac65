// SPDX-License-Identifier: MIT
#include "Controller/LMRestoreCommands.h"

#include "Controller/LMFrontmostApplication.h"
#include "Controller/LMUserInterface.h"
#include "Controller/LMWorkspaceList.h"
#include "Model/LMApplication.h"
#include "Model/LMWorkspace.h"
#include "Platform/LMDesktop.h"
#include "Platform/LMEnvironment.h"
#include "Utilities/LMFormat.h"

namespace {

/// A desktop that went away on the way has moved no more windows.
LMCommandResult finish(LMCommandFrame& frame, const LMCommandParts& parts) {
    const LMPermission permission = parts.environment.desktop.checkPermission();
    if (!permission.isTrusted)
        return LMCommandResult::refused(permission.missing.join(QLatin1Char(' ')));
    return frame.finish();
}

} // namespace

bool LMRestoreCommands::canRestoreAllWindows() const {
    const LMWorkspace* workspace = m_parts.workspaceList.currentWorkspace();
    return workspace && !workspace->applications().empty();
}

bool LMRestoreCommands::canRestoreActiveApplicationWindows() const {
    const auto& active = m_parts.frontmostApplication.frontmostApplication();
    const LMWorkspace* workspace = m_parts.workspaceList.currentWorkspace();
    return active && workspace && workspace->storesApplication(active->bundleIdentifier);
}

LMCommandResult LMRestoreCommands::restoreWindows(bool displayChanged) {
    if (auto refusal = LMRefusal::beforeCommand(m_parts))
        return *refusal;
    const QString label = LMLocalized("Restoring Windows…");
    LMCommandFrame frame(m_parts, label);
    LMWorkspace* workspace = m_parts.workspaceList.currentWorkspace();
    if (!workspace)
        return LMCommandResult::refused(LMRefusal::noCurrentWorkspace());
    {
        LMProgressScope scope(m_parts.userInterface, label, false);
        workspace->restoreWindowsWithProgressWindowController(scope.progress(), displayChanged);
    }
    return finish(frame, m_parts);
}

LMCommandResult LMRestoreCommands::restoreActiveApplicationWindows() {
    if (auto refusal = LMRefusal::beforeCommand(m_parts))
        return *refusal;
    if (!m_parts.frontmostApplication.updateFrontmostApplication())
        return LMCommandResult::refused(LMRefusal::noActiveApplication());
    const LMRunningApplication active = *m_parts.frontmostApplication.frontmostApplication();
    return restoreApplication(active.bundleIdentifier, active.localizedName);
}

LMCommandResult LMRestoreCommands::restoreApplicationWindows(const QString& bundleIdentifier) {
    if (auto refusal = LMRefusal::beforeCommand(m_parts))
        return *refusal;
    const LMWorkspace* workspace = m_parts.workspaceList.currentWorkspace();
    const LMApplication* application =
        workspace ? workspace->applicationForBundleIdentifier(bundleIdentifier) : nullptr;
    return restoreApplication(bundleIdentifier,
                              application ? application->name() : bundleIdentifier);
}

LMCommandResult LMRestoreCommands::restoreApplication(const QString& bundleIdentifier,
                                                      const QString& name) {
    const QString label = LMFormat(LMLocalized("Restoring Windows for %@…"), {name});
    LMCommandFrame frame(m_parts, label);
    LMWorkspace* workspace = m_parts.workspaceList.currentWorkspace();
    if (!workspace)
        return LMCommandResult::refused(LMRefusal::noCurrentWorkspace());
    if (!workspace->storesApplication(bundleIdentifier))
        return LMCommandResult::refused(LMRefusal::notStored(name));
    {
        LMProgressScope scope(m_parts.userInterface, label, true);
        workspace->restoreWindowsForApplication(bundleIdentifier);
    }
    return finish(frame, m_parts);
}
