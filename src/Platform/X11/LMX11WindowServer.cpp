// SPDX-License-Identifier: MIT
#include "Platform/X11/LMX11WindowServer.h"

#include "Platform/X11/LMX11ApplicationIndex.h"
#include "Platform/X11/LMX11Connection.h"
#include "Platform/X11/LMX11Image.h"
#include "Platform/X11/LMX11Properties.h"

#include <xcb/composite.h>

namespace {

bool isOnDesktop(const LMX11Window& window, quint32 desktop) {
    return window.desktop.value_or(0) == desktop || window.isOnAllDesktops();
}

bool isOnScreen(const LMX11Window& window, quint32 desktop) {
    return window.exists && !window.states.isMinimized && isOnDesktop(window, desktop) &&
           window.structure.type != LMX11WindowType::Desktop &&
           window.structure.type != LMX11WindowType::Dock;
}

int layerOf(const LMX11Window& window) {
    const bool floats = window.states.isAbove ||
                        window.structure.type == LMX11WindowType::Utility ||
                        window.structure.type == LMX11WindowType::Toolbar;
    return floats ? LMX11WindowServer::floatingLayer : LMX11WindowServer::normalLayer;
}

} // namespace

LMX11WindowServer::LMX11WindowServer(LMX11Connection& connection, LMX11ApplicationIndex& index)
    : m_connection(connection), m_index(index), m_reader(connection) {}

QList<LMWindowDescription> LMX11WindowServer::onScreenWindowDescriptions() {
    m_index.refresh();
    const quint32 desktop = currentDesktop();
    const LMX11Reading reading = m_reader.read(m_index.stackingOrder());
    QList<LMWindowDescription> descriptions;
    for (const LMX11Window& window : reading.windows) {
        if (!isOnScreen(window, desktop))
            continue;
        const LMX11Application* owner = m_index.applicationOfWindow(window.identifier);
        descriptions.append({owner != nullptr ? owner->processIdentifier : 0,
                             reading.globalFrame(window), window.identifier, layerOf(window)});
    }
    return descriptions;
}

quint32 LMX11WindowServer::currentDesktop() {
    const LMX11PropertyRequest request(m_connection, m_connection.root(),
                                       m_connection.ewmhAtoms()._NET_CURRENT_DESKTOP);
    return request.receive(m_connection).firstWord().value_or(0);
}

QImage LMX11WindowServer::imageOfWindow(quint32 number) {
    const quint32 desktop = currentDesktop();
    const LMX11Window window = m_reader.readFrames({number}).windows.first();
    if (!window.exists || window.states.isMinimized || !isOnDesktop(window, desktop))
        return {};
    const QImage image = redirectedImage(window);
    return image.isNull() ? visibleImage(window) : image;
}

xcb_window_t LMX11WindowServer::topLevelOf(xcb_window_t window) {
    while (true) {
        const auto tree =
            m_connection.reply(xcb_query_tree_reply, xcb_query_tree(m_connection.xcb(), window));
        if (!tree || tree->parent == tree->root || tree->parent == XCB_WINDOW_NONE)
            return window;
        window = tree->parent;
    }
}

bool LMX11WindowServer::canKeepPictures() const {
    return m_connection.composite() && m_connection.composite()->isAtLeast(0, 2);
}

LMKeptPictures LMX11WindowServer::keepPictures() {
    if (!canKeepPictures())
        return {};
    constexpr auto ShownByServer = XCB_COMPOSITE_REDIRECT_AUTOMATIC;
    xcb_composite_redirect_subwindows(m_connection.xcb(), m_connection.root(), ShownByServer);
    m_connection.flush();
    return {&m_connection, [](LMX11Connection* connection) {
                xcb_composite_unredirect_subwindows(connection->xcb(), connection->root(),
                                                    ShownByServer);
                connection->flush();
            }};
}

/// The server keeps the whole content of a window that is redirected, and only of such a one.
QImage LMX11WindowServer::redirectedImage(const LMX11Window& window) {
    if (!canKeepPictures())
        return {};
    xcb_connection_t* xcb = m_connection.xcb();
    const xcb_window_t topLevel = topLevelOf(window.identifier);
    const xcb_pixmap_t pixmap = xcb_generate_id(xcb);
    const auto naming = xcb_composite_name_window_pixmap_checked(xcb, topLevel, pixmap);
    const auto geometryCookie = xcb_get_geometry(xcb, topLevel);
    const bool isRedirected = m_connection.check(naming) == nullptr;
    const auto geometry = m_connection.reply(xcb_get_geometry_reply, geometryCookie);
    if (!isRedirected)
        return {};
    QImage image;
    if (geometry) {
        const QRect content(geometry->x, geometry->y, geometry->width + 2 * geometry->border_width,
                            geometry->height + 2 * geometry->border_width);
        const QRect visible = window.geometry.frame().intersected(content);
        image = LMX11GrabImage(m_connection, pixmap, visible.translated(-content.topLeft()));
    }
    xcb_free_pixmap(xcb, pixmap);
    return image;
}

QImage LMX11WindowServer::visibleImage(const LMX11Window& window) {
    const auto root = m_connection.reply(xcb_get_geometry_reply,
                                         xcb_get_geometry(m_connection.xcb(), m_connection.root()));
    if (!root)
        return {};
    const QRect screen(0, 0, root->width, root->height);
    return LMX11GrabImage(m_connection, m_connection.root(),
                          window.geometry.frame().intersected(screen));
}
