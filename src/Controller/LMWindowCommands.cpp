// SPDX-License-Identifier: MIT
#include "Controller/LMWindowCommands.h"

#include "Controller/LMFrontmostApplication.h"
#include "Controller/LMStoreCommands.h"
#include "Controller/LMUserInterface.h"
#include "Controller/LMWorkspaceList.h"
#include "Model/LMStoredWindowsStore.h"
#include "Model/LMWindow.h"
#include "Model/LMWorkspace.h"

bool LMWindowCommands::canLinkActiveWindow() const {
    m_parts.frontmostApplication.updateFrontmostApplication();
    const auto& active = m_parts.frontmostApplication.frontmostApplication();
    const LMWorkspace* workspace = m_parts.workspaceList.currentWorkspace();
    return active && workspace && workspace->storesApplication(active->bundleIdentifier) &&
           m_storeCommands.canStoreActiveWindow();
}

LMCommandResult LMWindowCommands::linkActiveWindow() {
    LMUserInterface& userInterface = m_parts.userInterface;
    if (!userInterface.canShowWindows())
        return LMCommandResult::refused(LMRefusal::noWindows());
    if (auto refusal = LMRefusal::beforeCommand(m_parts))
        return *refusal;
    LMWorkspace* workspace = m_parts.workspaceList.currentWorkspaceAddingIfNecessary();
    if (!workspace)
        return LMCommandResult::refused(LMRefusal::noCurrentWorkspace());
    LMObjectContext& context = m_parts.store.managedObjectContext();
    const LMTransientScope transients(context); // The picker keeps what it needs of the record.
    LMWindow* window = LMWindow::focusedWindow(context);
    if (!window) {
        userInterface.closeStoredWindowPicker();
        return LMCommandResult::refused(LMRefusal::noFocusedWindow());
    }
    userInterface.showStoredWindowPicker(*workspace, *window);
    return LMCommandResult::done();
}

LMCommandResult LMWindowCommands::showStoredWindowsEditor() {
    if (!LMIsOccupied(m_parts))
        m_parts.userInterface.reloadTableViews();
    return show(&LMUserInterface::showStoredWindowsList);
}

LMCommandResult LMWindowCommands::showPreferencesWindow() {
    return show(&LMUserInterface::showPreferencesWindow);
}

LMCommandResult LMWindowCommands::showAboutPanel() {
    return show(&LMUserInterface::showAboutPanel);
}

LMCommandResult LMWindowCommands::show(void (LMUserInterface::*window)()) {
    if (!m_parts.userInterface.canShowWindows())
        return LMCommandResult::refused(LMRefusal::noWindows());
    if (auto refusal = LMRefusal::whileOccupied(m_parts))
        return *refusal;
    (m_parts.userInterface.*window)();
    return LMCommandResult::done();
}
