// SPDX-License-Identifier: MIT
#include "Model/LMApplicationActivation.h"

#include "Categories/LMWorkspaceAdditions.h"
#include "Model/LMApplication.h"
#include "Platform/LMClock.h"
#include "Platform/LMDesktop.h"
#include "Platform/LMEnvironment.h"

#include <algorithm>

void LMSleepActivationDelay(LMEnvironment& environment) {
    constexpr double longest = 60e6; // A slip in the settings file must not stop the program.
    const double delay = LMApplication::floatingWindowActivationDelay(environment);
    environment.clock.sleep(
        std::chrono::microseconds(static_cast<qint64>(std::clamp(delay, 0.0, longest))));
}

void LMActivateAndWait(LMEnvironment& environment, qint64 processIdentifier) {
    environment.desktop.applications().activate(processIdentifier);
    LMSleepActivationDelay(environment);
}

void LMReactivate(LMEnvironment& environment,
                  const std::optional<LMRunningApplication>& application) {
    if (!application)
        return;
    const auto active = LMWorkspaceAdditions(environment).runningApplication();
    if (!active || active->bundleIdentifier != application->bundleIdentifier)
        environment.desktop.applications().activate(application->processIdentifier);
}

void LMWaitAndHide(LMEnvironment& environment, qint64 processIdentifier) {
    LMSleepActivationDelay(environment);
    environment.desktop.applications().hide(processIdentifier);
}
