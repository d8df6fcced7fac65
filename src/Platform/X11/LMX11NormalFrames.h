// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/X11/LMX11Connection.h"
#include "Platform/X11/LMX11WindowReader.h"

#include <QSet>
#include <QTimer>

#include <optional>

class LMX11ApplicationIndex;

/// Remembers which frame each window had when it was last neither maximised nor fullscreen. No
/// property tells; managers keep it to themselves.
///
/// Windows are read when they have come to rest after a change, and whenever somebody reads them
/// anyway. Nothing is known of a window that has been maximised for as long as it has been watched,
/// nor of one that was moved and maximised before it had come to rest: no frame is better than a
/// wrong one.
class LMX11NormalFrames {
public:
    /// Both must outlive it.
    LMX11NormalFrames(LMX11Connection& connection, LMX11ApplicationIndex& index);
    Q_DISABLE_COPY_MOVE(LMX11NormalFrames)

    /// A window whose frame has been set.
    void note(const LMX11Window& window);
    /// Windows as they were met. Users do not move minimised ones, but openbox does, to draw how
    /// they turn into their icons.
    void note(const LMX11Reading& reading);

    /// What a maximised or fullscreen window returns to, root coordinates; nothing for others. A
    /// window that has been taken to another monitor since is expected to return to the same place
    /// there, as managers do it.
    std::optional<QRect> frameOf(const LMX11Window& window, const QList<QRect>& monitors) const;

private:
    /// A place and size that a client's window was said to have had.
    struct Passing {
        QRect client;
        bool isSent; ///< By the manager, in root coordinates; else those of the parent.
    };
    struct Record {
        LMX11Geometry normal;
        QList<QRect> filled;     ///< Clients' windows that filled the monitor since then.
        QList<Passing> passings; ///< Since then, the latest ones.
    };

    void observe(const xcb_generic_event_t& event);
    void noteChange(xcb_window_t window);
    void observeConfigure(const xcb_configure_notify_event_t& event);
    void readChangedWindows();
    static bool hasMoved(const Record& record, const LMX11Geometry& now);

    LMX11Connection& m_connection;
    LMX11ApplicationIndex& m_index;
    LMX11WindowReader m_reader;
    QHash<xcb_window_t, Record> m_records; ///< For windows that exist.
    QSet<xcb_window_t> m_watched;
    QSet<xcb_window_t> m_changed;
    bool m_areWindowsNew = true;
    bool m_hasNews = false; ///< Since the timer was started.
    QTimer m_timer;
    LMX11Connection::Subscription m_observer;
    LMX11Connection::Subscription m_filter;
};
