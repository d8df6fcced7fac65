// SPDX-License-Identifier: MIT
#pragma once

#include <QList>

#include <xcb/xcb.h>

class LMX11Connection;

/// The window manager's lists, as they were at one moment.
struct LMX11ManagerLists {
    QList<xcb_window_t> windows;       ///< In the order in which they were mapped.
    QList<xcb_window_t> stackingOrder; ///< Front to back.
    xcb_window_t activeWindow = XCB_WINDOW_NONE;
    uint32_t currentDesktop = 0; ///< The virtual desktop in view.

    bool operator==(const LMX11ManagerLists&) const = default;
};

/// One round trip.
LMX11ManagerLists LMX11ReadManagerLists(LMX11Connection& connection);
