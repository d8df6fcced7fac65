// SPDX-License-Identifier: MIT
#pragma once

#include "Controller/LMActivityReport.h"
#include "Controller/LMCommandFrame.h"
#include "Controller/LMCrashReporter.h"
#include "Controller/LMDBusService.h"
#include "Controller/LMFrontmostApplication.h"
#include "Controller/LMHotKeyCenter.h"
#include "Controller/LMPermissionCheck.h"
#include "Controller/LMRestoreCommands.h"
#include "Controller/LMRestoreEvents.h"
#include "Controller/LMScriptingSupport.h"
#include "Controller/LMStatusItemController.h"
#include "Controller/LMStatusMenu.h"
#include "Controller/LMStoreCommands.h"
#include "Controller/LMUpdateChecks.h"
#include "Controller/LMUserCommands.h"
#include "Controller/LMWindowCommands.h"
#include "Controller/LMWorkspaceList.h"

#include <QObject>

#include <memory>
#include <optional>

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
    LMHotKeyCenter& hotKeyCenter() { return m_hotKeyCenter; }
    LMRestoreEvents& restoreEvents() { return m_restoreEvents; }
    const LMCommandParts& commandParts() const { return m_parts; }

    /// Everything from waking up to serving. False when the process must end instead: because the
    /// stored windows cannot be had (launchFailure says why, the user was told), or because that
    /// was asked for meanwhile.
    bool finishLaunching();
    /// For people at a terminal; empty when nothing failed.
    const QString& launchFailure() const { return m_launchFailure; }

    /// Takes the icon away, cleans the store and saves it. Runs once, whoever asks first.
    void applicationWillTerminate();
    /// The part of it that touches no window, for when the X server is gone. Does nothing when the
    /// store could not be had.
    void cleanAndSave();

public Q_SLOTS:
    /// The session may end any moment: everything goes to disk. The process goes on.
    void commitData();
    /// Ends the process the way the menu does. A reason belongs to what went wrong.
    void quit(const QString& reason = {});

Q_SIGNALS:
    /// The process shall end: by command, by signal, or because the desktop is gone.
    void quitRequested(const QString& reason);

private:
    void awakeFromNib();
    void applicationWillFinishLaunching();
    void applicationDidFinishLaunching();
    void failLaunching(const QString& message, const QString& informativeText,
                       const QString& detail);
    void registerForNotifications();
    void setUpHotKeys();

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
    LMStatusItemController m_statusItem;
    LMRestoreEvents m_restoreEvents;
    LMUpdateChecks m_updateChecks;
    LMHotKeyCenter m_hotKeyCenter;
    LMScriptingSupport m_scriptingSupport;
    LMDBusService m_dbusService;
    std::optional<LMActivityFile> m_activityFile;
    std::unique_ptr<LMCrashReporter> m_crashReporter;
    QString m_launchFailure;
    bool m_hasStore = false;
    bool m_isQuitting = false;
};
