// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/LMApplications.h"

#include <optional>

struct LMEnvironment;

/// Gives an application that was activated, shown or is to be hidden the time to follow: blocks for
/// the floating-window activation delay, at most a minute.
void LMSleepActivationDelay(LMEnvironment& environment);

/// Activates the application and gives it the time to come up.
void LMActivateAndWait(LMEnvironment& environment, qint64 processIdentifier);

/// Makes the application active again that was so before; nothing where it is, or where there was
/// none.
void LMReactivate(LMEnvironment& environment,
                  const std::optional<LMRunningApplication>& application);

/// Gives the application time, then hides it.
void LMWaitAndHide(LMEnvironment& environment, qint64 processIdentifier);
