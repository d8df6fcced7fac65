// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>
#include <QtGlobal>

#include <optional>

/// The bits of a shortcut's modifier flags.
namespace LMModifier {
inline constexpr quint32 Shift = 0x20000;
inline constexpr quint32 Control = 0x40000;
inline constexpr quint32 Option = 0x80000;   ///< The key that PC keyboards label Alt.
inline constexpr quint32 Command = 0x100000; ///< The key with the logo; Super.
} // namespace LMModifier

/// A key with the modifiers that are held while it is pressed. A plain value.
///
/// Key codes below 128 are the classic virtual key codes: a place on an ANSI keyboard, taken for
/// what the United States layout has there (0 is A, 15 is R, 122 is F1). Codes from 128 on are X11
/// keysyms, so that every key there is can be a shortcut; characters below 128 that have no virtual
/// key code ("#") are written 0x01000000 + character. Every key has one code only: a keysym for
/// which there is a virtual key code becomes that.
///
/// A shortcut is on what the key produces, not on a place: it follows the letter when the user
/// changes the keyboard layout.
class LMShortcut {
public:
    /// Nothing when there is no such key, when it is a modifier itself, and when taking it from all
    /// programs would keep the user from typing: without command, option or control only function
    /// and multimedia keys will do. Other bits than those of LMModifier are dropped.
    static std::optional<LMShortcut> shortcutWithKeyCode(int keyCode, quint64 modifierFlags);
    /// Likewise, for a keysym in any form.
    static std::optional<LMShortcut> shortcutWithKeysym(quint32 keysym, quint64 modifierFlags);

    int keyCode() const { return m_keyCode; }
    quint32 modifierFlags() const { return m_modifierFlags; }
    /// What the key produces without modifiers, see LMKeyTable.
    quint32 keysym() const;

    /// The archived record, which is what the user defaults hold. Equal shortcuts have equal data.
    QByteArray data() const;
    /// Nothing for data that is not an archived shortcut, or one of a shortcut that cannot be made.
    static std::optional<LMShortcut> fromData(const QByteArray& data);

    /// For people, in their language: "Ctrl+Alt+R".
    QString description() const;
    /// The same for the modifiers alone: "Ctrl+Alt".
    static QString modifiersDescription(quint32 modifierFlags);

    bool operator==(const LMShortcut&) const = default;

private:
    LMShortcut(int keyCode, quint32 modifierFlags)
        : m_keyCode(keyCode), m_modifierFlags(modifierFlags) {}

    int m_keyCode;
    quint32 m_modifierFlags;
};
