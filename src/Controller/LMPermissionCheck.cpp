// SPDX-License-Identifier: MIT
#include "Controller/LMPermissionCheck.h"

#include "Controller/LMUserInterface.h"
#include "Platform/LMDesktop.h"
#include "Platform/LMEnvironment.h"
#include "Utilities/LMLogger.h"

#include <utility>

bool LMPermissionCheck::checkAccessibilityEnabled() {
    const LMPermission permission = m_environment.desktop.checkPermission();
    const QString missing = permission.missing.join(QLatin1Char(' '));
    if (missing != std::exchange(m_missing, missing)) {
        if (!missing.isEmpty())
            m_environment.logger.warning(QStringLiteral("Windows cannot be moved: %@"), {missing});
        m_userInterface.showPermissionPrompt(missing);
    }
    return permission.isTrusted;
}
