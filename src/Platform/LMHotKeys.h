// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/LMShortcut.h"
#include "Utilities/LMResult.h"

#include <QObject>
#include <QString>

/// Why a hot key does not work.
enum class LMHotKeyRefusal {
    HeldByAnotherProgram, ///< Another program has taken the shortcut.
    AlreadyInUse,         ///< Another hot key of ours has it.
    NoSuchKey,            ///< The keyboard cannot produce the key or one of the modifiers.
    NotAvailable,         ///< The back end has no hot keys, or has lost its server.
};

/// For people, a whole sentence.
QString LMHotKeyRefusalText(LMHotKeyRefusal refusal, const LMShortcut& shortcut);

using LMHotKeyStatus = LMResult<void, LMHotKeyRefusal>;

/// A key that was pressed in a window of ours, as shortcuts name it.
struct LMKeyPress {
    quint32 keysym = 0;        ///< What the key produces without modifiers, see LMKeyTable.
    quint32 modifierFlags = 0; ///< What was held when it was pressed.

    bool operator==(const LMKeyPress&) const = default;
};

/// Shortcuts that reach this program whatever application has the focus.
///
/// A hot key is known by an identifier of the caller's choice and stays registered until it is
/// unregistered, also while it is refused: then it is tried again whenever the keyboard changes or
/// another hot key lets go of a shortcut. A hot key that works is never taken away in favour of
/// one that was refused before. Lock keys (Caps Lock, Num Lock, Scroll Lock) make no difference.
class LMHotKeys : public QObject {
    Q_OBJECT
public:
    /// Whether this back end can have hot keys at all.
    virtual bool isAvailable() const = 0;

    /// Takes the shortcut from all other programs. A hot key that has the identifier already gets
    /// the new shortcut in place of its old one, which is free afterwards whatever the answer.
    virtual LMHotKeyStatus registerHotKey(const QString& identifier,
                                          const LMShortcut& shortcut) = 0;

    /// Lets go of it; an unknown identifier is ignored.
    virtual void unregisterHotKey(const QString& identifier) = 0;

    /// What the user pressed when the toolkit reports a key with this scan code and these
    /// modifiers, both as the display system has them (QKeyEvent's native ones). A hot key with the
    /// answer's key and modifiers is pressed by the same again: Shift and the layout change what a
    /// key types, not which key it is. Nothing when that cannot be told.
    virtual std::optional<LMKeyPress> keyPress(quint32 nativeScanCode, quint32 nativeModifiers) = 0;

Q_SIGNALS:
    /// The user has pressed the shortcut. Emitted once, however long it is held.
    ///
    /// Until the key is let go, what is typed does not reach any other program, and no one else can
    /// grab the keyboard: a menu is opened when the key is released.
    void hotKeyPressed(const QString& identifier);
    /// The key, not necessarily its modifiers, was let go; the keyboard is free again. Follows
    /// every hotKeyPressed, unless the hot key was unregistered meanwhile.
    void hotKeyReleased(const QString& identifier);

    /// Something else than a call with this identifier has made the hot key work, or refused.
    void hotKeyStateChanged(const QString& identifier, const LMHotKeyStatus& status);

protected:
    using QObject::QObject;
};
