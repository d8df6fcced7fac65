// SPDX-License-Identifier: MIT
#include "Platform/LMPossibleWindowState.h"

LMWindowState LMPossibleWindowState(const LMWindowState& wanted, const LMWindowState& present,
                                    const LMWindowStateSupport& support, qsizetype desktopCount,
                                    int currentDesktop) {
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
    // Not all managers can show again what is rolled up while it is minimised.
    state.isShaded = state.isShaded && !state.isMinimized;
    if (!support.desktops)
        return state;
    const int desktop = wanted.desktop.value_or(-1);
    if (state.isOnAllDesktops)
        state.desktop.reset();
    else if (desktop >= 0 && desktop < desktopCount)
        state.desktop = desktop;
    else if (present.isOnAllDesktops)
        state.desktop = currentDesktop;
    return state;
}
