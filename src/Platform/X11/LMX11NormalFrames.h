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
/// anyway. Nothing is known of a window that has been maximised for as long as it has been watched.
/// Who moves a window and maximises it within 150 ms may be remembered with the frame before that.
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
    void observe(const xcb_generic_event_t& event);
    void readChangedWindows();

    LMX11Connection& m_connection;
    LMX11ApplicationIndex& m_index;
    LMX11WindowReader m_reader;
    QHash<xcb_window_t, QRect> m_frames; ///< Root coordinates; for windows that exist.
    QSet<xcb_window_t> m_watched;
    QSet<xcb_window_t> m_changed;
    bool m_areWindowsNew = true;
    QTimer m_timer;
    LMX11Connection::Subscription m_observer;
    LMX11Connection::Subscription m_filter;
};
