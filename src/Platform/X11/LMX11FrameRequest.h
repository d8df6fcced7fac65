// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/X11/LMX11Properties.h"
#include "Platform/X11/LMX11Window.h"

/// The questions for one window's geometry, states and virtual desktop.
class LMX11FrameRequest {
public:
    LMX11FrameRequest(LMX11Connection& connection, xcb_window_t window);

    /// Waits for the answers. False when the manager says nothing of the decorations.
    bool receive(LMX11Connection& connection, LMX11Window& window) const;

private:
    xcb_get_geometry_cookie_t m_geometry;
    xcb_translate_coordinates_cookie_t m_origin;
    LMX11PropertyRequest m_frameExtents;
    LMX11PropertyRequest m_shadow;
    LMX11PropertyRequest m_states;
    LMX11PropertyRequest m_desktop;
};
