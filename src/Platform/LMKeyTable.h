// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QtGlobal>

#include <optional>

/// What is known about keys. A key is named by a keysym, a number of the X11 keysym encoding (X
/// Window System Protocol, appendix A), which this program uses with every back end: what the key
/// produces without modifiers, letters in lower case.
namespace LMKeyTable {

/// The keysym of a classic virtual key code: 0–127, the position of the key on an ANSI keyboard
/// with the United States layout. Nothing for codes without a key, and for those of modifiers.
std::optional<quint32> keysymForVirtualKeyCode(int code);
std::optional<int> virtualKeyCodeForKeysym(quint32 keysym);

/// Where several keysyms mean one key, the one this program uses: letters in lower case, characters
/// of Latin-1 without the offset of Unicode keysyms.
quint32 canonicalKeysym(quint32 keysym);

/// Whether the number is a keysym that a key can have, other than a modifier or a lock.
bool isKey(quint32 keysym);

/// The flag of LMModifier that the key stands for while it is held; 0 for other keys and for locks.
quint32 modifierFlag(quint32 keysym);

/// Keys that neither type nor edit nor move anything in text: function keys, multimedia keys and
/// the like. Only these may be taken from all programs without a modifier.
bool isFunctionKey(quint32 keysym);

/// For people: "R", "ü", "F5", "Page Up", "Volume Up", "Key 0xFD1E".
QString name(quint32 keysym);

} // namespace LMKeyTable
