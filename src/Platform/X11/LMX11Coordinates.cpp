// SPDX-License-Identifier: MIT
#include "Platform/X11/LMX11Coordinates.h"

#include "Platform/X11/LMX11Connection.h"

LMX11CoordinatesRequest::LMX11CoordinatesRequest(LMX11Connection& connection)
    : m_connection(connection) {
    if (connection.randr() && connection.randr()->isAtLeast(1, 5))
        m_cookie = xcb_randr_get_monitors(connection.xcb(), connection.root(), 1);
}

LMX11Coordinates LMX11CoordinatesRequest::receive() {
    if (!m_cookie)
        return receiveFromCrtcs();
    const auto reply = m_connection.reply(xcb_randr_get_monitors_reply, *m_cookie);
    if (!reply)
        return {};
    const xcb_randr_monitor_info_t* main = nullptr;
    QList<QRect> rects;
    for (auto monitors = xcb_randr_get_monitors_monitors_iterator(reply.get()); monitors.rem > 0;
         xcb_randr_monitor_info_next(&monitors)) {
        if (main == nullptr || (monitors.data->primary != 0 && main->primary == 0))
            main = monitors.data;
        rects.append(
            QRect(monitors.data->x, monitors.data->y, monitors.data->width, monitors.data->height));
    }
    return main == nullptr ? LMX11Coordinates() : LMX11Coordinates(QPoint(main->x, main->y), rects);
}

/// RandR 1.3 and older servers know no monitors: the primary output's CRTC stands for the main
/// display, else the first CRTC in use.
LMX11Coordinates LMX11CoordinatesRequest::receiveFromCrtcs() {
    if (!m_connection.randr() || !m_connection.randr()->isAtLeast(1, 3))
        return {};
    xcb_connection_t* xcb = m_connection.xcb();
    const auto primaryCookie = xcb_randr_get_output_primary(xcb, m_connection.root());
    const auto resourcesCookie = xcb_randr_get_screen_resources_current(xcb, m_connection.root());
    const auto primary = m_connection.reply(xcb_randr_get_output_primary_reply, primaryCookie);
    const auto resources =
        m_connection.reply(xcb_randr_get_screen_resources_current_reply, resourcesCookie);
    if (!resources)
        return {};
    const xcb_randr_crtc_t* crtcs = xcb_randr_get_screen_resources_current_crtcs(resources.get());
    std::optional<QPoint> first;
    for (int index = 0; index < resources->num_crtcs; ++index) {
        const auto crtc = m_connection.reply(
            xcb_randr_get_crtc_info_reply,
            xcb_randr_get_crtc_info(xcb, crtcs[index], resources->config_timestamp));
        if (!crtc || crtc->mode == XCB_NONE)
            continue;
        const xcb_randr_output_t* outputs = xcb_randr_get_crtc_info_outputs(crtc.get());
        for (int output = 0; primary && output < crtc->num_outputs; ++output) {
            if (outputs[output] == primary->output)
                return LMX11Coordinates(QPoint(crtc->x, crtc->y));
        }
        if (!first)
            first = QPoint(crtc->x, crtc->y);
    }
    return LMX11Coordinates(first.value_or(QPoint()));
}
