// SPDX-License-Identifier: MIT
#include "Platform/X11/LMX11KeyMap.h"

#include "Platform/LMKeyTable.h"
#include "Platform/LMShortcut.h"
#include "Platform/X11/LMX11Connection.h"

#include <algorithm>
#include <string_view>
#include <utility>

namespace {

constexpr xcb_keysym_t NumLock = 0xff7f, ScrollLock = 0xff14;
constexpr xcb_keysym_t MetaLeft = 0xffe7, MetaRight = 0xffe8;
constexpr xcb_keysym_t AltLeft = 0xffe9, AltRight = 0xffea;
constexpr xcb_keysym_t SuperLeft = 0xffeb, SuperRight = 0xffec;

// Columns of a row (X Window System Protocol, section 5): first layout without and with Shift,
// second layout likewise, then what takes further modifiers or layouts.
constexpr int secondLayout = 2;
constexpr int layoutColumns = 4;
constexpr int modifierCount = 8;

/// Where the ANSI keyboard has its characters, by the key codes that all Linux drivers use.
struct KeyRow {
    xcb_keycode_t firstCode;
    std::string_view characters;
};
constexpr KeyRow ansiRows[] = {
    {10, "1234567890-="}, {24, "qwertyuiop[]"}, {38, "asdfghjkl;'`"}, {51, "\\zxcvbnm,./"}};

std::vector<xcb_keycode_t> codesOnAnsiKeyboard(quint32 keysym) {
    if (keysym > 0x7f)
        return {};
    for (const KeyRow& row : ansiRows) {
        const auto place = row.characters.find(static_cast<char>(keysym));
        if (place != std::string_view::npos)
            return {static_cast<xcb_keycode_t>(row.firstCode + place)};
    }
    return {};
}

} // namespace

LMX11KeyMap::LMX11KeyMap(xcb_keycode_t firstCode, int width, std::vector<xcb_keysym_t> keysyms,
                         const std::vector<xcb_keycode_t>& modifierCodes)
    : m_firstCode(firstCode), m_width(width), m_keysyms(std::move(keysyms)) {
    m_option = modifierWithKey(modifierCodes, {AltLeft, AltRight});
    if (m_option == 0)
        m_option = modifierWithKey(modifierCodes, {MetaLeft, MetaRight});
    m_command = modifierWithKey(modifierCodes, {SuperLeft, SuperRight});
    m_lockModifiers |= modifierWithKey(modifierCodes, {NumLock});
    m_lockModifiers |= modifierWithKey(modifierCodes, {ScrollLock});
}

std::optional<LMX11KeyMap> LMX11KeyMap::read(LMX11Connection& connection) {
    const xcb_setup_t& setup = *xcb_get_setup(connection.xcb());
    const auto count = static_cast<uint8_t>(setup.max_keycode - setup.min_keycode + 1);
    const auto keysymsCookie = xcb_get_keyboard_mapping(connection.xcb(), setup.min_keycode, count);
    const auto modifiersCookie = xcb_get_modifier_mapping(connection.xcb());
    const auto keysyms = connection.reply(xcb_get_keyboard_mapping_reply, keysymsCookie);
    const auto modifiers = connection.reply(xcb_get_modifier_mapping_reply, modifiersCookie);
    if (!keysyms || !modifiers)
        return std::nullopt;
    const xcb_keysym_t* keysym = xcb_get_keyboard_mapping_keysyms(keysyms.get());
    const xcb_keycode_t* code = xcb_get_modifier_mapping_keycodes(modifiers.get());
    return LMX11KeyMap(setup.min_keycode, keysyms->keysyms_per_keycode,
                       {keysym, keysym + xcb_get_keyboard_mapping_keysyms_length(keysyms.get())},
                       {code, code + xcb_get_modifier_mapping_keycodes_length(modifiers.get())});
}

LMX11KeyMap::Keys LMX11KeyMap::keys(quint32 keysym) const {
    Keys keys;
    for (const int level : {0, 1}) {
        keys.codes = codesInColumn(keysym, level);
        keys.codesOfOtherLayouts = codesInColumn(keysym, secondLayout + level);
        std::erase_if(keys.codesOfOtherLayouts, [&](xcb_keycode_t code) {
            return std::ranges::find(keys.codes, code) != keys.codes.end();
        });
        if (keys.codes.empty())
            keys.codes.swap(keys.codesOfOtherLayouts);
        if (!keys.codes.empty())
            return keys;
    }
    for (int column = layoutColumns; column < m_width && keys.codes.empty(); ++column)
        keys.codes = codesInColumn(keysym, column);
    if (keys.codes.empty())
        keys.codes = codesOnAnsiKeyboard(keysym);
    return keys;
}

std::vector<xcb_keycode_t> LMX11KeyMap::codesInColumn(quint32 keysym, int column) const {
    std::vector<xcb_keycode_t> codes;
    if (column >= m_width)
        return codes;
    const std::size_t width = static_cast<std::size_t>(m_width);
    for (std::size_t row = 0; (row + 1) * width <= m_keysyms.size(); ++row) {
        const xcb_keysym_t found = m_keysyms[row * width + static_cast<std::size_t>(column)];
        if (LMKeyTable::canonicalKeysym(found) == keysym)
            codes.push_back(static_cast<xcb_keycode_t>(m_firstCode + row));
    }
    return codes;
}

quint32 LMX11KeyMap::keysymInColumn(xcb_keycode_t code, int column) const {
    const auto place =
        static_cast<std::size_t>(code - m_firstCode) * static_cast<std::size_t>(m_width) +
        static_cast<std::size_t>(column);
    return code >= m_firstCode && column < m_width && place < m_keysyms.size()
               ? LMKeyTable::canonicalKeysym(m_keysyms[place])
               : 0;
}

quint32 LMX11KeyMap::keysym(xcb_keycode_t code, int layout) const {
    const quint32 first = keysymInColumn(code, 0);
    const quint32 second = keysymInColumn(code, secondLayout);
    const quint32 here = layout == 1 && second != 0 ? second : first;
    const quint32 other = here == first ? second : first;
    const bool isForeignCharacter =
        (here >= 0x100 && here < 0xfd00) || (here >= 0x01000100 && here < 0x01110000);
    return isForeignCharacter && other >= 'a' && other <= 'z' ? other : here;
}

quint32 LMX11KeyMap::modifierFlags(uint16_t modifiers) const {
    const std::pair<uint16_t, quint32> translations[] = {
        {XCB_MOD_MASK_SHIFT, LMModifier::Shift},
        {XCB_MOD_MASK_CONTROL, LMModifier::Control},
        {m_option, LMModifier::Option},
        {m_command, LMModifier::Command},
    };
    quint32 flags = 0;
    for (const auto& [modifier, flag] : translations) {
        if ((modifiers & modifier) != 0)
            flags |= flag;
    }
    return flags;
}

uint16_t LMX11KeyMap::modifierWithKey(const std::vector<xcb_keycode_t>& modifierCodes,
                                      std::initializer_list<xcb_keysym_t> keysyms) const {
    const std::size_t codesEach = modifierCodes.size() / modifierCount;
    for (const xcb_keysym_t keysym : keysyms) {
        for (int column = 0; column < layoutColumns; ++column) {
            for (const xcb_keycode_t code : codesInColumn(keysym, column)) {
                const auto found = std::ranges::find(modifierCodes, code);
                if (found != modifierCodes.end())
                    return static_cast<uint16_t>(
                        1U << static_cast<std::size_t>(found - modifierCodes.begin()) / codesEach);
            }
        }
    }
    return 0;
}

std::optional<uint16_t> LMX11KeyMap::modifiers(quint32 modifierFlags) const {
    const std::pair<quint32, uint16_t> translations[] = {
        {LMModifier::Shift, XCB_MOD_MASK_SHIFT},
        {LMModifier::Control, XCB_MOD_MASK_CONTROL},
        {LMModifier::Option, m_option},
        {LMModifier::Command, m_command},
    };
    uint16_t modifiers = 0;
    for (const auto& [flag, modifier] : translations) {
        if ((modifierFlags & flag) == 0)
            continue;
        if (modifier == 0)
            return std::nullopt;
        modifiers |= modifier;
    }
    return modifiers;
}
