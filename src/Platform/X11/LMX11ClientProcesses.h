// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/X11/LMXcbReply.h"

#include <QHash>
#include <QList>

#include <optional>
#include <xcb/res.h>

class LMX11Connection;

/// The question which processes the clients of windows are, as the server itself knows them from
/// their connections (X-Resource 1.2). One request for any number of windows; asked together with
/// others, answered later.
class LMX11ClientProcessesRequest {
public:
    LMX11ClientProcessesRequest(LMX11Connection& connection, const QList<xcb_window_t>& windows);

    /// By client, see clientOf. A client on another computer has no entry, nor has any when the
    /// server lacks the extension. The process is the one that connected: it may have ended since,
    /// with its child still using the connection.
    QHash<uint32_t, qint64> receive(LMX11Connection& connection) const;

    /// The part of a window's identifier that is common to all resources of one client.
    static uint32_t clientOf(const LMX11Connection& connection, xcb_window_t window);

private:
    std::optional<xcb_res_query_client_ids_cookie_t> m_cookie;
};
