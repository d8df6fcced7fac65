// SPDX-License-Identifier: MIT
#include "support/LMFakeHotKeys.h"

#include <algorithm>

LMHotKeyStatus LMFakeHotKeys::registerHotKey(const QString& identifier,
                                             const LMShortcut& shortcut) {
    unregisterHotKey(identifier);
    m_hotKeys.append({identifier, shortcut});
    return status(m_hotKeys.last());
}

void LMFakeHotKeys::unregisterHotKey(const QString& identifier) {
    if (m_hotKeys.removeIf([&](const HotKey& hotKey) { return hotKey.first == identifier; }))
        changeKeyboard();
}

void LMFakeHotKeys::changeKeyboard() {
    const QList<HotKey> hotKeys = m_hotKeys;
    for (const HotKey& hotKey : hotKeys)
        Q_EMIT hotKeyStateChanged(hotKey.first, status(hotKey));
}

LMHotKeyStatus LMFakeHotKeys::status(const HotKey& hotKey) const {
    if (m_foreign.contains(hotKey.second))
        return LMHotKeyStatus::failure(LMHotKeyRefusal::HeldByAnotherProgram);
    const auto first = std::ranges::find(m_hotKeys, hotKey.second, &HotKey::second);
    return *first == hotKey ? LMHotKeyStatus::success()
                            : LMHotKeyStatus::failure(LMHotKeyRefusal::AlreadyInUse);
}

QString LMFakeHotKeys::holder(const LMShortcut& shortcut) const {
    const auto first = std::ranges::find(m_hotKeys, shortcut, &HotKey::second);
    return first != m_hotKeys.end() && status(*first) ? first->first : QString();
}

void LMFakeHotKeys::report(void (LMHotKeys::*signal)(const QString&), const LMShortcut& shortcut) {
    if (const QString identifier = holder(shortcut); !identifier.isNull())
        Q_EMIT(this->*signal)(identifier);
}
