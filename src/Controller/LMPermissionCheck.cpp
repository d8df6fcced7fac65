// SPDX-License-Identifier: MIT
#include "Controller/LMPermissionCheck.h"

#include "Platform/LMDesktop.h"
#include "Platform/LMEnvironment.h"
#include "Utilities/LMLogger.h"

bool LMPermissionCheck::checkAccessibilityEnabled() {
    const LMPermission permission = m_environment.desktop.checkPermission();
    const QString missing = permission.missing.join(QLatin1Char(' '));
    if (missing != m_missing && !missing.isEmpty())
        m_environment.logger.warning(QStringLiteral("Windows cannot be moved: %@"), {missing});
    m_missing = missing;
    return permission.isTrusted;
}
