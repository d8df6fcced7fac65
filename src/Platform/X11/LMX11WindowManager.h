// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/LMDesktop.h"
#include "Platform/X11/LMX11Connection.h"

#include <QRect>

/// The window manager in force, through which all windows are moved (EWMH).
class LMX11WindowManager {
public:
    explicit LMX11WindowManager(LMX11Connection& connection) : m_connection(connection) {}

    /// Whether one runs. The mark of one that died stays on the root window, but the window that
    /// the mark names is gone.
    bool isRunning();

    /// Empty when there is none.
    QString name();

    /// Whether it supports what moving windows needs.
    LMPermission checkPermission();

    /// Waits until the manager has worked through what was sent to it before. False when it does
    /// not within the deadline. Returns at once when no manager runs, and soon when it has missed
    /// many deadlines in a row. Patience is for many requests: how long to wait, within the
    /// deadline, for the next sign that the manager is at work, a window that changes.
    bool waitUntilCaughtUp(LMX11Connection::Deadline deadline,
                           std::optional<std::chrono::milliseconds> patience = {});

    /// Whether the event may be a sign that the manager is at work on windows: one has been
    /// configured, or a property has changed that is not a title, which is its client's.
    bool mayBeItsWork(const xcb_generic_event_t& event) const;

    /// Asks for a new place, a new size or both: whatever is given. North-west gravity: the place
    /// is that of the corner of the window with its decorations, root coordinates.
    void moveResize(xcb_window_t window, const std::optional<QPoint>& place,
                    const std::optional<QSize>& clientSize);

    enum class Change : uint32_t { Remove = 0, Add = 1 };
    /// Asks for a change of up to two of the window's states (_NET_WM_STATE_...).
    void changeState(xcb_window_t window, Change change, xcb_atom_t first,
                     xcb_atom_t second = XCB_ATOM_NONE);

    void minimize(xcb_window_t window);
    /// Brings a minimised window back to its virtual desktop as if the client itself mapped it
    /// (ICCCM 4.1.4), see LMX11StateSetter. openbox and xfwm4 give it the focus.
    void map(xcb_window_t window, std::optional<quint32> desktop);
    /// A virtual desktop's number, or LMX11Window::allDesktops.
    void sendToDesktop(xcb_window_t window, quint32 desktop);
    /// To the bottom of its layer, as if the client itself asked for it.
    void lower(xcb_window_t window);
    /// Onto another of its layer, as if the client itself asked for it (ICCCM 4.1.5).
    void raiseOnto(xcb_window_t window, xcb_window_t sibling);
    /// Behind another, or without one to the bottom of its layer, in the user's name, where the
    /// manager supports _NET_RESTACK_WINDOW.
    void restackBelow(xcb_window_t window, xcb_window_t sibling);
    /// Asks for the focus in the user's name.
    void activate(xcb_window_t window, xcb_window_t activeWindow);
    void showDesktop(quint32 desktop);

private:
    xcb_window_t supportingWindow();
    QStringList missingProtocols();
    template <typename Event>
    void sendRedirected(const Event& event);

    LMX11Connection& m_connection;
    int16_t m_fence = 0;
    int m_missedFences = 0; ///< In a row.
};
