// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/X11/LMX11ScreensSnapshot.h"

#include <optional>

class LMX11Connection;

/// Asks RandR what is there, in two round trips. Without RandR 1.3 only the root window is filled
/// in. None when the connection is lost.
std::optional<LMX11ScreensSnapshot> LMX11ReadScreens(LMX11Connection& connection);
