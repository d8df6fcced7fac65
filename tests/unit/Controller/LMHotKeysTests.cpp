// SPDX-License-Identifier: MIT
#include "Controller/LMHotKeyCenter.h"
#include "Controller/LMHotKeyDefaults.h"
#include "unit/DesktopTest.h"

namespace {

using namespace LMUserDefaultsKeys;
using State = LMHotKeyReport::State;

LMShortcut onKey(int code) {
    return LMShortcut::shortcutWithKeyCode(code, LMModifier::Command + LMModifier::Option).value();
}

QVariant old(const QVariant& keyCode, const QVariant& modifierFlags = 0x100 + 0x800) {
    return QVariantMap{{u"keyCode"_qs, keyCode}, {u"modifierFlags"_qs, modifierFlags}};
}

class LMHotKeysTest : public DesktopTest {
protected:
    void set(const QString& key, int code) { defaults.setObject(key, onKey(code).data()); }
    void type(int code) {
        desktop.hotKeys().press(onKey(code));
        desktop.hotKeys().release(onKey(code));
    }
    LMHotKeyReport report(const QString& key) {
        const QList<LMHotKeyReport> all = center.hotKeys();
        const auto found = std::ranges::find(all, key, &LMHotKeyReport::key);
        return found == all.end() ? LMHotKeyReport() : *found;
    }

    LMHotKeyCenter center{environment};
};

TEST_F(LMHotKeysTest, OldHotKeysAreConvertedOrRemovedOrLeft) {
    EXPECT_EQ(LMHotKeyDefaults::convertedModifierFlags(~quint64(0)), 0x1e0000U);
    EXPECT_EQ(LMHotKeyDefaults::convertedModifierFlags(0x200 + 0x400), 0x20000U);
    EXPECT_EQ(LMHotKeyDefaults::convertedModifierFlags(0x1000), 0x40000U);

    const QVariant converted(onKey(15).data()), removed, left(u"left"_qs);
    const std::pair<QVariant, QVariantList> rows[] = {
        {converted, {old(15), old(u"15"_qs, 2304.0)}},
        {removed, {old(15, 0), old(-1), old(1e300), old(15.5), old(u"R"_qs), old(15, u"x"_qs)}},
        {left,
         {old(QVariant()), old(15, QVariant()), QVariantMap(), converted, true, 15,
          QByteArray("\0garbage", 8), u"{\"keyCode\":"_qs, QStringList{u"15"_qs, u"0"_qs}}},
    };
    qsizetype next = 0;
    for (const auto& [expected, stored] : rows) {
        for (const QVariant& value : stored) {
            const QString key = LMHotKeyDefaults::keys()[next++ % LMHotKeyDefaults::keys().size()];
            defaults.setObject(key, value);
            // What is read from the file has other types than what was just set.
            LMUserDefaults fromFile(defaults.filePath(), test.logger);
            for (LMUserDefaults* each : {&defaults, &fromFile}) {
                const QVariant before = each->objectForKey(key);
                LMHotKeyDefaults::updateOldHotKeyDefaults(*each);
                EXPECT_EQ(each->objectForKey(key), expected == left ? before : expected)
                    << before.toString().toStdString();
            }
        }
    }
}

TEST_F(LMHotKeysTest, AHotKeyFollowsItsSettingAndActsWhenItsTestSaysSo) {
    QStringList done;
    bool allows = true;
    auto context = std::make_unique<QObject>();
    const auto act = [&](const QString& what) { return [&done, what] { done.append(what); }; };
    set(StoreAllWindowsHotKey, 0);
    center.setUpHotKeys({{StoreAllWindowsHotKey, [&] { return allows; }, act(u"store"_qs)},
                         {RestoreAllWindowsHotKey, {}, act(u"restore"_qs)},
                         {ShowMenuHotKey, {}, act(u"menu"_qs), LMHotKeyMoment::Released}},
                        context.get());
    EXPECT_EQ(report(StoreAllWindowsHotKey).state, State::Registered);
    EXPECT_EQ(report(RestoreAllWindowsHotKey).state, State::Empty);

    type(0);
    allows = false;
    type(0);
    allows = true;
    set(RestoreAllWindowsHotKey, 1);
    set(StoreAllWindowsHotKey, 2);
    set(ShowMenuHotKey, 3);
    for (const int code : {0, 1, 2})
        type(code);
    desktop.hotKeys().press(onKey(3));
    EXPECT_EQ(done, (QStringList{u"store"_qs, u"restore"_qs, u"store"_qs}));
    desktop.hotKeys().release(onKey(3));
    EXPECT_EQ(done.takeLast(), u"menu"_qs);

    defaults.setObject(RestoreAllWindowsHotKey, QByteArray("garbage"));
    EXPECT_EQ(report(RestoreAllWindowsHotKey).reason, u"The setting is no shortcut."_qs);
    defaults.removeObject(StoreAllWindowsHotKey);
    context.reset();
    for (const int code : {1, 2, 3})
        type(code);
    EXPECT_EQ(done.size(), 3);
}

TEST_F(LMHotKeysTest, WhatIsRefusedSaysWhyAndWorksAsSoonAsItCan) {
    desktop.hotKeys().setHeldByAnotherProgram({onKey(0)});
    for (const auto& [key, code] :
         {std::pair(StoreAllWindowsHotKey, 0), {RestoreAllWindowsHotKey, 1}, {ShowMenuHotKey, 1}}) {
        set(key, code);
        center.registerShortcut(key, &center, [] {});
    }
    EXPECT_EQ(report(StoreAllWindowsHotKey).reason, u"Another program is using Super+Alt+A."_qs);
    EXPECT_EQ(report(ShowMenuHotKey).reason, u"Super+Alt+S is in use for another hot key."_qs);
    desktop.hotKeys().setHeldByAnotherProgram({});
    desktop.hotKeys().changeKeyboard();
    EXPECT_EQ(report(StoreAllWindowsHotKey).state, State::Registered);
    defaults.removeObject(RestoreAllWindowsHotKey);
    EXPECT_EQ(report(ShowMenuHotKey).state, State::Registered);
    EXPECT_EQ(report(ShowMenuHotKey).reason, QString());
}

TEST_F(LMHotKeysTest, NothingFiresWhileSuspendedAndAllIsBackAfterwards) {
    QStringList fired, changed;
    const QObject observer; // The center tells of changes until its end.
    for (const QLatin1String key : {StoreAllWindowsHotKey, ShowMenuHotKey, LinkActiveWindowHotKey})
        center.registerShortcut(key, &test.notificationCenter, [&, key] { fired.append(key); });
    set(ShowMenuHotKey, 3);
    set(StoreAllWindowsHotKey, 3); // Later, and so refused, although it is first in the table.
    QObject::connect(&center, &LMHotKeyCenter::hotKeyChanged, &observer,
                     [&](const QString& key) { changed.append(key); });
    {
        const LMHotKeyCenter::Suspension outer(center), inner(center);
        type(3);
        EXPECT_EQ(desktop.hotKeys().holder(onKey(3)), QString());
        EXPECT_EQ(report(ShowMenuHotKey).state, State::Registered);
        EXPECT_EQ(changed, QStringList());
        set(LinkActiveWindowHotKey, 5);
        type(5);
    }
    EXPECT_EQ(fired, QStringList());
    type(3);
    type(5);
    EXPECT_EQ(fired, QStringList({ShowMenuHotKey, LinkActiveWindowHotKey}));
    EXPECT_EQ(report(StoreAllWindowsHotKey).state, State::Refused);
}

TEST_F(LMHotKeysTest, AnActionThatRunsIsNotStartedAgain) {
    set(StoreAllWindowsHotKey, 0);
    int runs = 0;
    center.registerShortcut(StoreAllWindowsHotKey, &center, [&, self = std::make_shared<int>(7)] {
        type(0);      // As in the event loop of an alert.
        if (runs > 0) // It may put another one in its own place.
            center.registerShortcut(StoreAllWindowsHotKey, &center, [] {});
        runs += *self;
    });
    for (int press = 0; press < 3; ++press)
        type(0);
    EXPECT_EQ(runs, 14);
}

} // namespace
