// SPDX-License-Identifier: MIT
#include "Platform/LMKeyTable.h"

#include "Platform/LMShortcut.h"
#include "Utilities/LMFormat.h"

#include <QChar>

#include <algorithm>
#include <array>
#include <unicode/unistr.h>

namespace {

// clang-format off
/// By virtual key code; 0 where there is no key, or a modifier.
constexpr std::array<quint32, 128> keysymsByCode = {
    /*   0 */ 'a', 's', 'd', 'f', 'h', 'g', 'z', 'x',
    /*   8 */ 'c', 'v', 0xa7, 'b', 'q', 'w', 'e', 'r',
    /*  16 */ 'y', 't', '1', '2', '3', '4', '6', '5',
    /*  24 */ '=', '9', '7', '-', '8', '0', ']', 'o',
    /*  32 */ 'u', '[', 'i', 'p', 0xff0d, 'l', 'j', '\'',
    /*  40 */ 'k', ';', '\\', ',', '/', 'n', 'm', '.',
    /*  48 */ 0xff09, ' ', '`', 0xff08, 0, 0xff1b, 0, 0,
    /*  56 */ 0, 0, 0, 0, 0, 0, 0, 0,
    /*  64 */ 0xffce, 0xffae, 0, 0xffaa, 0, 0xffab, 0, 0xff0b,
    /*  72 */ 0x1008ff13, 0x1008ff11, 0x1008ff12, 0xffaf, 0xff8d, 0, 0xffad, 0xffcf,
    /*  80 */ 0xffd0, 0xffbd, 0xffb0, 0xffb1, 0xffb2, 0xffb3, 0xffb4, 0xffb5,
    /*  88 */ 0xffb6, 0xffb7, 0xffd1, 0xffb8, 0xffb9, 0xa5, '_', 0xffac,
    /*  96 */ 0xffc2, 0xffc3, 0xffc4, 0xffc0, 0xffc5, 0xffc6, 0xff30, 0xffc8,
    /* 104 */ 0xff27, 0xffca, 0xffcd, 0xffcb, 0, 0xffc7, 0xff67, 0xffc9,
    /* 112 */ 0, 0xffcc, 0xff63, 0xff50, 0xff55, 0xffff, 0xffc1, 0xff57,
    /* 120 */ 0xffbf, 0xff56, 0xffbe, 0xff51, 0xff53, 0xff54, 0xff52, 0};
// clang-format on

struct KeyName {
    quint32 keysym;
    const char* name;
};

// clang-format off
constexpr KeyName names[] = {
    {' ', LMLocalizable("Space")}, {0xa0, LMLocalizable("No-Break Space")},
    {0xff08, LMLocalizable("Backspace")}, {0xff09, LMLocalizable("Tab")},
    {0xff0b, LMLocalizable("Clear", "key")}, {0xff0d, LMLocalizable("Return")},
    {0xff13, LMLocalizable("Pause")}, {0xff15, LMLocalizable("System Request")},
    {0xff1b, LMLocalizable("Escape")}, {0xff27, LMLocalizable("Kana")},
    {0xff30, LMLocalizable("Eisu")}, {0xff50, LMLocalizable("Home")},
    {0xff51, LMLocalizable("Left")}, {0xff52, LMLocalizable("Up")},
    {0xff53, LMLocalizable("Right")}, {0xff54, LMLocalizable("Down")},
    {0xff55, LMLocalizable("Page Up")}, {0xff56, LMLocalizable("Page Down")},
    {0xff57, LMLocalizable("End")}, {0xff61, LMLocalizable("Print")},
    {0xff63, LMLocalizable("Insert")}, {0xff67, LMLocalizable("Menu")},
    {0xff6a, LMLocalizable("Help")}, {0xffff, LMLocalizable("Delete", "key")},
    {0xff8d, LMLocalizable("Keypad Enter")}, {0xff95, LMLocalizable("Keypad Home")},
    {0xff96, LMLocalizable("Keypad Left")}, {0xff97, LMLocalizable("Keypad Up")},
    {0xff98, LMLocalizable("Keypad Right")}, {0xff99, LMLocalizable("Keypad Down")},
    {0xff9a, LMLocalizable("Keypad Page Up")}, {0xff9b, LMLocalizable("Keypad Page Down")},
    {0xff9c, LMLocalizable("Keypad End")}, {0xff9d, LMLocalizable("Keypad Begin")},
    {0xff9e, LMLocalizable("Keypad Insert")}, {0xff9f, LMLocalizable("Keypad Delete")},
    {0x1008ff02, LMLocalizable("Brightness Up")}, {0x1008ff03, LMLocalizable("Brightness Down")},
    {0x1008ff11, LMLocalizable("Volume Down")}, {0x1008ff12, LMLocalizable("Mute")},
    {0x1008ff13, LMLocalizable("Volume Up")}, {0x1008ff14, LMLocalizable("Play")},
    {0x1008ff15, LMLocalizable("Stop")}, {0x1008ff16, LMLocalizable("Previous Track")},
    {0x1008ff17, LMLocalizable("Next Track")}, {0x1008ff18, LMLocalizable("Home Page")},
    {0x1008ff19, LMLocalizable("Mail")}, {0x1008ff1b, LMLocalizable("Search")},
    {0x1008ff1d, LMLocalizable("Calculator")}, {0x1008ff26, LMLocalizable("Back")},
    {0x1008ff27, LMLocalizable("Forward")}, {0x1008ff2a, LMLocalizable("Power Off")},
    {0x1008ff2f, LMLocalizable("Sleep")}, {0x1008ff31, LMLocalizable("Pause Playing")},
    {0x1008ff32, LMLocalizable("Media")}, {0x1008ff41, LMLocalizable("Launch 1")},
    {0x1008ff42, LMLocalizable("Launch 2")}, {0x1008ff43, LMLocalizable("Launch 3")},
    {0x1008ff44, LMLocalizable("Launch 4")}, {0x1008ff59, LMLocalizable("Display")},
    {0x1008ffb2, LMLocalizable("Microphone Mute")},
};
// clang-format on

/// The keysyms from before Unicode: bits 8 to 12 select a character set, the low byte is the
/// character's place in it.
struct CharacterSet {
    quint32 number;
    const char* codePage;
};
constexpr CharacterSet characterSets[] = {
    {0x1, "ISO-8859-2"}, {0x2, "ISO-8859-3"}, {0x3, "ISO-8859-4"}, {0x5, "ISO-8859-6"},
    {0x6, "KOI8-U"},     {0x7, "ISO-8859-7"}, {0xc, "ISO-8859-8"}, {0xd, "TIS-620"},
};

constexpr quint32 unicodeOffset = 0x01000000;
constexpr quint32 lastUnicode = unicodeOffset + 0x10ffff;
constexpr quint32 firstFunctionKey = 0xffbe;
constexpr quint32 lastFunctionKey = 0xffe0;

bool isIn(quint32 keysym, quint32 first, quint32 last) {
    return keysym >= first && keysym <= last;
}

/// The character the keysym stands for; null when it stands for none.
QString character(quint32 keysym) {
    if (isIn(keysym, 0x20, 0x7e) || isIn(keysym, 0xa0, 0xff))
        return QChar(static_cast<char16_t>(keysym));
    if (isIn(keysym, unicodeOffset, lastUnicode)) {
        const auto codePoint = static_cast<char32_t>(keysym - unicodeOffset);
        return QString::fromUcs4(&codePoint, 1);
    }
    for (const CharacterSet& set : characterSets) {
        if (keysym >> 8 != set.number)
            continue;
        const char byte = static_cast<char>(keysym & 0xff);
        const icu::UnicodeString text(&byte, 1, set.codePage);
        return QString::fromUtf16(text.getBuffer(), text.length());
    }
    return {};
}

bool isVisible(const QString& text) {
    const QList<uint> characters = text.toUcs4();
    return characters.size() == 1 && QChar::isPrint(characters[0]) &&
           !QChar::isSpace(characters[0]) && characters[0] != QChar::ReplacementCharacter;
}

} // namespace

std::optional<quint32> LMKeyTable::keysymForVirtualKeyCode(int code) {
    if (code < 0 || code >= static_cast<int>(keysymsByCode.size()))
        return std::nullopt;
    const quint32 keysym = keysymsByCode[static_cast<std::size_t>(code)];
    return keysym != 0 ? std::optional(keysym) : std::nullopt;
}

std::optional<int> LMKeyTable::virtualKeyCodeForKeysym(quint32 keysym) {
    const auto* found = std::ranges::find(keysymsByCode, keysym);
    if (keysym == 0 || found == keysymsByCode.end())
        return std::nullopt;
    return static_cast<int>(found - keysymsByCode.begin());
}

quint32 LMKeyTable::canonicalKeysym(quint32 keysym) {
    if (isIn(keysym, unicodeOffset, unicodeOffset + 0xff))
        keysym -= unicodeOffset;
    return isIn(keysym, 'A', 'Z') ? keysym - 'A' + 'a' : keysym;
}

bool LMKeyTable::isKey(quint32 keysym) {
    constexpr quint32 voidSymbol = 0xffffff;
    constexpr quint32 protocolMask = 0x1fffffff;
    const bool isModifier = isIn(keysym, 0xffe1, 0xffee) || // Shift_L to Hyper_R.
                            isIn(keysym, 0xfe01, 0xfe13) || // ISO_Lock to ISO_Level5_Lock.
                            keysym == 0xff14 || keysym == 0xff7e || keysym == 0xff7f;
    const bool isDead = isIn(keysym, 0xfe50, 0xfe9f);
    const bool isControlCharacter = keysym < 0x20 || isIn(keysym, 0x7f, 0x9f);
    return !isModifier && !isDead && !isControlCharacter && keysym != voidSymbol &&
           (keysym & protocolMask) == keysym;
}

quint32 LMKeyTable::modifierFlag(quint32 keysym) {
    if (isIn(keysym, 0xffe1, 0xffe2))
        return LMModifier::Shift;
    if (isIn(keysym, 0xffe3, 0xffe4))
        return LMModifier::Control;
    if (isIn(keysym, 0xffe7, 0xffea)) // Meta stands on the same key as Alt.
        return LMModifier::Option;
    return isIn(keysym, 0xffeb, 0xffee) ? LMModifier::Command : 0; // Super and Hyper.
}

bool LMKeyTable::isFunctionKey(quint32 keysym) {
    const bool isMultimedia = isIn(keysym, 0x10080000, 0x1008ffff);
    return isIn(keysym, firstFunctionKey, lastFunctionKey) || isMultimedia || keysym == 0xff13 ||
           keysym == 0xff61 || keysym == 0xff6a; // Pause, Print, Help.
}

QString LMKeyTable::name(quint32 keysym) {
    const auto* named = std::ranges::find(names, keysym, &KeyName::keysym);
    if (named != std::end(names))
        return LMLocalized(named->name, "key");
    if (isIn(keysym, firstFunctionKey, lastFunctionKey))
        return QStringLiteral("F%1").arg(keysym - firstFunctionKey + 1);
    if (isIn(keysym, 0xffaa, 0xffb9) || keysym == 0xffbd) // The low bits are ASCII.
        return LMFormat(LMLocalized("Keypad %@"), {QChar(static_cast<char16_t>(keysym & 0x7f))});
    if (const QString text = character(keysym); isVisible(text))
        return text.toUpper();
    return LMFormat(LMLocalized("Key %@"),
                    {QLatin1String("0x") + QString::number(keysym, 16).toUpper()});
}
