// SPDX-License-Identifier: MIT
#include "Platform/LMKeyTable.h"

#include "Utilities/LMFormat.h"

#include <QChar>

#include <algorithm>
#include <unicode/unistr.h>

namespace {

struct VirtualKey {
    int code;
    quint32 keysym;
};

constexpr VirtualKey virtualKeys[] = {
    // Letters, digits and punctuation.
    {0, 'a'},
    {1, 's'},
    {2, 'd'},
    {3, 'f'},
    {4, 'h'},
    {5, 'g'},
    {6, 'z'},
    {7, 'x'},
    {8, 'c'},
    {9, 'v'},
    {10, 0xa7},
    {11, 'b'},
    {12, 'q'},
    {13, 'w'},
    {14, 'e'},
    {15, 'r'},
    {16, 'y'},
    {17, 't'},
    {18, '1'},
    {19, '2'},
    {20, '3'},
    {21, '4'},
    {22, '6'},
    {23, '5'},
    {24, '='},
    {25, '9'},
    {26, '7'},
    {27, '-'},
    {28, '8'},
    {29, '0'},
    {30, ']'},
    {31, 'o'},
    {32, 'u'},
    {33, '['},
    {34, 'i'},
    {35, 'p'},
    {37, 'l'},
    {38, 'j'},
    {39, '\''},
    {40, 'k'},
    {41, ';'},
    {42, '\\'},
    {43, ','},
    {44, '/'},
    {45, 'n'},
    {46, 'm'},
    {47, '.'},
    {49, ' '},
    {50, '`'},
    {93, 0xa5},
    {94, '_'},
    // Editing and movement.
    {36, 0xff0d},
    {48, 0xff09},
    {51, 0xff08},
    {53, 0xff1b},
    {71, 0xff0b},
    {102, 0xff30},
    {104, 0xff27},
    {110, 0xff67},
    {114, 0xff63},
    {115, 0xff50},
    {116, 0xff55},
    {117, 0xffff},
    {119, 0xff57},
    {121, 0xff56},
    {123, 0xff51},
    {124, 0xff53},
    {125, 0xff54},
    {126, 0xff52},
    // Keypad.
    {65, 0xffae},
    {67, 0xffaa},
    {69, 0xffab},
    {75, 0xffaf},
    {76, 0xff8d},
    {78, 0xffad},
    {81, 0xffbd},
    {82, 0xffb0},
    {83, 0xffb1},
    {84, 0xffb2},
    {85, 0xffb3},
    {86, 0xffb4},
    {87, 0xffb5},
    {88, 0xffb6},
    {89, 0xffb7},
    {91, 0xffb8},
    {92, 0xffb9},
    {95, 0xffac},
    // F1 to F20.
    {122, 0xffbe},
    {120, 0xffbf},
    {99, 0xffc0},
    {118, 0xffc1},
    {96, 0xffc2},
    {97, 0xffc3},
    {98, 0xffc4},
    {100, 0xffc5},
    {101, 0xffc6},
    {109, 0xffc7},
    {103, 0xffc8},
    {111, 0xffc9},
    {105, 0xffca},
    {107, 0xffcb},
    {113, 0xffcc},
    {106, 0xffcd},
    {64, 0xffce},
    {79, 0xffcf},
    {80, 0xffd0},
    {90, 0xffd1},
    // Sound.
    {72, 0x1008ff13},
    {73, 0x1008ff11},
    {74, 0x1008ff12},
};

struct KeyName {
    quint32 keysym;
    const char* name;
};

constexpr KeyName names[] = {
    {' ', "Space"},
    {0xa0, "No-Break Space"},
    {0xff08, "Backspace"},
    {0xff09, "Tab"},
    {0xff0b, "Clear"},
    {0xff0d, "Return"},
    {0xff13, "Pause"},
    {0xff15, "System Request"},
    {0xff1b, "Escape"},
    {0xff27, "Kana"},
    {0xff30, "Eisu"},
    {0xff50, "Home"},
    {0xff51, "Left"},
    {0xff52, "Up"},
    {0xff53, "Right"},
    {0xff54, "Down"},
    {0xff55, "Page Up"},
    {0xff56, "Page Down"},
    {0xff57, "End"},
    {0xff61, "Print"},
    {0xff63, "Insert"},
    {0xff67, "Menu"},
    {0xff6a, "Help"},
    {0xffff, "Delete"},
    {0xff8d, "Keypad Enter"},
    {0xff95, "Keypad Home"},
    {0xff96, "Keypad Left"},
    {0xff97, "Keypad Up"},
    {0xff98, "Keypad Right"},
    {0xff99, "Keypad Down"},
    {0xff9a, "Keypad Page Up"},
    {0xff9b, "Keypad Page Down"},
    {0xff9c, "Keypad End"},
    {0xff9d, "Keypad Begin"},
    {0xff9e, "Keypad Insert"},
    {0xff9f, "Keypad Delete"},
    {0x1008ff02, "Brightness Up"},
    {0x1008ff03, "Brightness Down"},
    {0x1008ff11, "Volume Down"},
    {0x1008ff12, "Mute"},
    {0x1008ff13, "Volume Up"},
    {0x1008ff14, "Play"},
    {0x1008ff15, "Stop"},
    {0x1008ff16, "Previous Track"},
    {0x1008ff17, "Next Track"},
    {0x1008ff18, "Home Page"},
    {0x1008ff19, "Mail"},
    {0x1008ff1b, "Search"},
    {0x1008ff1d, "Calculator"},
    {0x1008ff26, "Back"},
    {0x1008ff27, "Forward"},
    {0x1008ff2a, "Power Off"},
    {0x1008ff2f, "Sleep"},
    {0x1008ff31, "Pause Playing"},
    {0x1008ff32, "Media"},
    {0x1008ff41, "Launch 1"},
    {0x1008ff42, "Launch 2"},
    {0x1008ff43, "Launch 3"},
    {0x1008ff44, "Launch 4"},
    {0x1008ff59, "Display"},
    {0x1008ffb2, "Microphone Mute"},
};

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
    const auto* key = std::ranges::find(virtualKeys, code, &VirtualKey::code);
    return key == std::end(virtualKeys) ? std::nullopt : std::optional(key->keysym);
}

std::optional<int> LMKeyTable::virtualKeyCodeForKeysym(quint32 keysym) {
    const auto* key = std::ranges::find(virtualKeys, keysym, &VirtualKey::keysym);
    return key == std::end(virtualKeys) ? std::nullopt : std::optional(key->code);
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

bool LMKeyTable::isFunctionKey(quint32 keysym) {
    const bool isMultimedia = isIn(keysym, 0x10080000, 0x1008ffff);
    return isIn(keysym, firstFunctionKey, lastFunctionKey) || isMultimedia || keysym == 0xff13 ||
           keysym == 0xff61 || keysym == 0xff6a; // Pause, Print, Help.
}

QString LMKeyTable::name(quint32 keysym) {
    const auto* named = std::ranges::find(names, keysym, &KeyName::keysym);
    if (named != std::end(names))
        return LMLocalized(named->name);
    if (isIn(keysym, firstFunctionKey, lastFunctionKey))
        return QStringLiteral("F%1").arg(keysym - firstFunctionKey + 1);
    if (isIn(keysym, 0xffaa, 0xffb9) || keysym == 0xffbd) // The low bits are ASCII.
        return LMFormat(LMLocalized("Keypad %@"), {QChar(static_cast<char16_t>(keysym & 0x7f))});
    if (const QString text = character(keysym); isVisible(text))
        return text.toUpper();
    return LMFormat(LMLocalized("Key %@"),
                    {QLatin1String("0x") + QString::number(keysym, 16).toUpper()});
}
