// SPDX-License-Identifier: MIT
#include "Platform/X11/LMX11KeyMap.h"

#include "Platform/LMShortcut.h"

#include <gtest/gtest.h>

namespace {

using Codes = std::vector<xcb_keycode_t>;

/// Key codes 24 to 29; two layouts, then a third level.
LMX11KeyMap keyMap(const Codes& modifierCodes = {}) {
    return {24,
            5,
            {'y',    'Y',    'z',    'Z',   0x2190, // 24: Latin letters that change places.
             'z',    'Z',    'y',    'Y',   0,      // 25
             '7',    '/',    '7',    '/',   '{',    // 26
             0,      0,      0x6cb,  0x6eb, 0,      // 27: only in the second layout.
             0xffeb, 0,      0xffeb, 0,     0,      // 28: Super_L
             0xff7f, 0xffe9, 0,      0,     0},     // 29: Num_Lock, with Shift Alt_L
            modifierCodes};
}

TEST(LMX11KeyMapTest, KeysAreFoundWhereTheyNeedTheFewestModifiers) {
    const std::pair<quint32, Codes> rows[] = {
        {'y', {24}}, {'/', {26}}, {'{', {26}}, {0x6cb, {27}}, {'s', {39}}, {0xfc, {}},
    };
    for (const auto& [keysym, codes] : rows) // The s is nowhere: its place on the ANSI keyboard.
        EXPECT_EQ(keyMap().keys(keysym).codes, codes) << keysym;
    EXPECT_EQ(keyMap().keys('y').codesOfOtherLayouts, Codes{25});
}

/// What is recorded from a key is found on that key again, whichever layout is in use.
TEST(LMX11KeyMapTest, AKeyIsNamedByWhatItProducesWithoutModifiers) {
    const std::tuple<int, int, quint32> rows[] = {
        {24, 0, 'y'}, {24, 1, 'z'},   {25, 1, 'y'},    {26, 0, '7'}, {26, 1, '7'},
        {27, 0, 0},   {27, 1, 0x6cb}, {28, 0, 0xffeb}, {23, 0, 0},   {30, 0, 0},
    };
    for (const auto& [code, layout, expected] : rows) {
        const auto key = static_cast<xcb_keycode_t>(code);
        const quint32 keysym = keyMap().keysym(key, layout);
        EXPECT_EQ(keysym, expected) << code << ' ' << layout;
        Codes found = keyMap().keys(keysym).codes;
        std::ranges::copy(keyMap().keys(keysym).codesOfOtherLayouts, std::back_inserter(found));
        EXPECT_TRUE(keysym == 0 || std::ranges::find(found, key) != found.end()) << code;
    }
    // Cyrillic letters give way to the Latin ones of another layout, German ones do not.
    const LMX11KeyMap mixed(24, 4, {0x6c6, 0x6e6, 'a', 'A', 0xfc, 0xdc, '[', '{'}, {});
    EXPECT_EQ(mixed.keysym(24, 0), quint32('a'));
    EXPECT_EQ(mixed.keysym(25, 0), 0xfcU);
    EXPECT_EQ(mixed.keysym(25, 1), quint32('['));
}

TEST(LMX11KeyMapTest, ModifiersAreWhatTheKeyboardSaysTheyAre) {
    // Two key codes for each modifier, Shift first: Alt and Num Lock on Mod1, Super on Mod5.
    const LMX11KeyMap map = keyMap({0, 0, 0, 0, 0, 0, 29, 0, 0, 0, 0, 0, 0, 0, 0, 28});
    EXPECT_EQ(map.modifiers(LMModifier::Option | LMModifier::Shift), 0x09);
    EXPECT_EQ(map.modifiers(LMModifier::Command | LMModifier::Control), 0x84);
    EXPECT_EQ(map.modifierFlags(0x9f),
              LMModifier::Option | LMModifier::Shift | LMModifier::Command | LMModifier::Control);
    EXPECT_EQ(map.lockModifiers(), 0x0a);
    EXPECT_EQ(keyMap().modifiers(LMModifier::Command), std::nullopt);
}

} // namespace
