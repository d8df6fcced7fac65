// SPDX-License-Identifier: MIT
#include "Platform/X11/LMX11SystemTray.h"

LMX11SystemTray::LMX11SystemTray(LMX11Connection& connection) : m_connection(connection) {
    const QByteArray name = "_NET_SYSTEM_TRAY_S" + QByteArray::number(connection.screenNumber());
    const auto reply = connection.reply(
        xcb_intern_atom_reply,
        xcb_intern_atom(connection.xcb(), 0, uint16_t(name.size()), name.constData()));
    if (!reply)
        return;
    m_selection = reply->atom;
    connection.selectEvents(connection.root(), XCB_EVENT_MASK_STRUCTURE_NOTIFY);
    m_subscription = connection.addEventFilter([this](const auto& event) { handle(event); });
}

bool LMX11SystemTray::isAvailable() {
    const auto reply = m_connection.reply(xcb_get_selection_owner_reply,
                                          xcb_get_selection_owner(m_connection.xcb(), m_selection));
    return reply && reply->owner != XCB_WINDOW_NONE;
}

void LMX11SystemTray::handle(const xcb_generic_event_t& event) {
    if (LMXcbEventType(event) != XCB_CLIENT_MESSAGE)
        return;
    const auto& message = reinterpret_cast<const xcb_client_message_event_t&>(event);
    if (message.type == m_connection.atoms().manager && message.format == 32 &&
        message.data.data32[1] == m_selection)
        Q_EMIT appeared();
}
