// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/X11/LMX11Connection.h"

#include <QHash>

/// Remembers for a moment which windows have been shown or hidden, as far as their structure events
/// are selected. A manager may still be drawing that.
class LMX11MapWatch {
public:
    /// Longer than any of the managers tried out draws.
    static constexpr std::chrono::milliseconds moment{250};

    /// The connection must outlive it.
    explicit LMX11MapWatch(LMX11Connection& connection);
    Q_DISABLE_COPY_MOVE(LMX11MapWatch)

    /// Whether that happened within the last moment, as of the latest answer of the server.
    bool hasJustChanged(xcb_window_t window);

private:
    using Time = std::chrono::steady_clock::time_point;

    void note(xcb_window_t window);

    LMX11Connection& m_connection;
    QHash<xcb_window_t, Time> m_times;
    LMX11Connection::Subscription m_subscription;
};
