// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/LMWindowStates.h"

/// What of the wanted state can come true; the rest is as at present. A window that leaves all
/// virtual desktops for none that exists goes to the current one, and a minimised one is not
/// shaded as well.
LMWindowState LMPossibleWindowState(const LMWindowState& wanted, const LMWindowState& present,
                                    const LMWindowStateSupport& support, qsizetype desktopCount,
                                    int currentDesktop);
