// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/LMWindowStates.h"
#include "Platform/X11/LMX11Window.h"

/// What is read of a window in the contract's words, without its normal frame. One name per virtual
/// desktop.
LMWindowState LMX11StateOfWindow(const LMX11Window& window, const QStringList& desktopNames);

/// What of the wanted state can come true; the rest is as at present. A window that leaves all
/// desktops for none that exists goes to the current one.
LMWindowState LMX11PossibleState(const LMWindowState& wanted, const LMWindowState& present,
                                 const LMWindowStateSupport& support,
                                 const QStringList& desktopNames, int currentDesktop);
