// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/X11/LMX11ScreensSnapshot.h"

class LMX11Connection;

/// Asks for what docks and panels leave free, in one round trip; for their own reservations, which
/// only several displays need, in a second one.
LMX11WorkAreas LMX11ReadWorkAreas(LMX11Connection& connection, bool hasSeveralDisplays);
