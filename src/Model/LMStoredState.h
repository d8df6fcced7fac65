// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/LMWindowStates.h"

#include <QString>
#include <QStringList>

#include <optional>

/// How a window stood when it was read or stored: what is remembered of it besides its frame.
struct LMStoredState {
    LMWindowState window;
    /// Its place among the windows of all applications, 0 is the front. Absent when they were not
    /// looked at together.
    std::optional<int> stackingPosition;

    bool operator==(const LMStoredState&) const = default;
};

/// The stable names of the states that hold: "maximized" (or "maximizedHorizontally",
/// "maximizedVertically"), "fullscreen", "minimized", "shaded", "above", "below", "allDesktops".
QStringList LMStateNames(const LMWindowState& state);

/// The text in which it is kept, a JSON object: "states" (the names), "desktop" (from 0),
/// "desktopName", "normalFrame" (text of a rectangle), "stackingPosition"; what is absent is left
/// out.
QString LMStringFromState(const LMStoredState& state);

/// Reads the text; none for an absent text and for one that is no JSON object. What it does not
/// know in the object is passed over.
std::optional<LMStoredState> LMStateFromString(const QString& text);
