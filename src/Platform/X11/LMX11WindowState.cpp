// SPDX-License-Identifier: MIT
#include "Platform/X11/LMX11WindowState.h"

LMWindowState LMX11StateOfWindow(const LMX11Window& window, const QStringList& desktopNames) {
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

LMWindowState LMX11PossibleState(const LMWindowState& wanted, const LMWindowState& present,
                                 const LMWindowStateSupport& support,
                                 const QStringList& desktopNames, int currentDesktop) {
    LMWindowState state = present;
    const auto take = [&](bool isSupported, bool LMWindowState::*flag) {
        if (isSupported)
            state.*flag = wanted.*flag;
    };
    take(support.maximized, &LMWindowState::isMaximizedHorizontally);
    take(support.maximized, &LMWindowState::isMaximizedVertically);
    take(support.fullscreen, &LMWindowState::isFullscreen);
    take(support.minimized, &LMWindowState::isMinimized);
    take(support.shaded, &LMWindowState::isShaded);
    take(support.above, &LMWindowState::isKeptAbove);
    take(support.below, &LMWindowState::isKeptBelow);
    take(support.desktops, &LMWindowState::isOnAllDesktops);
    if (!support.desktops)
        return state;
    const int desktop = wanted.desktop.value_or(-1);
    if (state.isOnAllDesktops)
        state.desktop.reset();
    else if (desktop >= 0 && desktop < desktopNames.size())
        state.desktop = desktop;
    else if (present.isOnAllDesktops)
        state.desktop = currentDesktop;
    return state;
}
