// SPDX-License-Identifier: MIT
#pragma once

class LMUserDefaults;
class QCheckBox;
class QDoubleSpinBox;
class QString;

// Ties a control to a key of the user defaults, both ways, for the life of the control: it shows
// what the key says, whoever changes it, and the user sets the key with it.

/// The box is ticked while the key is true.
void LMBindToDefaults(QCheckBox& checkBox, LMUserDefaults& userDefaults, const QString& key);

/// What is beyond the control's range stays as it is until the user changes it.
void LMBindToDefaults(QDoubleSpinBox& spinBox, LMUserDefaults& userDefaults, const QString& key);
