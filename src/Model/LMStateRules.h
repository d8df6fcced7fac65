// SPDX-License-Identifier: MIT
#pragma once

#include "Model/LMStoredState.h"
#include "Platform/LMScreens.h"

#include <QList>
#include <QRectF>
#include <QStringList>

#include <optional>

struct LMEnvironment;

/// What of a stored state can be restored now, and what the user wants restored.
struct LMStateRules {
    LMWindowStateSupport support;
    QStringList desktopNames; ///< One per virtual desktop.
    QList<LMScreen> screens;
    bool restoresStates = true;
    bool restoresDesktops = true;
    bool restoresStackingOrder = true;

    static LMStateRules inForce(LMEnvironment& environment);
};

/// How a live window and a stored one compare.
struct LMStateComparison {
    LMWindowState wanted; ///< What the live window is to become.
    /// Frame, maximising and fullscreen are as stored: nothing of the frame needs to be set.
    bool isFrameRight = false;
    /// The frame to give the window while it is neither maximised nor fullscreen.
    QRectF normalFrame;
    /// What stays as it is although it was stored otherwise, because it cannot be had here: names
    /// of states, "desktop".
    QStringList notRestored;
};

/// The number of the desktop that the state names: the one of that name, else the one of that
/// number; none when there is neither.
std::optional<int> LMDesktopToRestore(const LMWindowState& stored, const QStringList& desktopNames);

/// Decides what becomes of a live window that stands in the state and at the frame. What is
/// switched off or not to be had stays as it is in the live window.
///
/// A maximised window is right where it fills the monitor it was stored on, however large panels
/// have left that, and where it returns to the frame it was stored with, if both are known.
LMStateComparison LMCompareState(const LMWindowState& live, const QRectF& liveFrame,
                                 const LMWindowState& stored, const QRectF& storedFrame,
                                 const LMStateRules& rules);

/// Equal but for what cannot be set: the desktop's name and the normal frame.
bool LMStatesAgree(const LMWindowState& a, const LMWindowState& b);
