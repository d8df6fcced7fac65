// SPDX-License-Identifier: MIT
#pragma once

#include <QLatin1String>
#include <QList>
#include <QtGlobal>

class LMUserDefaults;

/// The user defaults that hold hot keys.
namespace LMHotKeyDefaults {

/// Their keys, in the order in which they are shown and converted.
QList<QLatin1String> keys();

/// Old-style modifier flags (command 0x100, shift 0x200, option 0x800, control 0x1000) in the new
/// style, see LMModifier. All other bits are dropped.
quint64 convertedModifierFlags(quint64 oldFlags);

/// Turns hot keys that older versions kept as dictionaries of "keyCode" and old-style
/// "modifierFlags" into archived shortcuts. What no shortcut can be made of is removed; a
/// dictionary that lacks one of the two, and values of any other type, stay as they are.
void updateOldHotKeyDefaults(LMUserDefaults& userDefaults);

} // namespace LMHotKeyDefaults
