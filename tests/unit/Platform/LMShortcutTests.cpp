// SPDX-License-Identifier: MIT
#include "Platform/LMShortcut.h"

#include "support/LMPrinting.h"
#include "Utilities/LMBinaryRecord.h"

#include <gtest/gtest.h>

#include <random>

namespace {

constexpr quint64 Control = LMModifier::Control;

TEST(LMShortcutTest, KeysHaveOneCodeANameAndAnArchive) {
    const std::tuple<int, quint64, int, QString> rows[] = {
        {15, LMModifier::Command + LMModifier::Option, 15, u"Super+Alt+R"_qs},
        {0, 0x1e0000, 0, u"Super+Ctrl+Alt+Shift+A"_qs},
        {15, Control | 0xffffffff00210001, 15, u"Ctrl+R"_qs}, // Other bits are dropped.
        {122, 0, 122, u"F1"_qs},
        {0xffca, 0, 105, u"F13"_qs},
        {0xffd2, LMModifier::Shift, 0xffd2, u"Shift+F21"_qs},
        {0x1008ff14, 0, 0x1008ff14, u"Play"_qs},
        {89, Control, 89, u"Ctrl+Keypad 7"_qs},
        {0x010000fc, Control, 0xfc, u"Ctrl+Ü"_qs},
        {0x01000052, Control, 15, u"Ctrl+R"_qs},
        {0x01000023, Control, 0x01000023, u"Ctrl+#"_qs},
        {0x6cb, Control, 0x6cb, u"Ctrl+К"_qs},
        {0x100200b, Control, 0x100200b, u"Ctrl+Key 0x100200B"_qs}, // A space without width.
    };
    for (const auto& [code, flags, canonicalCode, description] : rows) {
        const auto shortcut = LMShortcut::shortcutWithKeyCode(code, flags);
        ASSERT_TRUE(shortcut) << code;
        EXPECT_EQ(shortcut->keyCode(), canonicalCode);
        EXPECT_EQ(shortcut->description(), description);
        EXPECT_EQ(LMShortcut::fromData(shortcut->data()), shortcut) << code;
        EXPECT_EQ(LMShortcut::shortcutWithKeysym(shortcut->keysym(), flags), shortcut);
    }
}

TEST(LMShortcutTest, WhatCannotBeAHotKeyIsNone) {
    // Modifiers, a dead key, and what is no key.
    for (const int code : {55, 0xffe1, 0xff7f, 0xfe51, 127, 128, -1, 0xffffff, 0x7fffffff})
        EXPECT_FALSE(LMShortcut::shortcutWithKeyCode(code, Control)) << code;
    for (const int code : {15, 36, 0xfc}) // Nobody could type any more.
        EXPECT_FALSE(LMShortcut::shortcutWithKeyCode(code, LMModifier::Shift)) << code;
}

TEST(LMShortcutTest, NoBytesAreTooStrangeToBeRead) {
    const QByteArray good = LMShortcut::shortcutWithKeyCode(15, Control)->data();
    ASSERT_TRUE(good.startsWith("bplist00"));
    // Nine arrays, each holding the next one fifteen times: 15^9 objects when unfolded.
    QByteArray bomb = "bplist00";
    for (char next = 1; next < 10; ++next)
        bomb += QByteArray("\xaf\x10\x0f") + QByteArray(15, next);
    bomb += '\x09';
    for (int array = 0; array < 10; ++array)
        bomb += char(8 + 18 * array);
    bomb += QByteArray::fromHex("00000000000001010000000000"
                                "00000a000000000000000000000000000000ab");

    const QByteArray strangeKey = QByteArray(good).replace("keyCode", QByteArray("key\0ode", 7));
    const QByteArray keyAlone = LMArchivedRecord({{u"keyCode"_qs, 15}});
    const QByteArray hugeKey =
        LMArchivedRecord({{u"keyCode"_qs, quint64(1) << 40}, {u"modifierFlags"_qs, Control}});
    for (const QByteArray& bytes : {QByteArray(), QByteArray("bplist00"), good.chopped(1), bomb,
                                    strangeKey, keyAlone, hugeKey, QByteArray(5000, '\xff')})
        EXPECT_FALSE(LMShortcut::fromData(bytes)) << bytes.toHex().toStdString();

    std::mt19937 random(1); // NOLINT: the same every time.
    QByteArray bytes = good;
    for (int round = 0; round < 20000; ++round) { // It must come back, with whatever answer.
        bytes[qsizetype(random() % unsigned(bytes.size()))] = char(random());
        bytes = LMShortcut::fromData(bytes) || round % 5 == 0 ? good : bytes;
    }
}

} // namespace
