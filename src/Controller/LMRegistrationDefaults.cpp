// SPDX-License-Identifier: MIT
#include "Controller/LMRegistrationDefaults.h"

#include "Utilities/LMLogger.h"
#include "Utilities/LMPropertyList.h"
#include "Utilities/LMUserDefaults.h"

void LMRegisterDefaults(LMUserDefaults& userDefaults, const LMLogger& logger) {
    QString error;
    const auto defaults =
        LMPropertyListFromFile(QStringLiteral(":/rook/RegistrationDefaults.plist"), &error);
    if (!defaults)
        logger.error(QStringLiteral("Registered defaults not read: %@"), {error});
    else
        userDefaults.registerDefaults(defaults->toMap());
}
