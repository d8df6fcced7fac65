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
};

/// Requests that bring windows into an order, to be made one after the other.
struct LMX11Restacking {
    QList<xcb_window_t> lowered; ///< Each to the bottom of its layer.
    /// Then each onto the one before it, the first onto the window that stays. Managers that take
    /// each to the top of its layer instead get the same order.
    QList<xcb_window_t> raised;

    bool isEmpty() const { return lowered.isEmpty() && raised.isEmpty(); }
    qsizetype size() const { return lowered.size() + raised.size(); }
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
