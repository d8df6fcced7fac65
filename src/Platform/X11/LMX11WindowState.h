// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/LMWindowStates.h"
#include "Platform/X11/LMX11Window.h"

/// What is read of a window in the contract's words, without its normal frame. One name per virtual
/// desktop.
LMWindowState LMX11StateOfWindow(const LMX11Window& window, const QStringList& desktopNames);
