// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/X11/LMX11Application.h"

#include <QObject>

#include <memory>
#include <optional>

class LMDesktopEntries;
class LMX11Connection;

/// What window managers and users do to a window, as far as applications are concerned.
struct LMX11WindowPresence {
    bool isListed = false;     ///< In LMX11Application::windows.
    bool isInTaskBars = false; ///< Normal or dialog window that task bars do not skip.
    bool isMinimized = false;  ///< _NET_WM_STATE_HIDDEN together with the iconic WM_STATE.
    bool isInSight = false;    ///< On the virtual desktop in view and not minimised.
    quint64 lastActive = 0;    ///< Grows with every activation seen; 0 for never.
};

/// Knows which application every managed window belongs to.
///
/// Incremental: what was found out about a window is kept until one of the properties it rests on
/// changes or the window is destroyed; X gives identifiers of destroyed windows to new ones.
///
/// The process identifier maps back to one application. The application that was launched first
/// among those that share their oldest process bears its number; each other one bears the next
/// oldest process of its own that no application bears, else a synthetic identifier above
/// 2^32, outside the range of processes. Windows whose process is unknown count as one process per
/// client leader, with a synthetic identifier as well. Every process identifier ever handed out,
/// and every process that owns a window, leads to an application as long as it has windows.
class LMX11ApplicationIndex final : public QObject {
    Q_OBJECT
public:
    /// The windows that exist now are not launches. Both must outlive the index.
    LMX11ApplicationIndex(LMX11Connection& connection, LMDesktopEntries& desktopEntries);
    ~LMX11ApplicationIndex() override;

    /// Brings the index up to date with the server: one round trip when nothing is new, two when
    /// windows appeared or changed, however many. The questions below are answered from what the
    /// latest refresh saw, without asking the server; call it once before a pass over windows.
    void refresh();

    /// In the order of their launch.
    const QList<LMX11Application>& applications() const;

    /// Null when there is none. Valid until the next refresh.
    const LMX11Application* application(qint64 processIdentifier) const;
    const LMX11Application* applicationWithIdentifier(const QString& bundleIdentifier) const;
    const LMX11Application* applicationOfWindow(xcb_window_t window) const;

    /// All managed windows, front to back.
    const QList<xcb_window_t>& stackingOrder() const;

    /// The window that _NET_ACTIVE_WINDOW names; 0 for none.
    xcb_window_t activeWindow() const;

    /// Nothing for a window that is not managed.
    std::optional<LMX11WindowPresence> presence(xcb_window_t window) const;

Q_SIGNALS:
    /// An application that had no listed window has opened its first one. Emitted from the event
    /// loop only, never from refresh().
    void applicationLaunched(const QString& bundleIdentifier);

private:
    struct Private;
    std::unique_ptr<Private> d;
};
