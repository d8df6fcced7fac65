// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/LMWindowServer.h"
#include "Platform/X11/LMX11WindowReader.h"

#include <xcb/xcb.h>

class LMX11ApplicationIndex;

/// The managed windows of the X server. A window's number is the identifier of the client's window.
/// Windows that no manager manages (menus, tool tips) are not listed.
class LMX11WindowServer final : public LMWindowServer {
public:
    /// Layers: what the manager keeps above other windows, and tools, float over the rest.
    static constexpr int normalLayer = 0;
    static constexpr int floatingLayer = 3;

    /// Both must outlive it.
    LMX11WindowServer(LMX11Connection& connection, LMX11ApplicationIndex& index);

    QList<LMWindowDescription> onScreenWindowDescriptions() override;

    /// Under a compositing manager the whole window, else what is visible at its place.
    QImage imageOfWindow(quint32 number) override;

    /// Has the server draw all windows aside and show them as before; nothing more than what it
    /// does anyway under a compositing manager.
    LMKeptPictures keepPictures() override;

private:
    bool canKeepPictures() const;
    quint32 currentDesktop();
    xcb_window_t topLevelOf(xcb_window_t window);
    QImage redirectedImage(const LMX11Window& window);
    QImage visibleImage(const LMX11Window& window);

    LMX11Connection& m_connection;
    LMX11ApplicationIndex& m_index;
    LMX11WindowReader m_reader;
};
