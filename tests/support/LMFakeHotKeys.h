// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/LMHotKeys.h"

/// The fake desktop's hot keys: of several with one shortcut the first that was registered works.
class LMFakeHotKeys final : public LMHotKeys {
    Q_OBJECT
public:
    bool isAvailable() const override { return true; }
    LMHotKeyStatus registerHotKey(const QString& identifier, const LMShortcut& shortcut) override;
    void unregisterHotKey(const QString& identifier) override;
    /// Its keys have their keysyms for scan codes, and its modifiers their flags.
    std::optional<LMKeyPress> keyPress(quint32 scanCode, quint32 modifiers) override {
        return LMKeyPress{scanCode, modifiers};
    }

    // --- for tests ----------------------------------------------------------------------------
    /// Presses and releases; nothing happens when no hot key has the shortcut.
    void press(const LMShortcut& shortcut) { report(&LMHotKeys::hotKeyPressed, shortcut); }
    void release(const LMShortcut& shortcut) { report(&LMHotKeys::hotKeyReleased, shortcut); }
    /// The identifier of the hot key that works with it; null when none does.
    QString holder(const LMShortcut& shortcut) const;
    /// Another program takes shortcuts, all it takes at a time.
    void setHeldByAnotherProgram(const QList<LMShortcut>& shortcuts) { m_foreign = shortcuts; }
    /// The keyboard has changed: whatever is refused is tried again.
    void changeKeyboard();

private:
    using HotKey = std::pair<QString, LMShortcut>;

    LMHotKeyStatus status(const HotKey& hotKey) const;
    void report(void (LMHotKeys::*signal)(const QString&), const LMShortcut& shortcut);

    QList<HotKey> m_hotKeys;
    QList<LMShortcut> m_foreign;
};
