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

/// Which windows are to be lowered to the bottom of their layers, one after the other, so that they
/// stand in the wanted order on every virtual desktop: none when they do so already. How windows
/// lie above others that are never seen together with them does not matter, and managers differ
/// about it.
///
/// Front to back. Wanted windows that are not in the pile are passed over, and windows of the pile
/// that nobody wants keep their places in it.
QList<xcb_window_t> LMX11WindowsToLower(const QList<LMX11StackedWindow>& pile,
                                        const QList<xcb_window_t>& wanted);
