// SPDX-License-Identifier: MIT
#include "Platform/X11/LMX11ClientProcesses.h"

#include "Platform/X11/LMX11Connection.h"

#include <algorithm>

namespace {

/// What fits into one request by far; more clients than a server admits.
constexpr size_t mostClients = 4096;

} // namespace

uint32_t LMX11ClientProcessesRequest::clientOf(const LMX11Connection& connection,
                                               xcb_window_t window) {
    return window & ~xcb_get_setup(connection.xcb())->resource_id_mask;
}

LMX11ClientProcessesRequest::LMX11ClientProcessesRequest(LMX11Connection& connection,
                                                         const QList<xcb_window_t>& windows) {
    if (windows.isEmpty() || !connection.resource() || !connection.resource()->isAtLeast(1, 2))
        return;
    std::vector<xcb_res_client_id_spec_t> clients;
    for (const xcb_window_t window : windows) {
        const uint32_t client = clientOf(connection, window);
        const auto isSame = [client](const auto& spec) { return spec.client == client; };
        if (client != 0 && clients.size() < mostClients && std::ranges::none_of(clients, isSame))
            clients.push_back({client, XCB_RES_CLIENT_ID_MASK_LOCAL_CLIENT_PID});
    }
    if (!clients.empty())
        m_cookie = xcb_res_query_client_ids(connection.xcb(), static_cast<uint32_t>(clients.size()),
                                            clients.data());
}

QHash<uint32_t, qint64> LMX11ClientProcessesRequest::receive(LMX11Connection& connection) const {
    QHash<uint32_t, qint64> processes;
    if (!m_cookie)
        return processes;
    const auto reply = connection.reply(xcb_res_query_client_ids_reply, *m_cookie);
    if (!reply)
        return processes;
    auto answers = xcb_res_query_client_ids_ids_iterator(reply.get());
    for (; answers.rem > 0; xcb_res_client_id_value_next(&answers)) {
        if ((answers.data->spec.mask & XCB_RES_CLIENT_ID_MASK_LOCAL_CLIENT_PID) != 0 &&
            xcb_res_client_id_value_value_length(answers.data) > 0)
            processes.insert(answers.data->spec.client,
                             qint64(*xcb_res_client_id_value_value(answers.data)));
    }
    return processes;
}
