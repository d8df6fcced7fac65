// SPDX-License-Identifier: MIT
#include "Platform/X11/LMX11WindowProperties.h"

#include <utility>

LMX11WindowType LMX11ReadWindowType(const LMX11Property& types, bool isTransient,
                                    const xcb_ewmh_connection_t& atoms) {
    const std::pair<xcb_atom_t, LMX11WindowType> known[] = {
        {atoms._NET_WM_WINDOW_TYPE_NORMAL, LMX11WindowType::Normal},
        {atoms._NET_WM_WINDOW_TYPE_DIALOG, LMX11WindowType::Dialog},
        {atoms._NET_WM_WINDOW_TYPE_UTILITY, LMX11WindowType::Utility},
        {atoms._NET_WM_WINDOW_TYPE_TOOLBAR, LMX11WindowType::Toolbar},
        {atoms._NET_WM_WINDOW_TYPE_DESKTOP, LMX11WindowType::Desktop},
        {atoms._NET_WM_WINDOW_TYPE_DOCK, LMX11WindowType::Dock},
        {atoms._NET_WM_WINDOW_TYPE_SPLASH, LMX11WindowType::Splash},
        {atoms._NET_WM_WINDOW_TYPE_MENU, LMX11WindowType::Menu},
        {atoms._NET_WM_WINDOW_TYPE_DROPDOWN_MENU, LMX11WindowType::Menu},
        {atoms._NET_WM_WINDOW_TYPE_POPUP_MENU, LMX11WindowType::Menu},
        {atoms._NET_WM_WINDOW_TYPE_TOOLTIP, LMX11WindowType::Menu},
        {atoms._NET_WM_WINDOW_TYPE_COMBO, LMX11WindowType::Menu},
        {atoms._NET_WM_WINDOW_TYPE_DND, LMX11WindowType::Menu},
        {atoms._NET_WM_WINDOW_TYPE_NOTIFICATION, LMX11WindowType::Notification},
    };
    for (const uint32_t type : types.words()) {
        for (const auto& [atom, value] : known) {
            if (type == atom)
                return value;
        }
    }
    if (!types.words().empty())
        return LMX11WindowType::Unknown;
    return isTransient ? LMX11WindowType::Dialog : LMX11WindowType::Normal;
}

LMX11StateFlags LMX11ReadWindowStates(const LMX11Property& property,
                                      const xcb_ewmh_connection_t& atoms) {
    LMX11StateFlags states;
    states.isModal = property.containsWord(atoms._NET_WM_STATE_MODAL);
    states.isMaximizedVertically = property.containsWord(atoms._NET_WM_STATE_MAXIMIZED_VERT);
    states.isMaximizedHorizontally = property.containsWord(atoms._NET_WM_STATE_MAXIMIZED_HORZ);
    states.isFullscreen = property.containsWord(atoms._NET_WM_STATE_FULLSCREEN);
    states.isShaded = property.containsWord(atoms._NET_WM_STATE_SHADED);
    states.isAbove = property.containsWord(atoms._NET_WM_STATE_ABOVE);
    states.isBelow = property.containsWord(atoms._NET_WM_STATE_BELOW);
    states.isSticky = property.containsWord(atoms._NET_WM_STATE_STICKY);
    states.skipsTaskbar = property.containsWord(atoms._NET_WM_STATE_SKIP_TASKBAR);
    states.isMinimized = property.containsWord(atoms._NET_WM_STATE_HIDDEN) && !states.isShaded;
    return states;
}
