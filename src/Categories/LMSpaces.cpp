// SPDX-License-Identifier: MIT
#include "Categories/LMSpaces.h"

#include "Platform/LMDesktop.h"
#include "Platform/LMEnvironment.h"
#include "Utilities/LMUserDefaults.h"
#include "Utilities/LMUserDefaultsKeys.h"

#include <algorithm>

namespace {

bool hasSeveralSpaces(const QStringList& spaces) {
    const auto counts = [](const QString& space) { return space != QLatin1String("dashboard"); };
    return std::count_if(spaces.begin(), spaces.end(), counts) > 1;
}

} // namespace

bool LMSpacesInUse(LMEnvironment& environment) {
    const LMUserDefaults& defaults = environment.userDefaults;
    if (defaults.boolForKey(LMUserDefaultsKeys::DisableSpacesSupport))
        return false;
    if (defaults.boolForKey(LMUserDefaultsKeys::EnableSpacesSupport))
        return true;
    const QList<QStringList> monitors = environment.desktop.screens().spacesByMonitor();
    return std::any_of(monitors.begin(), monitors.end(), hasSeveralSpaces);
}
