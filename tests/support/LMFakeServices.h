// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/LMApplications.h"
#include "Platform/LMScreens.h"
#include "Platform/LMWindowServer.h"
#include "Platform/LMWindowStates.h"
#include "support/LMFakeAccessibility.h"

// The parts of the fake desktop that need no second interface. What they are given must outlive
// them.

std::unique_ptr<LMApplications> LMMakeFakeApplications(LMFakeWorld& world);
std::unique_ptr<LMScreens> LMMakeFakeScreens(LMFakeWorld& world);

/// The picture of a window is its number as a colour.
std::unique_ptr<LMWindowServer> LMMakeFakeWindowServer(LMFakeWorld& world);

std::unique_ptr<LMWindowStates> LMMakeFakeWindowStates(LMFakeWorld& world,
                                                       LMFakeAccessibility& accessibility);
