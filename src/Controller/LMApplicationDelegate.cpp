// SPDX-License-Identifier: MIT
#include "Controller/LMApplicationDelegate.h"

#include "Controller/LMUserInterface.h"
#include "Model/LMStoredWindowsStore.h"
#include "Platform/LMDesktop.h"
#include "Platform/LMEnvironment.h"
#include "Utilities/LMFormat.h"
#include "Utilities/LMNotificationCenter.h"

LMApplicationDelegate::LMApplicationDelegate(LMEnvironment& environment,
                                             LMStoredWindowsStore& store,
                                             LMUserInterface& userInterface)
    : m_environment(environment), m_store(store), m_permissionCheck(environment),
      m_workspaceList(store, m_permissionCheck),
      m_frontmostApplication(environment), m_parts{environment,     store,
                                                   userInterface,   m_permissionCheck,
                                                   m_workspaceList, m_frontmostApplication},
      m_restoreCommands(m_parts), m_storeCommands(m_parts),
      m_windowCommands(m_parts, m_storeCommands),
      m_userCommands(m_parts, m_restoreCommands, m_storeCommands, m_windowCommands),
      m_statusItemMenu(m_parts, m_userCommands),
      m_scriptingSupport(m_restoreCommands, m_storeCommands, m_frontmostApplication),
      m_dbusService(m_scriptingSupport, m_parts) {}

void LMApplicationDelegate::applicationDidFinishLaunching() {
    registerForNotifications();
    m_permissionCheck.checkAccessibilityEnabled();
}

void LMApplicationDelegate::registerForNotifications() {
    m_store.setReloadTablesHandler([this] { m_parts.userInterface.reloadTableViews(); });
    m_environment.notificationCenter.addObserver(LMNotification::SaveWindows, this,
                                                 [this] { m_store.saveWindows(); });
    connect(&m_dbusService, &LMDBusService::quitRequested, this,
            [this] { Q_EMIT quitRequested(QString()); });
    connect(&m_userCommands, &LMUserCommands::quitRequested, this,
            [this] { Q_EMIT quitRequested(QString()); });
    connect(&m_dbusService, &LMDBusService::disconnected, this,
            [this] { Q_EMIT quitRequested(LMLocalized("The session bus is gone.")); });
    connect(&m_environment.desktop, &LMDesktop::connectionLost, this,
            &LMApplicationDelegate::quitRequested);
}

void LMApplicationDelegate::applicationWillTerminate() {
    if (m_hasTerminated)
        return;
    m_hasTerminated = true;
    m_store.cleanWindows();
    m_store.saveWindows();
}
