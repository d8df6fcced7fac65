// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/LMHotKeys.h"
#include "support/LMFakeWorld.h"

/// The fake desktop's hot keys. The world must outlive it.
class LMFakeHotKeys final : public LMHotKeys {
    Q_OBJECT
public:
    explicit LMFakeHotKeys(LMFakeWorld& world) : m_world(world) {}

    bool isAvailable() const override { return true; }
    LMHotKeyStatus registerHotKey(const QString& identifier, const LMShortcut& shortcut) override;
    void unregisterHotKey(const QString& identifier) override;
    /// Its keys have their keysyms for scan codes, and its modifiers their flags.
    std::optional<LMKeyPress> keyPress(quint32 scanCode, quint32 modifiers) override {
        return LMKeyPress{scanCode, modifiers};
    }

    // --- for tests ----------------------------------------------------------------------------
    /// Presses and releases; nothing happens when no hot key has the shortcut.
    void press(const LMShortcut& shortcut);
    void release(const LMShortcut& shortcut);
    /// The identifier of the hot key that works with it; null when none does.
    QString holder(const LMShortcut& shortcut) const;
    /// Another program takes shortcuts, all it takes at a time.
    void setHeldByAnotherProgram(const QList<LMShortcut>& shortcuts) { m_foreign = shortcuts; }
    /// The keyboard has changed: all that are refused are tried again.
    void changeKeyboard() { update(QString()); }

private:
    struct HotKey {
        QString identifier;
        LMShortcut shortcut;
        std::optional<LMHotKeyRefusal> refusal = LMHotKeyRefusal::NotAvailable;
    };

    void update(const QString& caller);
    std::optional<LMHotKeyRefusal> refusal(const HotKey& hotKey) const;

    LMFakeWorld& m_world;
    QList<HotKey> m_hotKeys;
    QList<LMShortcut> m_foreign;
};
