// SPDX-License-Identifier: MIT
#pragma once

#include <xcb/xcb.h>

/// The atoms that the EWMH library does not intern: ICCCM, Motif, and toolkit conventions.
/// All are interned in one round trip when the connection is made.
struct LMX11Atoms {
    xcb_atom_t utf8String = XCB_ATOM_NONE;   ///< "UTF8_STRING"
    xcb_atom_t compoundText = XCB_ATOM_NONE; ///< "COMPOUND_TEXT"
    xcb_atom_t edid = XCB_ATOM_NONE;         ///< "EDID", a RandR output property
    xcb_atom_t timestamp = XCB_ATOM_NONE;    ///< "_ROOK_TIMESTAMP", see LMX11Connection::serverTime

    // ICCCM 2.8 and 4.1
    xcb_atom_t manager = XCB_ATOM_NONE;        ///< "MANAGER"
    xcb_atom_t wmState = XCB_ATOM_NONE;        ///< "WM_STATE"
    xcb_atom_t wmChangeState = XCB_ATOM_NONE;  ///< "WM_CHANGE_STATE"
    xcb_atom_t wmProtocols = XCB_ATOM_NONE;    ///< "WM_PROTOCOLS"
    xcb_atom_t wmDeleteWindow = XCB_ATOM_NONE; ///< "WM_DELETE_WINDOW"
    xcb_atom_t wmWindowRole = XCB_ATOM_NONE;   ///< "WM_WINDOW_ROLE"
    xcb_atom_t wmClientLeader = XCB_ATOM_NONE; ///< "WM_CLIENT_LEADER"

    // Conventions of window managers and toolkits
    xcb_atom_t motifWmHints = XCB_ATOM_NONE;          ///< "_MOTIF_WM_HINTS"
    xcb_atom_t gtkFrameExtents = XCB_ATOM_NONE;       ///< "_GTK_FRAME_EXTENTS"
    xcb_atom_t gtkWorkareas = XCB_ATOM_NONE;          ///< "_GTK_WORKAREAS_D0"
    xcb_atom_t gtkWorkareasSupport = XCB_ATOM_NONE;   ///< "_GTK_WORKAREAS", in _NET_SUPPORTED
    xcb_atom_t gtkApplicationId = XCB_ATOM_NONE;      ///< "_GTK_APPLICATION_ID"
    xcb_atom_t kdeDesktopFile = XCB_ATOM_NONE;        ///< "_KDE_NET_WM_DESKTOP_FILE"
    xcb_atom_t kdeWindowTypeOverride = XCB_ATOM_NONE; ///< "_KDE_NET_WM_WINDOW_TYPE_OVERRIDE"
    xcb_atom_t bamfDesktopFile = XCB_ATOM_NONE;       ///< "_BAMF_DESKTOP_FILE"
    xcb_atom_t netWmStateFocused = XCB_ATOM_NONE;     ///< "_NET_WM_STATE_FOCUSED"
};

/// Interns all of them with one round trip. An atom the server refuses stays XCB_ATOM_NONE.
LMX11Atoms LMInternX11Atoms(xcb_connection_t* connection);
