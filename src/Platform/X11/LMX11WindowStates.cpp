// SPDX-License-Identifier: MIT
#include "Platform/X11/LMX11WindowStates.h"

#include "Platform/X11/LMX11Accessibility.h"
#include "Platform/X11/LMX11ApplicationIndex.h"
#include "Platform/X11/LMX11DesktopsRequest.h"
#include "Platform/X11/LMX11WindowManager.h"

namespace {

LMWindowState stateOf(const LMX11Window& window, const QStringList& desktopNames) {
    LMWindowState state;
    state.isMaximizedHorizontally = window.states.isMaximizedHorizontally;
    state.isMaximizedVertically = window.states.isMaximizedVertically;
    state.isFullscreen = window.states.isFullscreen;
    state.isMinimized = window.states.isMinimized;
    state.isShaded = window.states.isShaded;
    state.isKeptAbove = window.states.isAbove;
    state.isKeptBelow = window.states.isBelow;
    state.isOnAllDesktops = window.isOnAllDesktops();
    if (window.desktop && !state.isOnAllDesktops &&
        *window.desktop < quint32(desktopNames.size())) {
        state.desktop = int(*window.desktop);
        state.desktopName = desktopNames[*state.desktop];
    }
    return state;
}

} // namespace

LMX11WindowStates::LMX11WindowStates(LMX11Connection& connection, LMX11ApplicationIndex& index,
                                     LMX11WindowManager& windowManager,
                                     LMX11Accessibility& accessibility)
    : m_connection(connection), m_index(index), m_windowManager(windowManager),
      m_accessibility(accessibility) {}

LMWindowStateSupport LMX11WindowStates::windowStateSupport() {
    const xcb_ewmh_connection_t& atoms = m_connection.ewmhAtoms();
    const LMX11PropertyRequest request(m_connection, m_connection.root(), atoms._NET_SUPPORTED);
    const bool hasDesktops = !desktopNames().isEmpty();
    const LMX11Property supported = request.receive(m_connection);
    const auto has = [&](xcb_atom_t atom) { return supported.containsWord(atom); };
    if (!m_windowManager.isRunning())
        return {};
    return {has(atoms._NET_WM_STATE_MAXIMIZED_HORZ) && has(atoms._NET_WM_STATE_MAXIMIZED_VERT),
            has(atoms._NET_WM_STATE_FULLSCREEN),
            has(atoms._NET_WM_STATE_HIDDEN),
            has(atoms._NET_WM_STATE_SHADED),
            has(atoms._NET_WM_STATE_ABOVE),
            has(atoms._NET_WM_STATE_BELOW),
            has(atoms._NET_WM_DESKTOP) && hasDesktops,
            has(atoms._NET_RESTACK_WINDOW)};
}

QStringList LMX11WindowStates::desktopNames() {
    return LMX11DesktopsRequest(m_connection).receive(m_connection);
}

LMPlatformResult<LMWindowState> LMX11WindowStates::stateOfWindow(const LMElement& element) {
    using Result = LMPlatformResult<LMWindowState>;
    if (element.kind != LMElement::Kind::Window)
        return Result::failure(LMPlatformError::InvalidElement);
    const auto known = m_accessibility.readWindow(element);
    return known ? Result::success(stateOf(known->window, known->desktopNames))
                 : Result::failure(known.error());
}

QList<LMPlatformStatus> LMX11WindowStates::setStates(const QList<LMWindowStateChange>& changes) {
    return QList<LMPlatformStatus>(changes.size(),
                                   LMPlatformStatus::failure(LMPlatformError::NotAvailable));
}

QList<LMElement> LMX11WindowStates::stackingOrder() {
    m_index.refresh();
    QList<LMElement> result;
    for (const xcb_window_t window : m_index.stackingOrder()) {
        const auto presence = m_index.presence(window);
        if (presence && presence->isListed)
            result.append({LMElement::Kind::Window, window, 0});
    }
    return result;
}

LMPlatformStatus LMX11WindowStates::setStackingOrder(const QList<LMElement>& /*frontToBack*/) {
    return LMPlatformStatus::failure(LMPlatformError::NotAvailable);
}
