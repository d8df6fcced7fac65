// SPDX-License-Identifier: MIT
#include "unit/Files.h"
#include "unit/UserInterface/UserInterfaceTest.h"
#include "UserInterface/LMGeneralPreferencesViewController.h"
#include "UserInterface/LMHotKeysPreferencesViewController.h"
#include "UserInterface/LMPreferencesWindowController.h"
#include "UserInterface/LMShortcutRecorder.h"

#include <QCheckBox>
#include <QDir>
#include <QDoubleSpinBox>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QTabWidget>
#include <QToolButton>

namespace {

constexpr quint32 Control = LMModifier::Control, Shift = LMModifier::Shift,
                  Option = LMModifier::Option;
constexpr quint32 ControlKey = 0xffe3, EscapeKey = 0xff1b, TabKey = 0xff09, BackspaceKey = 0xff08,
                  F9 = 0xffc6;

LMShortcut shortcut(quint32 keysym, quint32 flags = 0) {
    return LMShortcut::shortcutWithKeysym(keysym, flags).value();
}

} // namespace

class Preferences : public UserInterfaceTest {
protected:
    void SetUp() override {
        defaults.registerDefaults({{Keys::RestoreWindowsAsApplicationsLaunch, true},
                                   {Keys::ApplicationLaunchRestoreDelay, 0.5}});
        auto items = std::make_unique<LMLoginItemsController>(environment, u"/bin/rook"_s,
                                                              QStringList{test.path(u"home"_s)});
        for (const QLatin1String key :
             {Keys::RestoreAllWindowsHotKey, Keys::StoreAllWindowsHotKey, Keys::ShowMenuHotKey})
            center.registerShortcut(key, &application, [this, key] { fired.append(key); });
        LMPreferencesWindowController::Panes panes;
        panes.push_back(
            std::make_unique<LMGeneralPreferencesViewController>(environment, std::move(items)));
        panes.push_back(std::make_unique<LMHotKeysPreferencesViewController>(environment, center));
        preferences = std::make_unique<LMPreferencesWindowController>(std::move(panes),
                                                                      u"Preferences"_s, desktop);
        for (const auto notification :
             {LMNotification::StatusItemVisibilityChanged, LMNotification::CheckForUpdates})
            test.notificationCenter.addObserver(notification, &application,
                                                [=, this] { posted.append(notification); });
    }

    template <class Control>
    Control& find(const QString& name) {
        return *preferences->window()->findChild<Control*>(name);
    }
    QCheckBox& box(const QString& name) { return find<QCheckBox>(name); }
    LMShortcutRecorder& recorder(const QString& key) { return find<LMShortcutRecorder>(key); }
    QString message(const QString& key) {
        const auto& label = find<QLabel>(key + u"Message"_s);
        return label.isHidden() ? QString() : label.text();
    }
    static QPushButton& button(LMShortcutRecorder& recorder) {
        return *recorder.findChild<QPushButton*>();
    }
    /// On the fake keyboard a key has its keysym for a scan code.
    static void press(LMShortcutRecorder& recorder, quint32 keysym, quint32 flags = 0,
                      bool isReleased = true) {
        for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
            const int key = keysym == TabKey         ? Qt::Key_Tab
                            : keysym == BackspaceKey ? Qt::Key_Backspace
                                                     : Qt::Key_unknown;
            QKeyEvent event(type, key, Qt::NoModifier, keysym, 0, flags);
            if (type == QEvent::KeyPress || isReleased)
                QCoreApplication::sendEvent(&button(recorder), &event);
        }
    }
    std::optional<LMShortcut> stored(const QString& key) {
        return LMShortcut::fromData(defaults.dataForKey(key));
    }

    LMHotKeyCenter center{environment};
    std::unique_ptr<LMPreferencesWindowController> preferences;
    QStringList fired, posted;
};

TEST_F(Preferences, ControlsAreTiedToTheirKeysBothWays) {
    preferences->showWindow();
    const std::pair<QString, QLatin1String> rows[] = {
        {u"restoreOnDisplayChangeCheckbox"_s, Keys::RestoreWindowsAutomatically},
        {u"restoreOnLaunchCheckbox"_s, Keys::RestoreWindowsAsApplicationsLaunch},
        {u"restoreStatesCheckbox"_s, Keys::RestoreWindowStates},
        {u"restoreDesktopsCheckbox"_s, Keys::RestoreVirtualDesktops},
        {u"restoreStackingOrderCheckbox"_s, Keys::RestoreStackingOrder},
        {u"screenshotsCheckbox"_s, Keys::CreateScreenshotsWhenStoringWindows},
        {u"automaticUpdatesCheckbox"_s, Keys::SUEnableAutomaticChecks},
    };
    for (const auto& [name, key] : rows) {
        for (int i = 0; i < 2; ++i) {
            const bool before = defaults.boolForKey(key);
            EXPECT_EQ(box(name).isChecked(), before) << key.data();
            box(name).click();
            EXPECT_EQ(defaults.boolForKey(key), !before) << key.data();
        }
        // Another program writes the file.
        LMUserDefaults(defaults.filePath(), test.logger).setObject(key, false);
        defaults.reload();
        EXPECT_FALSE(box(name).isChecked()) << key.data();
    }
    EXPECT_EQ(posted, QStringList(LMNotification::CheckForUpdates)) << "only when it is turned on";
    auto& delay = find<QDoubleSpinBox>(u"launchDelaySpinBox"_s);
    EXPECT_FALSE(delay.isEnabled());
    box(u"restoreOnLaunchCheckbox"_s).click();
    EXPECT_TRUE(delay.isEnabled());
    delay.stepUp();
    EXPECT_EQ(defaults.doubleForKey(Keys::ApplicationLaunchRestoreDelay), 0.6);
    defaults.setObject(Keys::ApplicationLaunchRestoreDelay, 1000);
    EXPECT_EQ(delay.value(), 60);
    EXPECT_EQ(defaults.doubleForKey(Keys::ApplicationLaunchRestoreDelay), 1000);
}

TEST_F(Preferences, TheIconCannotBeHiddenWithoutTheHotKey) {
    // The settings file is edited while the window is closed.
    LMUserDefaults(defaults.filePath(), test.logger).setObject(Keys::DisableStatusBarItem, true);
    defaults.reload();
    EXPECT_FALSE(defaults.boolForKey(Keys::DisableStatusBarItem));
    defaults.setObject(Keys::ShowMenuHotKey, u"no shortcut"_s);
    preferences->showWindow();
    auto& hidden = box(u"hideMenuIconCheckbox"_s);
    EXPECT_FALSE(hidden.isEnabled());
    defaults.setObject(Keys::ShowMenuHotKey, shortcut('m', Control | Option).data());
    EXPECT_EQ(
        find<QLabel>(u"hotKeySubscriptTextField"_s).text(),
        u"With the menu icon disabled, Rook’s menu can be displayed by pressing Ctrl+Alt+M"_s);
    posted.clear();
    hidden.click();
    EXPECT_TRUE(defaults.boolForKey(Keys::DisableStatusBarItem));
    defaults.removeObject(Keys::ShowMenuHotKey);
    EXPECT_FALSE(hidden.isEnabled() || hidden.isChecked());
    EXPECT_FALSE(defaults.hasObject(Keys::DisableStatusBarItem));
    EXPECT_EQ(posted.size(), 2) << "the icon comes back";
}

TEST_F(Preferences, WarningsAreResetAllAtOnce) {
    preferences->showWindow();
    auto& reset = find<QPushButton>(u"resetWarningsButton"_s);
    for (const QLatin1String key :
         {Keys::moveToApplicationsFolderAlertSuppress, Keys::SuppressStoreActiveApplicationAlert,
          Keys::SuppressStoreActiveWindowAlert, Keys::SuppressLinkActiveWindowAlert,
          Keys::SuppressStoreAllAlert, Keys::SuppressStoreActiveApplicationSuccess,
          Keys::SuppressStoreActiveWindowSuccess, Keys::SuppressStoreAllSuccess}) {
        EXPECT_FALSE(reset.isEnabled());
        defaults.setObject(key, true);
        reset.click();
        EXPECT_FALSE(defaults.hasObject(key)) << key.data();
    }
}

TEST_F(Preferences, StartAtLoginShowsTheLoginItemsNotTheSetting) {
    defaults.setObject(Keys::StartRookAtLogin, true);
    QDir().mkpath(test.path(u"home"_s));
    LMWriteFile(test.path(u"home/autostart"_s)); // In the way of the folder.
    preferences->showWindow();
    for (int clicks = 0; clicks < 2; ++clicks) {
        EXPECT_FALSE(box(u"startAtLoginCheckbox"_s).isChecked());
        box(u"startAtLoginCheckbox"_s).click();
    }
    EXPECT_TRUE(QApplication::activeModalWidget());
}

TEST_F(Preferences, WhatIsTypedBecomesTheShortcut) {
    preferences->showWindow();
    find<QTabWidget>({}).setCurrentIndex(1);
    const QString key = Keys::StoreAllWindowsHotKey;
    LMShortcutRecorder& subject = recorder(key);
    const QString nothing = u"Record Shortcut"_s, hold = u"Hold Ctrl, Alt or Super"_s;
    // Whether what is typed is taken, whether more is awaited, and what is shown.
    const std::tuple<quint32, quint32, bool, bool, QString> rows[] = {
        {'r', Control | Option, true, false, u"Ctrl+Alt+R"_s},
        {'2', Control | Shift, true, false, u"Ctrl+Shift+2"_s},
        {F9, 0, true, false, u"F9"_s},
        {'r', 0, false, true, hold},
        {'r', Shift, false, true, hold},
        {0xfe51, Control, false, true, u"Not with this key"_s}, // A dead key.
        {EscapeKey, 0, false, false, nothing},
        {EscapeKey, Option, true, false, u"Alt+Escape"_s},
        {TabKey, Shift, false, false, nothing},
        {ControlKey, Option, false, true, u"Ctrl+Alt+…"_s}, // Held, not let go.
    };
    for (const auto& [keysym, flags, isTaken, staysRecording, text] : rows) {
        defaults.removeObject(key);
        subject.startRecording();
        press(subject, keysym, flags, !staysRecording);
        EXPECT_EQ(stored(key), isTaken ? std::optional(shortcut(keysym, flags)) : std::nullopt);
        EXPECT_EQ(subject.isRecording(), staysRecording) << keysym;
        EXPECT_EQ(subject.text(), text);
        subject.stopRecording();
    }
    for (const bool isRecording : {true, false}) {
        defaults.setObject(key, shortcut(F9).data());
        if (isRecording)
            subject.startRecording();
        press(subject, BackspaceKey);
        EXPECT_FALSE(defaults.hasObject(key)) << isRecording;
    }
    subject.startRecording();
    press(subject, ControlKey);
    EXPECT_EQ(subject.text(), u"Type Shortcut…"_s) << "nothing is held any more";
    find<QTabWidget>({}).setCurrentIndex(0);
    EXPECT_FALSE(subject.isRecording()) << "the pane has disappeared";
}

TEST_F(Preferences, ARecordedHotKeyWorksAtOnceAndConflictsAreNamed) {
    preferences->showWindow();
    find<QTabWidget>({}).setCurrentIndex(1);
    const QString first = Keys::RestoreAllWindowsHotKey, second = Keys::StoreAllWindowsHotKey;
    const LMShortcut onR = shortcut('r', Control), onS = shortcut('s', Control);
    for (const QString& key : {first, second}) {
        recorder(key).startRecording();
        desktop.hotKeys().press(onR);
        EXPECT_EQ(fired, QStringList()) << "none fires while one is recorded";
        press(recorder(key), 'r', Control);
    }
    EXPECT_EQ(message(first), QString());
    EXPECT_EQ(message(second), u"“Restore All Windows” is using Ctrl+R."_s);
    EXPECT_EQ(button(recorder(second)).accessibleDescription(), message(second));
    desktop.hotKeys().press(onR);
    recorder(first).findChild<QToolButton*>()->click();
    EXPECT_EQ(message(second), QString());
    desktop.hotKeys().press(onR);
    EXPECT_EQ(fired, QStringList({first, second}));

    desktop.hotKeys().setHeldByAnotherProgram({onS});
    recorder(second).startRecording();
    press(recorder(second), 's', Control);
    EXPECT_EQ(message(second), u"Another program is using Ctrl+S."_s);
    // Recording ends with the window, and a window that is gone holds no hot key back.
    recorder(first).startRecording();
    preferences->window()->close();
    EXPECT_FALSE(recorder(first).isRecording());
    recorder(first).startRecording();
    preferences.reset();
    defaults.setObject(second, onR.data());
    desktop.hotKeys().press(onR);
    EXPECT_EQ(fired, QStringList({first, second, second}));
}
