// SPDX-License-Identifier: MIT
#include "Platform/X11/LMX11FrameRequest.h"

#include "Platform/X11/LMX11Connection.h"
#include "Platform/X11/LMX11WindowProperties.h"

#include <algorithm>
#include <optional>

namespace {

/// Left, right, top, bottom: the order of both the standard's and GTK's extents. Absurd values are
/// cut, so that sums of them stay within range.
std::optional<QMargins> readExtents(const LMX11Property& property) {
    const auto words = property.words();
    if (words.size() < 4)
        return std::nullopt;
    const auto pixels = [&](size_t index) { return int(std::min(words[index], 0x7fffu)); };
    return QMargins(pixels(0), pixels(2), pixels(1), pixels(3));
}

/// Marco leaves the lower border of a shaded window out of account, so that the window would seem
/// to change its size when it is shaded. The side borders are as wide.
void restoreLowerBorder(QMargins& decorations) {
    if (decorations.bottom() == 0)
        decorations.setBottom(decorations.left());
}

} // namespace

LMX11FrameRequest::LMX11FrameRequest(LMX11Connection& connection, xcb_window_t window)
    : m_geometry(xcb_get_geometry(connection.xcb(), window)),
      m_origin(xcb_translate_coordinates(connection.xcb(), window, connection.root(), 0, 0)),
      m_frameExtents(connection, window, connection.ewmhAtoms()._NET_FRAME_EXTENTS),
      m_shadow(connection, window, connection.atoms().gtkFrameExtents),
      m_states(connection, window, connection.ewmhAtoms()._NET_WM_STATE),
      m_desktop(connection, window, connection.ewmhAtoms()._NET_WM_DESKTOP) {}

bool LMX11FrameRequest::receive(LMX11Connection& connection, LMX11Window& window) const {
    const auto geometry = connection.reply(xcb_get_geometry_reply, m_geometry);
    const auto origin = connection.reply(xcb_translate_coordinates_reply, m_origin);
    const auto decorations = readExtents(m_frameExtents.receive(connection));
    const LMX11Property shadow = m_shadow.receive(connection);
    window.states = LMX11ReadWindowStates(m_states.receive(connection), connection.ewmhAtoms());
    window.desktop = m_desktop.receive(connection).firstWord();
    window.exists = geometry && origin;
    if (!window.exists)
        return true;
    window.geometry.client = QRect(origin->dst_x, origin->dst_y, geometry->width, geometry->height);
    window.geometry.decorations = decorations.value_or(QMargins());
    if (window.states.isShaded)
        restoreLowerBorder(window.geometry.decorations);
    window.geometry.shadow = readExtents(shadow).value_or(QMargins());
    window.hasShadowProperty = shadow.exists();
    return decorations.has_value();
}
