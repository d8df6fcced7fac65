// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/LMPlatformTypes.h"

#include <QStringList>

#include <optional>

/// How a window stands, besides its frame. The words are those of EWMH's _NET_WM_STATE.
struct LMWindowState {
    bool isMaximizedHorizontally = false;
    bool isMaximizedVertically = false;
    bool isFullscreen = false;
    bool isMinimized = false; ///< Not told of a shaded window.
    bool isShaded = false;
    bool isKeptAbove = false;
    bool isKeptBelow = false;
    bool isOnAllDesktops = false;
    /// The virtual desktop, counted from 0. Absent on all desktops, and where there are none.
    std::optional<int> desktop{};
    QString desktopName{}; ///< Empty where desktops have no names.
    /// The frame that a maximised or fullscreen window returns to, global pixels like a frame.
    /// Absent for other windows, and where nobody knows it: no standard tells. That of a window
    /// taken to another monitor since is expected there.
    std::optional<QRectF> normalFrame{};

    bool isMaximized() const { return isMaximizedHorizontally || isMaximizedVertically; }
    bool operator==(const LMWindowState&) const = default;
};

/// A state for a window.
struct LMWindowStateChange {
    LMElement window;
    LMWindowState state;
    /// Where LMAccessibility will be asked to put a window that is to be neither maximised nor
    /// fullscreen. A back end that maximises windows for the sake of certain frames there brings
    /// the window to such a frame here; to others it pays no attention.
    std::optional<QRectF> frame{};
};

/// What the window manager in force can do with windows.
struct LMWindowStateSupport {
    bool maximized = false; ///< Both directions, each by itself.
    bool fullscreen = false;
    bool minimized = false;
    bool shaded = false;
    bool above = false;
    bool below = false;
    bool desktops = false; ///< There are virtual desktops, and windows can be sent to them.
    bool stackingOrder = false;

    bool operator==(const LMWindowStateSupport&) const = default;
};

/// Reads and changes how windows stand: maximised, minimised, pinned, on which virtual desktop, and
/// in which order above each other.
///
/// Bounded in time like LMAccessibility. Nothing here changes the current virtual desktop or the
/// focused window in the user's eyes, nor shows a window of another desktop or a minimised one for
/// a moment.
class LMWindowStates {
public:
    virtual ~LMWindowStates() = default;

    /// Asked afresh on every call: a window manager may come and go.
    virtual LMWindowStateSupport windowStateSupport() = 0;

    /// One name per virtual desktop, in their order, empty names included; an empty list where
    /// there are no virtual desktops.
    virtual QStringList desktopNames() = 0;

    /// Answered from memory within a reading scope of the accessibility contract.
    virtual LMPlatformResult<LMWindowState> stateOfWindow(const LMElement& window) = 0;

    /// Asks for all changes at once, waits for them together and answers one status per change.
    /// Returns when each is visible to the next read, or when the deadline of a single window has
    /// passed without an answer. Success says that the manager has answered, not that the window
    /// took the state: a fixed size cannot be maximised; read it back. What is as wanted already is
    /// not asked for again. What the manager in force does not support is left out; a desktop that
    /// does not exist is no change of desktop. normalFrame and desktopName are not set: send a
    /// window to the frame between two changes of state, and choose the desktop's number by its
    /// name.
    virtual QList<LMPlatformStatus> setStates(const QList<LMWindowStateChange>& changes) = 0;

    /// All windows of all applications that LMAccessibility would list, minimised ones and those of
    /// other virtual desktops included, front to back.
    virtual QList<LMElement> stackingOrder() = 0;

    /// Puts the windows above each other in that order, front to back, and leaves all others where
    /// they are relative to the whole as far as possible. Within its layer only: a window kept
    /// above stays above. Windows that are gone are passed over.
    virtual LMPlatformStatus setStackingOrder(const QList<LMElement>& frontToBack) = 0;
};
