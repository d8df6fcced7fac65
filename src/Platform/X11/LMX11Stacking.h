// SPDX-License-Identifier: MIT
#pragma once

#include <QList>

#include <optional>
#include <xcb/xcb.h>

/// A window in the pile.
struct LMX11StackedWindow {
    xcb_window_t window = XCB_WINDOW_NONE;
    int layer = 0;                  ///< Windows of different layers never change places.
    std::optional<quint32> desktop; ///< Absent: on all of them.
    bool isFullscreen = false;      ///< Managers keep it in a layer of its own at times.
};

/// Requests that bring windows into an order, to be made one after the other.
struct LMX11Restacking {
    QList<xcb_window_t> lowered; ///< Each to the bottom of its layer.
    /// Then each onto the one before it, the first onto the window that stays. Managers that take
    /// each to the top of its layer instead get the same order.
    QList<xcb_window_t> raised;
    /// All windows of the pile as they are to lie, front to back. Empty when nothing is to be done.
    QList<xcb_window_t> order;

    bool isEmpty() const { return lowered.isEmpty() && raised.isEmpty(); }
};

/// How windows come to stand in the wanted order on every virtual desktop: by nothing when they do
/// so already. How windows lie above others that are never seen together with them does not matter,
/// and managers differ about it. Windows are raised only if one that stays, and which therefore
/// is not in either list, would have to be lowered.
///
/// The pile and the wanted ones are given front to back. Wanted windows that are not in the pile
/// are passed over, and windows of the pile that nobody wants keep their places in it.
LMX11Restacking LMX11PlanRestacking(const QList<LMX11StackedWindow>& pile,
                                    const QList<xcb_window_t>& wanted,
                                    xcb_window_t staying = XCB_WINDOW_NONE);

/// The same for managers that lower and raise a window among those of its desktop alone, and one of
/// all desktops among those of the current one. These are to be raised first, then lowered. Empty
/// unless desktops out of sight, and only these, are out of order; what a fullscreen window does
/// there is not taken to heart.
///
/// A window of all desktops gets as low as the lowest one of the current desktop. Hence one of
/// these, if there is any, is kept below everything as long as its own turn has not come.
LMX11Restacking LMX11PlanRestackingByDesktop(const QList<LMX11StackedWindow>& pile,
                                             const QList<xcb_window_t>& wanted,
                                             quint32 currentDesktop);
