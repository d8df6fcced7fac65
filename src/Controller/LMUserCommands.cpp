// SPDX-License-Identifier: MIT
#include "Controller/LMUserCommands.h"

#include "Controller/LMFrontmostApplication.h"
#include "Controller/LMRestoreCommands.h"
#include "Controller/LMStoreCommands.h"
#include "Controller/LMWindowCommands.h"
#include "Platform/LMEnvironment.h"
#include "Utilities/LMLogger.h"
#include "Utilities/LMNotificationCenter.h"

using Command = LMMenuCommand;

LMUserCommands::LMUserCommands(const LMCommandParts& parts, LMRestoreCommands& restoreCommands,
                               LMStoreCommands& storeCommands, LMWindowCommands& windowCommands)
    : m_parts(parts), m_restoreCommands(restoreCommands), m_storeCommands(storeCommands),
      m_windowCommands(windowCommands) {}

bool LMUserCommands::isAvailable(LMMenuCommand command) const {
    switch (command) {
    case Command::None:
        return false;
    case Command::RestoreAllWindows:
        return m_restoreCommands.canRestoreAllWindows();
    case Command::RestoreActiveApplicationWindows:
        return m_restoreCommands.canRestoreActiveApplicationWindows();
    case Command::StoreActiveApplicationWindows:
        return m_storeCommands.canStoreActiveApplicationWindows();
    case Command::StoreActiveWindow:
        return m_storeCommands.canStoreActiveWindow();
    case Command::LinkActiveWindow:
        return m_windowCommands.canLinkActiveWindow();
    default:
        return true;
    }
}

LMCommandResult LMUserCommands::perform(LMMenuCommand command) {
    LMCommandResult result = dispatch(command);
    if (!result.refusal.isEmpty())
        m_parts.environment.logger.info(QStringLiteral("%@"), {result.refusal});
    return result;
}

void LMUserCommands::performIfAvailable(LMMenuCommand command) {
    if (LMIsOccupied(m_parts))
        return;
    m_parts.frontmostApplication.updateFrontmostApplication();
    if (isAvailable(command))
        perform(command);
}

LMCommandResult LMUserCommands::dispatch(LMMenuCommand command) {
    switch (command) {
    case Command::RestoreAllWindows:
        return m_restoreCommands.restoreWindows(false);
    case Command::RestoreActiveApplicationWindows:
        return m_restoreCommands.restoreActiveApplicationWindows();
    case Command::StoreActiveApplicationWindows:
        return m_storeCommands.storeActiveApplicationWindows(false, true);
    case Command::StoreActiveWindow:
        return m_storeCommands.storeActiveWindow(false, true);
    case Command::StoreAllWindows:
        return m_storeCommands.storeAllWindows(false, true);
    case Command::LinkActiveWindow:
        return m_windowCommands.linkActiveWindow();
    case Command::ShowStoredWindowsEditor:
        return m_windowCommands.showStoredWindowsEditor();
    case Command::ShowPreferencesWindow:
        return m_windowCommands.showPreferencesWindow();
    case Command::ShowAboutPanel:
        return m_windowCommands.showAboutPanel();
    case Command::CheckForUpdates:
        m_parts.environment.notificationCenter.postNotification(LMNotification::CheckForUpdates);
        return LMCommandResult::done();
    case Command::Quit:
        Q_EMIT quitRequested();
        return LMCommandResult::done();
    case Command::None:
        break;
    }
    return LMCommandResult::refused(QString());
}
