// SPDX-License-Identifier: MIT
#include "UserInterface/LMDefaultsBinding.h"

#include "Utilities/LMUserDefaults.h"

#include <QCheckBox>
#include <QDoubleSpinBox>
#include <QSignalBlocker>

namespace {

/// Calls the function now and whenever the key changes, as long as the object lives.
void follow(QObject& object, LMUserDefaults& userDefaults, const QString& key,
            const LMUserDefaults::Observer& show) {
    show();
    QObject::connect(
        &object, &QObject::destroyed,
        [observation = userDefaults.addObserver(key, show)]() mutable { observation.reset(); });
}

} // namespace

void LMBindToDefaults(QCheckBox& checkBox, LMUserDefaults& userDefaults, const QString& key) {
    follow(checkBox, userDefaults, key,
           [&checkBox, &userDefaults, key] { checkBox.setChecked(userDefaults.boolForKey(key)); });
    QObject::connect(
        &checkBox, &QCheckBox::clicked, &checkBox,
        [&userDefaults, key](bool isChecked) { userDefaults.setObject(key, isChecked); });
}

void LMBindToDefaults(QDoubleSpinBox& spinBox, LMUserDefaults& userDefaults, const QString& key) {
    spinBox.setKeyboardTracking(false);
    follow(spinBox, userDefaults, key, [&spinBox, &userDefaults, key] {
        const QSignalBlocker blocker(spinBox);
        spinBox.setValue(userDefaults.doubleForKey(key));
    });
    QObject::connect(&spinBox, &QDoubleSpinBox::valueChanged, &spinBox,
                     [&userDefaults, key](double value) { userDefaults.setObject(key, value); });
}
