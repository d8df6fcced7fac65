// SPDX-License-Identifier: MIT
#include "Controller/LMApplicationDelegate.h"

#include "Controller/LMHotKeyDefaults.h"
#include "Controller/LMLauncherPrompt.h"
#include "Controller/LMRegistrationDefaults.h"
#include "Controller/LMUserInterface.h"
#include "Model/LMStoredWindowsStore.h"
#include "Platform/LMDesktop.h"
#include "Platform/LMEnvironment.h"
#include "Utilities/LMFolders.h"
#include "Utilities/LMFormat.h"
#include "Utilities/LMNotificationCenter.h"
#include "Utilities/LMUserDefaultsKeys.h"

#include <utility>

LMApplicationDelegate::LMApplicationDelegate(LMEnvironment& environment,
                                             LMStoredWindowsStore& store,
                                             LMUserInterface& userInterface)
    : m_environment(environment), m_store(store), m_permissionCheck(environment, userInterface),
      m_workspaceList(store, m_permissionCheck),
      m_frontmostApplication(environment), m_parts{environment,     store,
                                                   userInterface,   m_permissionCheck,
                                                   m_workspaceList, m_frontmostApplication},
      m_restoreCommands(m_parts), m_storeCommands(m_parts),
      m_windowCommands(m_parts, m_storeCommands),
      m_userCommands(m_parts, m_restoreCommands, m_storeCommands, m_windowCommands),
      m_statusItemMenu(m_parts, m_userCommands), m_statusItem(m_parts, m_statusItemMenu),
      m_restoreEvents(m_parts, m_restoreCommands), m_updateChecks(environment, userInterface),
      m_hotKeyCenter(environment),
      m_scriptingSupport(m_restoreCommands, m_storeCommands, m_frontmostApplication),
      m_dbusService(m_scriptingSupport, m_userCommands, m_statusItem, m_hotKeyCenter, m_parts) {
    connect(&m_dbusService, &LMDBusService::quitRequested, this, [this] { quit(); });
    connect(&m_userCommands, &LMUserCommands::quitRequested, this, [this] { quit(); });
    connect(&m_dbusService, &LMDBusService::disconnected, this,
            [this] { quit(LMLocalized("The session bus is gone.")); });
    connect(&environment.desktop, &LMDesktop::connectionLost, this, &LMApplicationDelegate::quit);
}

// --- launching ------------------------------------------------------------------------------

bool LMApplicationDelegate::finishLaunching() {
    m_activityFile.emplace(m_environment);
    awakeFromNib();
    if (m_launchFailure.isEmpty())
        applicationWillFinishLaunching();
    m_hasStore = m_launchFailure.isEmpty();
    if (m_hasStore)
        applicationDidFinishLaunching();
    return m_hasStore && !m_isQuitting;
}

void LMApplicationDelegate::awakeFromNib() {
    m_statusItem.setUpStatusItem();
    m_restoreEvents.recordDisplayConfiguration();
    if (const auto opened = m_store.open(); !opened)
        failLaunching(LMStoredWindowsStore::storeFailureMessageText(),
                      opened.error().informativeText(), opened.error().detail);
}

void LMApplicationDelegate::applicationWillFinishLaunching() {
    if (m_store.backupStoredWindowsIfNecessary() == LMBackupResult::NewerVersion)
        failLaunching(LMStoredWindowsStore::versionMismatchMessageText(),
                      LMStoredWindowsStore::versionMismatchInformativeText(), {});
}

void LMApplicationDelegate::failLaunching(const QString& message, const QString& informativeText,
                                          const QString& detail) {
    m_launchFailure = QStringList{detail, message, informativeText}.join(QLatin1Char('\n'));
    m_launchFailure = m_launchFailure.trimmed();
    if (!m_parts.userInterface.canShowWindows())
        return;
    m_parts.userInterface.activateIgnoringOtherApplications();
    // The text advises to remove the file; who sees that another session uses it will not.
    const QStringList texts =
        detail.isEmpty() ? QStringList{informativeText} : QStringList{informativeText, detail};
    m_parts.userInterface.runModal(
        {message, texts.join(QLatin1String("\n\n")), {LMStoredWindowsStore::quitButtonText()}});
}

// Logging was set up when the logger was made: what happens before must not get lost.
void LMApplicationDelegate::applicationDidFinishLaunching() {
    LMUserInterface& userInterface = m_parts.userInterface;
    LMRegisterDefaults(m_environment.userDefaults, m_environment.logger);
    LMHotKeyDefaults::updateOldHotKeyDefaults(m_environment.userDefaults);
    userInterface.activateIgnoringOtherApplications();
    LMOfferLauncher(m_environment, userInterface);
    userInterface.setUpPreferencesWindow(m_hotKeyCenter);
    m_updateChecks.checkAtLaunch();
    m_crashReporter = LMCrashReporter::install(m_environment.folders.logsDirectoryURL(),
                                               LMStoredWindowsStore::programVersion());
    registerForNotifications();
    setUpHotKeys();
    m_permissionCheck.checkAccessibilityEnabled();
}

void LMApplicationDelegate::registerForNotifications() {
    m_store.setReloadTablesHandler([this] { m_parts.userInterface.reloadTableViews(); });
    LMNotificationCenter& center = m_environment.notificationCenter;
    center.addObserver(LMNotification::SaveWindows, this, [this] { m_store.saveWindows(); });
    center.addObserver(LMNotification::CheckForUpdates, this,
                       [this] { m_updateChecks.checkForUpdates(); });
    center.addObserver(LMNotification::StatusItemVisibilityChanged, this,
                       [this] { m_statusItem.setUpStatusItem(); });
    connect(&m_dbusService, &LMDBusService::activated, this,
            [this] { m_userCommands.perform(LMMenuCommand::ShowStoredWindowsEditor); });
    m_restoreEvents.registerForNotifications();
}

// What opens a menu or the picker needs the keyboard, which is free when the key is let go.
void LMApplicationDelegate::setUpHotKeys() {
    namespace Keys = LMUserDefaultsKeys;
    using Command = LMMenuCommand;
    constexpr auto Pressed = LMHotKeyMoment::Pressed;
    constexpr auto Released = LMHotKeyMoment::Released;
    const auto row = [this](QLatin1String key, Command command, LMHotKeyMoment moment) {
        return LMHotKeyBinding{
            key, {}, [this, command] { m_userCommands.performIfAvailable(command); }, moment};
    };
    m_hotKeyCenter.setUpHotKeys(
        {row(Keys::RestoreAllWindowsHotKey, Command::RestoreAllWindows, Pressed),
         row(Keys::RestoreActiveApplicationWindowsHotKey, Command::RestoreActiveApplicationWindows,
             Pressed),
         row(Keys::StoreActiveApplicationWindowsHotKey, Command::StoreActiveApplicationWindows,
             Pressed),
         row(Keys::StoreActiveWindowHotKey, Command::StoreActiveWindow, Pressed),
         row(Keys::LinkActiveWindowHotKey, Command::LinkActiveWindow, Released),
         row(Keys::StoreAllWindowsHotKey, Command::StoreAllWindows, Pressed),
         {Keys::ShowMenuHotKey, {}, [this] { m_statusItem.displayMenuAtCursor(); }, Released}},
        this);
}

// --- ending ---------------------------------------------------------------------------------

void LMApplicationDelegate::commitData() {
    if (m_hasStore)
        m_store.saveWindows();
}

void LMApplicationDelegate::quit(const QString& reason) {
    m_isQuitting = true;
    Q_EMIT quitRequested(reason);
}

void LMApplicationDelegate::applicationWillTerminate() {
    m_statusItem.removeStatusItem();
    cleanAndSave();
}

void LMApplicationDelegate::cleanAndSave() {
    // The toolkit may leave in the middle of a command: half of what it stores is worse than what
    // was stored before.
    if (m_environment.activity.isBusy())
        return;
    // A store that could not be read must not be cleaned: all its pictures would count as unused.
    if (!std::exchange(m_hasStore, false))
        return;
    m_store.cleanWindows();
    m_store.saveWindows();
}
