// SPDX-License-Identifier: MIT
#include "contract/LMContractKeyboard.h"
#include "contract/LMContractTest.h"

namespace {

using Refusal = LMHotKeyRefusal;

LMShortcut shortcut(quint32 keysym, quint32 modifiers) {
    return LMShortcut::shortcutWithKeysym(keysym, modifiers).value();
}

const quint32 ControlOption = LMModifier::Control | LMModifier::Option;
const LMShortcut onY = shortcut('y', ControlOption);
const LMShortcut onZ = shortcut('z', ControlOption);
const LMShortcut onF9 = shortcut(0xffc6, LMModifier::Command | LMModifier::Shift);

} // namespace

class HotKeysContract : public LMContractTest {
protected:
    void SetUp() override {
        LMContractTest::SetUp();
        LMHotKeys& service = desktop().hotKeys();
        const auto note = [this](const QString& what) {
            return [this, what](const QString& identifier) { log.append(what + identifier); };
        };
        QObject::connect(&service, &LMHotKeys::hotKeyPressed, &service, note(u"+"_qs));
        QObject::connect(&service, &LMHotKeys::hotKeyReleased, &service, note(u"-"_qs));
        QObject::connect(&service, &LMHotKeys::hotKeyStateChanged, &service,
                         [this](const QString& identifier, const LMHotKeyStatus& status) {
                             log.append((status ? u"works "_qs : u"refused "_qs) + identifier);
                         });
        ASSERT_TRUE(service.isAvailable());
        if (backend->keyboard() == nullptr)
            GTEST_SKIP() << "nobody can type";
    }

    LMContractKeyboard& keyboard() { return *backend->keyboard(); }
    std::optional<Refusal> add(const QString& identifier, const LMShortcut& shortcut) {
        const auto status = desktop().hotKeys().registerHotKey(identifier, shortcut);
        return status ? std::nullopt : std::optional(status.error());
    }
    /// The server hears of it when it has done what came before.
    bool isFree(const LMShortcut& shortcut) {
        return LMWaitUntil([&] { return !keyboard().isTaken(shortcut); });
    }
    /// What is reported until the expected has been; the log starts anew.
    QStringList reportsUntil(const QStringList& expected) {
        LMWaitUntil([&] { return log.size() >= expected.size(); });
        return std::exchange(log, {});
    }

    QStringList log;
};
INSTANTIATE_TEST_SUITE_P(On, HotKeysContract, testing::ValuesIn(LMContractBackends()),
                         LMBackendName);

TEST_P(HotKeysContract, APressIsReportedOnceWhateverLocksAreOn) {
    ASSERT_EQ(add(u"a"_qs, onY), std::nullopt);
    ASSERT_EQ(add(u"b"_qs, onF9), std::nullopt);
    const QStringList a{u"+a"_qs, u"-a"_qs};
    const QStringList b{u"+b"_qs, u"-b"_qs};
    for (const bool capsLock : {false, true}) {
        for (const bool numLock : {false, true}) {
            keyboard().setLocks(capsLock, numLock);
            keyboard().press(onY);
            EXPECT_EQ(reportsUntil(a), a) << capsLock << numLock;
            keyboard().press(shortcut('y', ControlOption | LMModifier::Shift));
            keyboard().press(onF9);
            EXPECT_EQ(reportsUntil(b), b) << capsLock << numLock;
        }
    }
    keyboard().setLocks(false, false);
    keyboard().hold(onY);
    EXPECT_EQ(reportsUntil(a), a);

    desktop().hotKeys().unregisterHotKey(u"a"_qs);
    desktop().hotKeys().unregisterHotKey(u"unknown"_qs);
    EXPECT_TRUE(isFree(onY));
    keyboard().press(onY);
    keyboard().press(onF9);
    EXPECT_EQ(reportsUntil(b), b);
}

TEST_P(HotKeysContract, WhatAnotherProgramHoldsIsRefusedUntilItLetsGo) {
    keyboard().takeForAnotherProgram(onY);
    EXPECT_EQ(add(u"a"_qs, onY), Refusal::HeldByAnotherProgram);
    EXPECT_EQ(add(u"b"_qs, onF9), std::nullopt);
    keyboard().giveBack();
    EXPECT_TRUE(isFree(onY)) << "a refused hot key holds nothing";
    keyboard().setLayout(u"gb"_qs);
    EXPECT_EQ(reportsUntil({u"works a"_qs}), QStringList{u"works a"_qs});
    EXPECT_TRUE(keyboard().isTaken(onY));
    keyboard().press(onY);
    EXPECT_EQ(reportsUntil({u"+a"_qs, u"-a"_qs}).value(0), u"+a"_qs);
}

TEST_P(HotKeysContract, AShortcutBelongsToTheFirstUntilItMovesOn) {
    ASSERT_EQ(add(u"a"_qs, onY), std::nullopt);
    ASSERT_EQ(add(u"a"_qs, onY), std::nullopt);
    EXPECT_EQ(add(u"b"_qs, onY), Refusal::AlreadyInUse);
    EXPECT_EQ(add(u"a"_qs, onZ), std::nullopt);
    EXPECT_EQ(reportsUntil({u"works b"_qs}), QStringList{u"works b"_qs});
    EXPECT_EQ(add(u"a"_qs, onY), Refusal::AlreadyInUse);
    EXPECT_TRUE(isFree(onZ));
    keyboard().press(onY);
    EXPECT_EQ(reportsUntil({u"+b"_qs, u"-b"_qs}).value(0), u"+b"_qs);
    desktop().hotKeys().unregisterHotKey(u"b"_qs);
    EXPECT_EQ(reportsUntil({u"works a"_qs}), QStringList{u"works a"_qs});
}

TEST_P(HotKeysContract, AHotKeyStaysOnItsLetter) {
    ASSERT_EQ(add(u"a"_qs, onY), std::nullopt);
    for (const QString& layout : {u"de"_qs, u"us"_qs, u"de"_qs}) {
        keyboard().setLayout(layout);
        EXPECT_TRUE(LMWaitUntil([&] { return keyboard().isTaken(onY); }) && isFree(onZ));
        keyboard().press(onZ);
        keyboard().press(onY);
        EXPECT_EQ(reportsUntil({u"+a"_qs, u"-a"_qs}), QStringList({u"+a"_qs, u"-a"_qs}));
    }
}

TEST_P(HotKeysContract, WithoutItsServerNothingWorks) {
    ASSERT_EQ(add(u"a"_qs, onY), std::nullopt);
    backend->breakConnection();
    ASSERT_TRUE(LMWaitUntil([&] { return add(u"b"_qs, onZ) == Refusal::NotAvailable; }));
    desktop().hotKeys().unregisterHotKey(u"a"_qs);
    EXPECT_TRUE(isFree(onY));
}
