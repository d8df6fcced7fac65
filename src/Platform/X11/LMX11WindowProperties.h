// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/X11/LMX11Properties.h"
#include "Platform/X11/LMX11Window.h"

#include <xcb/xcb_ewmh.h>

/// The first type that we know of those the client lists in order of preference
/// (_NET_WM_WINDOW_TYPE). A window without types is a dialog when it is transient for another, else
/// a normal window (EWMH).
LMX11WindowType LMX11ReadWindowType(const LMX11Property& types, bool isTransient,
                                    const xcb_ewmh_connection_t& atoms);

/// _NET_WM_STATE as flags.
LMX11StateFlags LMX11ReadWindowStates(const LMX11Property& property,
                                      const xcb_ewmh_connection_t& atoms);
