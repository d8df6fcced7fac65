// SPDX-License-Identifier: MIT
#include "Controller/LMHotKeyDefaults.h"

#include "Platform/LMShortcut.h"
#include "Utilities/LMDefaultsValue.h"
#include "Utilities/LMUserDefaults.h"
#include "Utilities/LMUserDefaultsKeys.h"

#include <cmath>
#include <limits>

namespace {

/// Settings files hold numbers as text. Nothing for what is no whole number that a key code or
/// flags can be.
std::optional<int> wholeNumber(const QVariant& value) {
    const double number = LMDefaultsValue::toDouble(value).value_or(-1);
    if (number < 0 || number > std::numeric_limits<int>::max() || number != std::floor(number))
        return std::nullopt;
    return static_cast<int>(number);
}

std::optional<LMShortcut> shortcutFromOldValues(const QVariant& keyCode,
                                                const QVariant& modifierFlags) {
    const std::optional<int> code = wholeNumber(keyCode);
    const std::optional<int> flags = wholeNumber(modifierFlags);
    if (!code || !flags)
        return std::nullopt;
    return LMShortcut::shortcutWithKeyCode(
        *code, LMHotKeyDefaults::convertedModifierFlags(static_cast<quint64>(*flags)));
}

} // namespace

QList<QLatin1String> LMHotKeyDefaults::keys() {
    using namespace LMUserDefaultsKeys;
    return {RestoreAllWindowsHotKey,
            RestoreActiveApplicationWindowsHotKey,
            StoreActiveApplicationWindowsHotKey,
            StoreActiveWindowHotKey,
            LinkActiveWindowHotKey,
            StoreAllWindowsHotKey,
            ShowMenuHotKey};
}

quint64 LMHotKeyDefaults::convertedModifierFlags(quint64 oldFlags) {
    constexpr std::pair<quint64, quint64> conversions[] = {{0x100, LMModifier::Command},
                                                           {0x200, LMModifier::Shift},
                                                           {0x800, LMModifier::Option},
                                                           {0x1000, LMModifier::Control}};
    quint64 flags = 0;
    for (const auto& [oldFlag, newFlag] : conversions) {
        if ((oldFlags & oldFlag) != 0)
            flags |= newFlag;
    }
    return flags;
}

void LMHotKeyDefaults::updateOldHotKeyDefaults(LMUserDefaults& userDefaults) {
    for (const QLatin1String key : keys()) {
        const auto old = LMDefaultsValue::toDictionary(userDefaults.objectForKey(key));
        if (!old)
            continue;
        const QVariant keyCode = old->value(QStringLiteral("keyCode"));
        const QVariant modifierFlags = old->value(QStringLiteral("modifierFlags"));
        if (keyCode.isNull() || modifierFlags.isNull())
            continue;
        if (const auto shortcut = shortcutFromOldValues(keyCode, modifierFlags))
            userDefaults.setObject(key, shortcut->data());
        else
            userDefaults.removeObject(key);
    }
}
