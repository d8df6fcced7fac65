// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/X11/LMX11ManagerLists.h"

class LMX11Connection;
class LMX11WindowManager;

/// Puts the view back that the user had: the virtual desktop, and the focus. Some managers give the
/// focus to windows that are shaded, filled or lowered, or take it from them.
class LMX11ViewGuard {
public:
    /// Notes the view. Both must outlive it.
    LMX11ViewGuard(LMX11Connection& connection, LMX11WindowManager& windowManager);

    quint32 currentDesktop() const { return m_view.currentDesktop; }
    xcb_window_t activeWindow() const { return m_view.activeWindow; }
    const QList<xcb_window_t>& stackingOrder() const { return m_view.stackingOrder; }

    /// To be called when the manager has done what it was asked. A window that is out of sight
    /// now does not get the focus back: it lost it by what was asked for. Nor does a shaded one,
    /// which marco would show for that.
    void restore();

private:
    bool isBack();
    bool isFocusBack();
    bool isInSight(xcb_window_t window);

    LMX11Connection& m_connection;
    LMX11WindowManager& m_windowManager;
    LMX11ManagerLists m_view;
    LMX11ManagerLists m_now;
};
