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
    const std::tuple<quint32, Codes, Codes> rows[] = {
        {'y', {24}, {25}}, {'7', {26}, {}}, {'/', {26}, {}}, {'{', {26}, {}},
        {0x6cb, {27}, {}}, {'s', {39}, {}}, // Nowhere: its place on the ANSI keyboard.
        {0xfc, {}, {}},
    };
    for (const auto& [keysym, codes, others] : rows) {
        const LMX11KeyMap::Keys keys = keyMap().keys(keysym);
        EXPECT_EQ(keys.codes, codes) << keysym;
        EXPECT_EQ(keys.codesOfOtherLayouts, others) << keysym;
    }
}

TEST(LMX11KeyMapTest, ModifiersAreWhatTheKeyboardSaysTheyAre) {
    // Two key codes for each modifier, Shift first: Alt and Num Lock on Mod1, Super on Mod5.
    const LMX11KeyMap map = keyMap({0, 0, 0, 0, 0, 0, 29, 0, 0, 0, 0, 0, 0, 0, 0, 28});
    EXPECT_EQ(map.modifiers(LMModifier::Option | LMModifier::Shift), 0x09);
    EXPECT_EQ(map.modifiers(LMModifier::Command | LMModifier::Control), 0x84);
    EXPECT_EQ(map.lockModifiers(), 0x0a);
    EXPECT_EQ(keyMap().modifiers(LMModifier::Command), std::nullopt);
    EXPECT_EQ(keyMap().lockModifiers(), 0x02);
}

} // namespace
