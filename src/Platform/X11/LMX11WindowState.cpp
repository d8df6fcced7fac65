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
