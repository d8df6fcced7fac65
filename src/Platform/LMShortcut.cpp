// SPDX-License-Identifier: MIT
#include "Platform/LMShortcut.h"

#include "Platform/LMKeyTable.h"
#include "Utilities/LMBinaryRecord.h"
#include "Utilities/LMFormat.h"

#include <QStringList>

#include <limits>

namespace {

constexpr int firstKeysymCode = 128;
constexpr quint32 unicodeOffset = 0x01000000;
constexpr quint64 commandingModifiers =
    LMModifier::Command | LMModifier::Option | LMModifier::Control;
constexpr quint64 allModifiers = commandingModifiers | LMModifier::Shift;

constexpr QLatin1String keyCodeField("keyCode");
constexpr QLatin1String modifierFlagsField("modifierFlags");

} // namespace

std::optional<LMShortcut> LMShortcut::shortcutWithKeyCode(int keyCode, quint64 modifierFlags) {
    if (keyCode >= firstKeysymCode)
        return shortcutWithKeysym(static_cast<quint32>(keyCode), modifierFlags);
    const std::optional<quint32> keysym = LMKeyTable::keysymForVirtualKeyCode(keyCode);
    return keysym ? shortcutWithKeysym(*keysym, modifierFlags) : std::nullopt;
}

std::optional<LMShortcut> LMShortcut::shortcutWithKeysym(quint32 keysym, quint64 modifierFlags) {
    keysym = LMKeyTable::canonicalKeysym(keysym);
    if (!LMKeyTable::isKey(keysym) ||
        ((modifierFlags & commandingModifiers) == 0 && !LMKeyTable::isFunctionKey(keysym)))
        return std::nullopt;
    const auto code = keysym < firstKeysymCode ? unicodeOffset + keysym : keysym;
    return LMShortcut(LMKeyTable::virtualKeyCodeForKeysym(keysym).value_or(static_cast<int>(code)),
                      static_cast<quint32>(modifierFlags & allModifiers));
}

quint32 LMShortcut::keysym() const {
    return LMKeyTable::keysymForVirtualKeyCode(m_keyCode).value_or(
        LMKeyTable::canonicalKeysym(static_cast<quint32>(m_keyCode)));
}

QByteArray LMShortcut::data() const {
    return LMArchivedRecord(
        {{keyCodeField, static_cast<quint64>(m_keyCode)}, {modifierFlagsField, m_modifierFlags}});
}

std::optional<LMShortcut> LMShortcut::fromData(const QByteArray& data) {
    const std::optional<LMBinaryRecord> record = LMUnarchivedRecord(data);
    if (!record || !record->contains(keyCodeField) || !record->contains(modifierFlagsField))
        return std::nullopt;
    const quint64 keyCode = record->value(keyCodeField);
    if (keyCode > static_cast<quint64>(std::numeric_limits<int>::max()))
        return std::nullopt;
    return shortcutWithKeyCode(static_cast<int>(keyCode), record->value(modifierFlagsField));
}

QString LMShortcut::description() const {
    QStringList parts{LMKeyTable::name(keysym())};
    if (m_modifierFlags != 0)
        parts.prepend(modifiersDescription(m_modifierFlags));
    return parts.join(QLatin1Char('+'));
}

QString LMShortcut::modifiersDescription(quint32 modifierFlags) {
    QStringList parts;
    if ((modifierFlags & LMModifier::Command) != 0)
        parts.append(LMLocalized("Super"));
    if ((modifierFlags & LMModifier::Control) != 0)
        parts.append(LMLocalized("Ctrl"));
    if ((modifierFlags & LMModifier::Option) != 0)
        parts.append(LMLocalized("Alt"));
    if ((modifierFlags & LMModifier::Shift) != 0)
        parts.append(LMLocalized("Shift"));
    return parts.join(QLatin1Char('+'));
}
