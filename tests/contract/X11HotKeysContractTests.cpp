// SPDX-License-Identifier: MIT
#include "contract/LMContractTest.h"
#include "Platform/X11/LMX11Connection.h"
#include "Utilities/LMLogger.h"

#include <QThread>

#include <xcb/xcb_keysyms.h>

namespace {

using Refusal = LMHotKeyRefusal;

LMShortcut shortcut(quint32 keysym, quint32 modifiers) {
    return LMShortcut::shortcutWithKeysym(keysym, modifiers).value();
}

const quint32 ControlOption = LMModifier::Control | LMModifier::Option;
const LMShortcut onY = shortcut('y', ControlOption);
const LMShortcut onZ = shortcut('z', ControlOption);
const LMShortcut onF9 = shortcut(0xffc6, LMModifier::Command | LMModifier::Shift);

/// Caps Lock and Num Lock, on and off.
constexpr uint16_t lockCombinations[] = {0, 0x2, 0x10, 0x12};

/// As xdotool takes it.
QString keys(const LMShortcut& shortcut) {
    QString text = shortcut.description();
    const bool isLetter = text[text.size() - 2] == u'+';
    return isLetter ? text.chopped(1) + text.back().toLower() : text;
}

void press(const LMShortcut& shortcut) {
    LMRunTool(u"xdotool key "_qs + keys(shortcut));
}

void setLayout(const QString& layout) {
    LMRunTool(u"setxkbmap "_qs + layout);
}

} // namespace

/// Types with xdotool, and takes shortcuts as another program does.
class X11HotKeysContract : public LMContractTest {
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
    }
    void TearDown() override { setLayout(u"us"_qs); }

    std::optional<Refusal> add(const QString& identifier, const LMShortcut& shortcut) {
        const auto status = desktop().hotKeys().registerHotKey(identifier, shortcut);
        return status ? std::nullopt : std::optional(status.error());
    }
    /// What is reported until the expected has been; the log starts anew.
    QStringList reportsUntil(const QStringList& expected) {
        LMWaitUntil([&] { return log.size() >= expected.size(); });
        return std::exchange(log, {});
    }
    /// Of a letter with Control and Alt; false when somebody else has it.
    bool grab(const LMShortcut& shortcut, uint16_t locks) {
        xcb_connection_t* xcb = other->xcb();
        return !other->check(xcb_grab_key_checked(xcb, 0, other->root(), modifiers(locks),
                                                  codeOf(shortcut), XCB_GRAB_MODE_ASYNC,
                                                  XCB_GRAB_MODE_ASYNC));
    }
    void ungrab(const LMShortcut& shortcut, uint16_t locks) {
        xcb_ungrab_key(other->xcb(), codeOf(shortcut), other->root(), modifiers(locks));
        other->serverTime(); // The server has done it.
    }
    /// Whether the other program could not have it, with any lock key.
    bool isTaken(const LMShortcut& shortcut) {
        bool isTaken = false;
        for (const uint16_t locks : lockCombinations) {
            if (grab(shortcut, locks))
                ungrab(shortcut, locks);
            else
                isTaken = true;
        }
        return isTaken;
    }
    /// The server hears of it when it has done what came before.
    bool isFree(const LMShortcut& shortcut) {
        return LMWaitUntil([&] { return !isTaken(shortcut); });
    }

    QStringList log;
    LMLogger logger = LMLogger::withCallback([](auto&&...) {});
    QString reason;
    std::unique_ptr<LMX11Connection> other = LMX11Connection::open(QString(), logger, &reason);

private:
    static uint16_t modifiers(uint16_t locks) {
        return uint16_t(XCB_MOD_MASK_CONTROL | XCB_MOD_MASK_1 | locks);
    }
    xcb_keycode_t codeOf(const LMShortcut& shortcut) {
        xcb_key_symbols_t* symbols = xcb_key_symbols_alloc(other->xcb());
        const LMXcbReply<xcb_keycode_t> code(
            xcb_key_symbols_get_keycode(symbols, shortcut.keysym()));
        xcb_key_symbols_free(symbols);
        return *code;
    }
};
INSTANTIATE_TEST_SUITE_P(On, X11HotKeysContract, testing::Values(LMContractBackends().back()),
                         LMBackendName);

TEST_P(X11HotKeysContract, APressIsReportedOnceWhateverLocksAreOn) {
    ASSERT_EQ(add(u"a"_qs, onY), std::nullopt);
    ASSERT_EQ(add(u"b"_qs, onF9), std::nullopt);
    const QStringList a{u"+a"_qs, u"-a"_qs};
    const QStringList b{u"+b"_qs, u"-b"_qs};
    for (const char* lock : {"Caps_Lock", "Num_Lock", "Caps_Lock", "Num_Lock"}) {
        LMRunTool(u"xdotool key "_qs + QLatin1String(lock));
        press(onY);
        EXPECT_EQ(reportsUntil(a), a) << lock;
        press(shortcut('y', ControlOption | LMModifier::Shift));
        press(onF9);
        EXPECT_EQ(reportsUntil(b), b) << lock;
    }
    LMRunTool(u"xset r rate 50 100"_qs);
    LMRunTool(u"xdotool keydown "_qs + keys(onY));
    QThread::msleep(200); // The user's time: nobody but the desktop is told of repetitions.
    LMRunTool(u"xdotool keyup "_qs + keys(onY));
    EXPECT_EQ(reportsUntil(a), a);

    desktop().hotKeys().unregisterHotKey(u"a"_qs);
    desktop().hotKeys().unregisterHotKey(u"unknown"_qs);
    EXPECT_TRUE(isFree(onY));
    press(onY);
    press(onF9);
    EXPECT_EQ(reportsUntil(b), b);
}

TEST_P(X11HotKeysContract, WhatAnotherProgramHoldsIsRefusedUntilItLetsGo) {
    ASSERT_TRUE(grab(onY, 0)); // Without regard to lock keys, as careless programs do.
    EXPECT_EQ(add(u"a"_qs, onY), Refusal::HeldByAnotherProgram);
    EXPECT_EQ(add(u"b"_qs, onF9), std::nullopt);
    ungrab(onY, 0);
    EXPECT_TRUE(isFree(onY)) << "a refused hot key holds nothing";
    setLayout(u"gb"_qs);
    EXPECT_EQ(reportsUntil({u"works a"_qs}), QStringList{u"works a"_qs});
    EXPECT_TRUE(isTaken(onY));
    press(onY);
    EXPECT_EQ(reportsUntil({u"+a"_qs, u"-a"_qs}).value(0), u"+a"_qs);
}

TEST_P(X11HotKeysContract, AShortcutBelongsToTheFirstUntilItMovesOn) {
    ASSERT_EQ(add(u"a"_qs, onY), std::nullopt);
    ASSERT_EQ(add(u"a"_qs, onY), std::nullopt);
    EXPECT_EQ(add(u"b"_qs, onY), Refusal::AlreadyInUse);
    EXPECT_EQ(add(u"a"_qs, onZ), std::nullopt);
    EXPECT_EQ(reportsUntil({u"works b"_qs}), QStringList{u"works b"_qs});
    EXPECT_EQ(add(u"a"_qs, onY), Refusal::AlreadyInUse);
    EXPECT_TRUE(isFree(onZ));
    press(onY);
    EXPECT_EQ(reportsUntil({u"+b"_qs, u"-b"_qs}).value(0), u"+b"_qs);
    desktop().hotKeys().unregisterHotKey(u"b"_qs);
    EXPECT_EQ(reportsUntil({u"works a"_qs}), QStringList{u"works a"_qs});
}
