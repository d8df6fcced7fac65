// SPDX-License-Identifier: MIT
#pragma once

#include "Controller/LMCommandFrame.h"
#include "Controller/LMDBusService.h"
#include "Controller/LMFrontmostApplication.h"
#include "Controller/LMPermissionCheck.h"
#include "Controller/LMRestoreCommands.h"
#include "Controller/LMScriptingSupport.h"
#include "Controller/LMStatusMenu.h"
#include "Controller/LMStoreCommands.h"
#include "Controller/LMUserCommands.h"
#include "Controller/LMWindowCommands.h"
#include "Controller/LMWorkspaceList.h"

#include <QObject>

class LMStoredWindowsStore;

/// Owns what lives for the whole run and wires it together; the work is done by the parts.
///
/// The environment, the store and the user interface belong to whoever makes the delegate and
/// outlive it.
class LMApplicationDelegate : public QObject {
    Q_OBJECT
public:
    LMApplicationDelegate(LMEnvironment& environment, LMStoredWindowsStore& store,
                          LMUserInterface& userInterface);

    LMDBusService& dbusService() { return m_dbusService; }
    LMScriptingSupport& scriptingSupport() { return m_scriptingSupport; }
    LMUserCommands& userCommands() { return m_userCommands; }
    LMStatusMenu& statusItemMenu() { return m_statusItemMenu; }
    const LMCommandParts& commandParts() const { return m_parts; }

    /// From here on the process serves: notifications are observed, the permission is checked.
    void applicationDidFinishLaunching();
    /// Cleans the store and saves it. Runs once, whoever asks first.
    void applicationWillTerminate();

Q_SIGNALS:
    /// The process shall end: by command, by signal, or because the desktop is gone.
    void quitRequested(const QString& reason);

private:
    void registerForNotifications();

    LMEnvironment& m_environment;
    LMStoredWindowsStore& m_store;
    LMPermissionCheck m_permissionCheck;
    LMWorkspaceList m_workspaceList;
    LMFrontmostApplication m_frontmostApplication;
    LMCommandParts m_parts;
    LMRestoreCommands m_restoreCommands;
    LMStoreCommands m_storeCommands;
    LMWindowCommands m_windowCommands;
    LMUserCommands m_userCommands;
    LMStatusMenu m_statusItemMenu;
    LMScriptingSupport m_scriptingSupport;
    LMDBusService m_dbusService;
    bool m_hasTerminated = false;
};
