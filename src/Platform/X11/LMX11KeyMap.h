// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <cstdint>
#include <optional>
#include <vector>

#include <xcb/xcb.h>

class LMX11Connection;

/// What the keys of the keyboard produce and which modifiers they are, as the core protocol tells
/// it. A plain value: read anew after every MappingNotify.
class LMX11KeyMap {
public:
    /// Keys that produce a keysym, as key codes.
    struct Keys {
        std::vector<xcb_keycode_t> codes;
        /// The user has a second layout at hand, and there it is these: the core protocol does not
        /// tell which layout is in use.
        std::vector<xcb_keycode_t> codesOfOtherLayouts;
    };

    /// Rows of keysyms, one for each key code from the first on, all of the given width; and the
    /// key codes of the eight modifiers, the same number for each.
    LMX11KeyMap(xcb_keycode_t firstCode, int width, std::vector<xcb_keysym_t> keysyms,
                const std::vector<xcb_keycode_t>& modifierCodes);

    /// Nothing when the server does not answer.
    static std::optional<LMX11KeyMap> read(LMX11Connection& connection);

    /// Keys that produce it without Shift; only when there are none, those that need Shift, and
    /// then any that need more. A Latin character that the user's layouts have nowhere (Cyrillic,
    /// Greek) is looked for in its place on the ANSI keyboard.
    Keys keys(quint32 keysym) const;

    /// What the key produces without modifiers in one of the user's layouts, counted from 0; 0 for
    /// nothing. Where that is not in the Latin alphabet, the Latin letter that another layout has
    /// on the key. keys() of the answer contains the key.
    quint32 keysym(xcb_keycode_t code, int layout) const;

    /// The flags of LMModifier for core modifiers.
    quint32 modifierFlags(uint16_t modifiers) const;

    /// The core modifiers for the flags of LMModifier. Nothing when the keyboard lacks one.
    std::optional<uint16_t> modifiers(quint32 modifierFlags) const;

    /// Caps Lock, Num Lock and Scroll Lock, whichever there are.
    uint16_t lockModifiers() const { return m_lockModifiers; }

private:
    std::vector<xcb_keycode_t> codesInColumn(quint32 keysym, int column) const;
    quint32 keysymInColumn(xcb_keycode_t code, int column) const;
    uint16_t modifierWithKey(const std::vector<xcb_keycode_t>& modifierCodes,
                             std::initializer_list<xcb_keysym_t> keysyms) const;

    xcb_keycode_t m_firstCode;
    int m_width;
    std::vector<xcb_keysym_t> m_keysyms;
    uint16_t m_option = 0;
    uint16_t m_command = 0;
    uint16_t m_lockModifiers = XCB_MOD_MASK_LOCK;
};
