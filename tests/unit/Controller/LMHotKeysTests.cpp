// SPDX-License-Identifier: MIT
#include "Controller/LMHotKeyCenter.h"
#include "Controller/LMHotKeyDefaults.h"
#include "support/LMFakeDesktop.h"
#include "support/LMTestEnvironment.h"
#include "Utilities/LMUserDefaultsKeys.h"

namespace {

using namespace LMUserDefaultsKeys;
using State = LMHotKeyReport::State;

constexpr quint64 CommandOption = LMModifier::Command + LMModifier::Option;

LMShortcut shortcut(int keyCode, quint64 flags = CommandOption) {
    return LMShortcut::shortcutWithKeyCode(keyCode, flags).value();
}

class LMHotKeysTest : public testing::Test {
protected:
    void set(const QString& key, const LMShortcut& value) {
        test.userDefaults.setObject(key, value.data());
    }
    void type(const LMShortcut& keys) {
        desktop.hotKeys().press(keys);
        desktop.hotKeys().release(keys);
    }
    static LMHotKeyReport report(const LMHotKeyCenter& center, const QString& key) {
        for (const LMHotKeyReport& report : center.hotKeys()) {
            if (report.key == key)
                return report;
        }
        return {};
    }

    LMFakeDesktop desktop;
    LMTestEnvironment test{desktop};
};

TEST_F(LMHotKeysTest, OldHotKeysAreConvertedOrRemovedOrLeft) {
    EXPECT_EQ(LMHotKeyDefaults::convertedModifierFlags(~quint64(0)), 0x1e0000U);
    EXPECT_EQ(LMHotKeyDefaults::convertedModifierFlags(0x100), 0x100000U);
    EXPECT_EQ(LMHotKeyDefaults::convertedModifierFlags(0x200), 0x20000U);
    EXPECT_EQ(LMHotKeyDefaults::convertedModifierFlags(0x800), 0x80000U);
    EXPECT_EQ(LMHotKeyDefaults::convertedModifierFlags(0x1000), 0x40000U);
    EXPECT_EQ(LMHotKeyDefaults::convertedModifierFlags(0x400), 0U);

    const auto old = [](const QVariant& keyCode, const QVariant& modifierFlags) {
        return QVariantMap{{u"keyCode"_qs, keyCode}, {u"modifierFlags"_qs, modifierFlags}};
    };
    const QVariant same(u"same"_qs);
    const std::pair<QVariant, QVariant> rows[] = {
        // What is stored, what becomes of it: invalid when it is removed.
        {old(15, 0x100 + 0x800), shortcut(15).data()},
        {old(u"15"_qs, 2304.0), shortcut(15).data()},
        {old(122, 0), shortcut(122, 0).data()},
        {old(15, 0), QVariant()},
        {old(-1, 0x100), QVariant()},
        {old(1e300, 0x100), QVariant()},
        {old(15.5, 0x100), QVariant()},
        {old(u"R"_qs, 0x100), QVariant()},
        {old(15, QVariantList{1}), QVariant()},
        {QVariantMap{{u"keyCode"_qs, 15}}, same},
        {QVariantMap{{u"modifierFlags"_qs, 0x100}, {u"keyCode"_qs, QVariant()}}, same},
        {QVariantMap(), same},
        {shortcut(0).data(), same},
        {QByteArray("\0garbage", 8), same},
        {u"{\"keyCode\":"_qs, same},
        {QStringList{u"keyCode"_qs, u"15"_qs}, same},
        {true, same},
        {15, same},
    };
    qsizetype next = 0;
    for (const auto& [stored, expected] : rows) {
        for (const bool isReadFromFile : {false, true}) {
            const QString key = LMHotKeyDefaults::keys()[next++ % LMHotKeyDefaults::keys().size()];
            test.userDefaults.setObject(key, stored);
            LMUserDefaults fromFile(test.userDefaults.filePath(), test.logger);
            LMUserDefaults& defaults = isReadFromFile ? fromFile : test.userDefaults;
            const QVariant before = defaults.objectForKey(key);
            LMHotKeyDefaults::updateOldHotKeyDefaults(defaults);
            EXPECT_EQ(defaults.objectForKey(key), expected == same ? before : expected)
                << stored.typeName() << ' ' << before.toString().toStdString();
            defaults.removeObject(key);
            test.userDefaults.reload();
        }
    }
}

TEST_F(LMHotKeysTest, AHotKeyFollowsItsSettingAndActsWhenItsTestSaysSo) {
    QStringList done;
    bool allows = true;
    LMHotKeyCenter center(test.environment);
    auto context = std::make_unique<QObject>();
    const auto act = [&](const char* what) {
        return [&done, what] { done.append(QLatin1String(what)); };
    };
    set(StoreAllWindowsHotKey, shortcut(0));
    center.setUpHotKeys({{StoreAllWindowsHotKey, [&] { return allows; }, act("store")},
                         {RestoreAllWindowsHotKey, {}, act("restore")},
                         {ShowMenuHotKey, {}, act("menu"), LMHotKeyMoment::Released}},
                        context.get());
    EXPECT_EQ(report(center, StoreAllWindowsHotKey).state, State::Registered);
    EXPECT_EQ(report(center, RestoreAllWindowsHotKey).state, State::Empty);

    type(shortcut(0));
    allows = false;
    type(shortcut(0));
    set(RestoreAllWindowsHotKey, shortcut(1));
    set(StoreAllWindowsHotKey, shortcut(2));
    set(ShowMenuHotKey, shortcut(122, 0));
    allows = true;
    type(shortcut(0));
    type(shortcut(1));
    type(shortcut(2));
    desktop.hotKeys().press(shortcut(122, 0));
    EXPECT_EQ(done, (QStringList{u"store"_qs, u"restore"_qs, u"store"_qs}));
    desktop.hotKeys().release(shortcut(122, 0));
    EXPECT_EQ(done.last(), u"menu"_qs);

    test.userDefaults.setObject(RestoreAllWindowsHotKey, QByteArray("garbage"));
    EXPECT_EQ(report(center, RestoreAllWindowsHotKey).state, State::Empty);
    EXPECT_FALSE(report(center, RestoreAllWindowsHotKey).reason.isEmpty());
    test.userDefaults.removeObject(StoreAllWindowsHotKey);
    const qsizetype before = done.size();
    type(shortcut(1));
    type(shortcut(2));
    context.reset();
    type(shortcut(122, 0));
    EXPECT_EQ(done.size(), before);
}

TEST_F(LMHotKeysTest, WhatIsRefusedSaysWhyAndWorksAsSoonAsItCan) {
    desktop.hotKeys().setHeldByAnotherProgram({shortcut(0)});
    set(StoreAllWindowsHotKey, shortcut(0));
    set(RestoreAllWindowsHotKey, shortcut(1));
    set(ShowMenuHotKey, shortcut(1));
    {
        LMHotKeyCenter center(test.environment);
        center.setUpHotKeys({{StoreAllWindowsHotKey, {}, [] {}},
                             {RestoreAllWindowsHotKey, {}, [] {}},
                             {ShowMenuHotKey, {}, [] {}}},
                            &center);
        EXPECT_EQ(report(center, StoreAllWindowsHotKey).reason,
                  u"Another program is using Super+Alt+A."_qs);
        EXPECT_TRUE(test.hasLogged(u"Another program is using Super+Alt+A."_qs));
        EXPECT_EQ(report(center, ShowMenuHotKey).reason,
                  u"Super+Alt+S is in use for another hot key."_qs);
        desktop.hotKeys().setHeldByAnotherProgram({});
        desktop.hotKeys().changeKeyboard();
        EXPECT_EQ(report(center, StoreAllWindowsHotKey).state, State::Registered);
        test.userDefaults.removeObject(RestoreAllWindowsHotKey);
        EXPECT_EQ(report(center, ShowMenuHotKey).state, State::Registered);
        EXPECT_EQ(report(center, ShowMenuHotKey).reason, QString());
    }
    EXPECT_TRUE(desktop.hotKeys().holder(shortcut(0)).isNull());
}

TEST_F(LMHotKeysTest, AnActionThatRunsIsNotStartedAgain) {
    LMHotKeyCenter center(test.environment);
    set(StoreAllWindowsHotKey, shortcut(0));
    int runs = 0;
    center.registerShortcut(StoreAllWindowsHotKey, &center, [&] {
        ++runs;
        type(shortcut(0)); // As in the event loop of an alert.
    });
    type(shortcut(0));
    type(shortcut(0));
    EXPECT_EQ(runs, 2);
    // A handler may put another one in its place.
    center.registerShortcut(StoreAllWindowsHotKey, &center, [&, self = std::make_shared<int>(7)] {
        center.registerShortcut(StoreAllWindowsHotKey, &center, [] {});
        runs += *self;
    });
    type(shortcut(0));
    EXPECT_EQ(runs, 9);
}

} // namespace
