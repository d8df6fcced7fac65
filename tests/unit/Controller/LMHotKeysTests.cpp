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
            LMUserDefaults fromFile(defaults.filePath(), test.logger);
            const QVariant before = fromFile.objectForKey(key);
            LMHotKeyDefaults::updateOldHotKeyDefaults(fromFile);
            EXPECT_EQ(fromFile.objectForKey(key), expected == left ? before : expected)
                << before.toString().toStdString();
        }
    }
}

TEST_F(LMHotKeysTest, AHotKeyFollowsItsSettingAndActsWhenItsTestSaysSo) {
    QString done;
    bool allows = false;
    auto context = std::make_unique<QObject>();
    center.setUpHotKeys({{StoreAllWindowsHotKey, [&] { return allows; }, [&] { done += u'S'; }},
                         {ShowMenuHotKey, {}, [&] { done += u'M'; }, LMHotKeyMoment::Released}},
                        context.get());
    set(StoreAllWindowsHotKey, 0);
    set(ShowMenuHotKey, 3);
    type(0);
    allows = true;
    desktop.hotKeys().press(onKey(3));
    type(0);
    desktop.hotKeys().release(onKey(3));
    set(StoreAllWindowsHotKey, 2);
    type(0);
    type(2);
    EXPECT_EQ(done, u"SMS"_qs);

    defaults.setObject(StoreAllWindowsHotKey, QByteArray("garbage"));
    EXPECT_EQ(report(StoreAllWindowsHotKey).reason, u"The setting is no shortcut."_qs);
    type(2);
    context.reset();
    type(3);
    EXPECT_EQ(done, u"SMS"_qs);
}

TEST_F(LMHotKeysTest, WhatIsRefusedSaysWhyAndWorksAsSoonAsItCan) {
    QStringList fired;
    for (const QLatin1String key : {StoreAllWindowsHotKey, RestoreAllWindowsHotKey, ShowMenuHotKey})
        center.registerShortcut(key, &center, [&, key] { fired.append(key); });
    desktop.hotKeys().setHeldByAnotherProgram({onKey(0)});
    set(StoreAllWindowsHotKey, 0);
    set(ShowMenuHotKey, 1);
    set(RestoreAllWindowsHotKey, 1); // Later, and so refused, although it was registered first.
    {
        const LMHotKeyCenter::Suspension outer(center), inner(center);
        type(1);
        EXPECT_EQ(report(ShowMenuHotKey).state, State::Registered);
    }
    EXPECT_EQ(fired, QStringList());
    type(1);
    EXPECT_EQ(fired, QStringList(ShowMenuHotKey));
    EXPECT_EQ(report(StoreAllWindowsHotKey).reason, u"Another program is using Super+Alt+A."_qs);
    EXPECT_EQ(report(RestoreAllWindowsHotKey).reason,
              u"Super+Alt+S is in use for another hot key."_qs);
    desktop.hotKeys().setHeldByAnotherProgram({});
    desktop.hotKeys().changeKeyboard();
    EXPECT_EQ(report(StoreAllWindowsHotKey).state, State::Registered);
    defaults.removeObject(ShowMenuHotKey);
    EXPECT_EQ(report(RestoreAllWindowsHotKey).state, State::Registered);
    EXPECT_EQ(report(RestoreAllWindowsHotKey).reason, QString());
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
