// SPDX-License-Identifier: MIT
#pragma once

#include "Model/LMStoredState.h"

#include <QString>

/// How a stored window stands, for people: "Maximized, on desktop 2 “Mail”". Desktops count from 1;
/// names that only tell the number ("Workspace 2") are left out. "Frame only" where no state is
/// remembered, empty for a window that stands as any other and on no desktop.
QString LMTextOfState(const std::optional<LMStoredState>& state);

/// "Desktop 2 “Mail”", without quotation marks where it has no name; number counts from 0.
QString LMTextOfDesktop(int number, const QString& name);
