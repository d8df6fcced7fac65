// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

struct LMEnvironment;

/// Gives an application that was activated, shown or is to be hidden the time to follow: blocks for
/// the floating-window activation delay, at most a minute.
void LMSleepActivationDelay(LMEnvironment& environment);

/// Activates the application and gives it the time to come up.
void LMActivateAndWait(LMEnvironment& environment, qint64 processIdentifier);

/// Gives the application time, then hides it.
void LMWaitAndHide(LMEnvironment& environment, qint64 processIdentifier);
