// SPDX-License-Identifier: MIT
#include "support/LMFakeHotKeys.h"

#include <algorithm>

LMHotKeyStatus LMFakeHotKeys::registerHotKey(const QString& identifier,
                                             const LMShortcut& shortcut) {
    auto hotKey = std::ranges::find(m_hotKeys, identifier, &HotKey::identifier);
    if (hotKey == m_hotKeys.end())
        hotKey = m_hotKeys.insert(m_hotKeys.end(), {identifier, shortcut});
    else if (hotKey->shortcut != shortcut)
        *hotKey = {identifier, shortcut};
    update(identifier);
    hotKey = std::ranges::find(m_hotKeys, identifier, &HotKey::identifier);
    return hotKey->refusal ? LMHotKeyStatus::failure(*hotKey->refusal) : LMHotKeyStatus::success();
}

void LMFakeHotKeys::unregisterHotKey(const QString& identifier) {
    if (m_hotKeys.removeIf([&](const HotKey& hotKey) { return hotKey.identifier == identifier; }))
        update(QString());
}

/// Those that work first, so that they keep their shortcuts.
void LMFakeHotKeys::update(const QString& caller) {
    QList<HotKey> changed;
    for (const bool works : {true, false}) {
        for (HotKey& hotKey : m_hotKeys) {
            const auto before = hotKey.refusal;
            if (before.has_value() == works)
                continue;
            hotKey.refusal = refusal(hotKey);
            if (hotKey.refusal != before && hotKey.identifier != caller)
                changed.append(hotKey);
        }
    }
    for (const HotKey& hotKey : std::as_const(changed))
        Q_EMIT hotKeyStateChanged(hotKey.identifier, hotKey.refusal
                                                         ? LMHotKeyStatus::failure(*hotKey.refusal)
                                                         : LMHotKeyStatus::success());
}

std::optional<LMHotKeyRefusal> LMFakeHotKeys::refusal(const HotKey& hotKey) const {
    if (!m_world.isConnected)
        return LMHotKeyRefusal::NotAvailable;
    if (m_foreign.contains(hotKey.shortcut))
        return LMHotKeyRefusal::HeldByAnotherProgram;
    const QString holding = holder(hotKey.shortcut);
    if (!holding.isNull() && holding != hotKey.identifier)
        return LMHotKeyRefusal::AlreadyInUse;
    return std::nullopt;
}

QString LMFakeHotKeys::holder(const LMShortcut& shortcut) const {
    for (const HotKey& hotKey : m_hotKeys) {
        if (hotKey.shortcut == shortcut && !hotKey.refusal)
            return hotKey.identifier;
    }
    return {};
}

void LMFakeHotKeys::press(const LMShortcut& shortcut) {
    if (const QString identifier = holder(shortcut); !identifier.isNull())
        Q_EMIT hotKeyPressed(identifier);
}

void LMFakeHotKeys::release(const LMShortcut& shortcut) {
    if (const QString identifier = holder(shortcut); !identifier.isNull())
        Q_EMIT hotKeyReleased(identifier);
}
