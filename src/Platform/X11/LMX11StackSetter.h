// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/LMPlatformTypes.h"
#include "Platform/X11/LMX11Stacking.h"
#include "Platform/X11/LMX11WindowReader.h"

#include <functional>

class LMX11ApplicationIndex;
class LMX11WindowManager;

/// Brings windows into an order by lowering them one after the other, which goes to the bottom of
/// their layer: the request about the order that all managers obey without giving anybody else the
/// focus, unless the active window is lowered. Tried out:
///
///                                 openbox 3.6  xfwm4 4.18   marco 1.26  kwin 5.27   mutter 43
///     lower (ConfigureWindow)     yes          yes          own (1)     yes         own (1)
///       the active window         keeps focus  loses focus  keeps it    keeps it    keeps it
///       bottom of                 everything   everything   desktop     everything  desktop
///     raise (ConfigureWindow)     yes          with focus   own (1)     refuses     own (1)
///       onto a sibling            to the top   yes          own, top    yes         yes
///     _NET_RESTACK_WINDOW         yes          unknown      unknown     attention   yes
///       below a sibling           to the end   -            -           yes (2)     yes (3)
///
/// (1) Windows of the active application. Others are to have been used later than the active
/// window, as their _NET_WM_USER_TIME says. Desktop: a window of all desktops goes to the bottom,
/// or to the top, of those of the current one. (2) One window; many in turn, fullscreen ones among
/// them, end in another order. (3) Leaves a window where it is that is behind its sibling already,
/// however far.
///
/// Hence: windows are lowered; where that does not help, by _NET_RESTACK_WINDOW if it is known,
/// else as if they had just been used. Should only desktops out of sight be out of order then, each
/// window is put behind the one in front of it, or all as LMX11PlanRestackingByDesktop says. What
/// is in order already is left alone. Where a manager knows no _NET_RESTACK_WINDOW, the active
/// window is not lowered before that, as it may lose the focus: those in front of it are raised
/// onto it.
class LMX11StackSetter {
public:
    /// All must outlive it.
    LMX11StackSetter(LMX11Connection& connection, LMX11ApplicationIndex& index,
                     LMX11WindowManager& windowManager);

    /// Those of the index that applications list, front to back.
    QList<xcb_window_t> stackingOrder();

    /// Front to back. Answers CannotComplete when the manager does not answer.
    LMPlatformStatus reach(const QList<xcb_window_t>& wanted);

private:
    enum class Means { Asking, Restacking, RestackingAll, AsIfUsed, AllByDesktop };

    QList<LMX11StackedWindow> pile();
    bool knowsRestacking();
    void request(const LMX11Restacking& plan, xcb_window_t staying, Means means);
    void lower(const QList<xcb_window_t>& windows);
    void raise(const QList<xcb_window_t>& windows, xcb_window_t sibling);
    void asIfUsed(const QList<xcb_window_t>& used, const std::function<void()>& requests);
    QList<xcb_window_t> timeWindows(QList<xcb_window_t> windows);
    LMX11Restacking waitForOrder(const QList<xcb_window_t>& wanted, xcb_window_t staying);
    bool waitForManager(qsizetype requests);

    LMX11Connection& m_connection;
    LMX11ApplicationIndex& m_index;
    LMX11WindowManager& m_windowManager;
    LMX11WindowReader m_reader;
};
