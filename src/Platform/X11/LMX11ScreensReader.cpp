// SPDX-License-Identifier: MIT
#include "Platform/X11/LMX11ScreensReader.h"

#include "Platform/X11/LMX11Connection.h"

#include <xcb/randr.h>

#include <algorithm>
#include <span>

namespace {

constexpr uint32_t EdidBlockSize = 128;

template <class T>
QList<quint32> identifiers(const T* first, int count) {
    return QList<quint32>(first, first + std::max(count, 0));
}

/// Requests for what hangs on an identifier that an earlier answer gave: all sent before the first
/// answer is waited for, so that they cost one round trip together.
class DetailRequests {
public:
    DetailRequests(LMX11Connection& connection, xcb_timestamp_t configTimestamp)
        : m_connection(connection), m_timestamp(configTimestamp) {}

    void askForCrtcs(std::span<const xcb_randr_crtc_t> crtcs) {
        for (const xcb_randr_crtc_t crtc : crtcs)
            m_crtcs.append({crtc, xcb_randr_get_crtc_info(m_connection.xcb(), crtc, m_timestamp)});
    }

    void askForOutputs(const QList<quint32>& outputs) {
        xcb_connection_t* xcb = m_connection.xcb();
        for (const xcb_randr_output_t output : outputs)
            m_outputs.append({output, xcb_randr_get_output_info(xcb, output, m_timestamp),
                              xcb_randr_get_output_property(xcb, output, m_connection.atoms().edid,
                                                            XCB_GET_PROPERTY_TYPE_ANY, 0,
                                                            EdidBlockSize / 4, 0, 0)});
    }

    void askForName(LMX11Monitor& monitor) {
        m_names.append({&monitor, xcb_get_atom_name(m_connection.xcb(), monitor.nameAtom)});
    }

    QList<LMX11Crtc> receiveCrtcs() {
        QList<LMX11Crtc> crtcs;
        for (const auto& [identifier, cookie] : std::as_const(m_crtcs)) {
            const auto reply = m_connection.reply(xcb_randr_get_crtc_info_reply, cookie);
            if (reply && reply->mode == XCB_NONE)
                crtcs.append(LMX11Crtc{identifier, {}, 0, 0, {}});
            if (!reply || reply->mode == XCB_NONE)
                continue;
            crtcs.append({identifier, QRect(reply->x, reply->y, reply->width, reply->height),
                          reply->mode, reply->rotation,
                          identifiers(xcb_randr_get_crtc_info_outputs(reply.get()),
                                      xcb_randr_get_crtc_info_outputs_length(reply.get()))});
        }
        return crtcs;
    }

    QList<LMX11Output> receiveOutputs() {
        QList<LMX11Output> outputs;
        for (const auto& [identifier, infoCookie, edidCookie] : std::as_const(m_outputs)) {
            const auto info = m_connection.reply(xcb_randr_get_output_info_reply, infoCookie);
            const auto edid = m_connection.reply(xcb_randr_get_output_property_reply, edidCookie);
            LMX11Output output{identifier, {}, {}};
            if (info)
                output.name = QString::fromUtf8(
                    reinterpret_cast<const char*>(xcb_randr_get_output_info_name(info.get())),
                    xcb_randr_get_output_info_name_length(info.get()));
            if (edid && edid->format == 8)
                output.edid = QByteArray(
                    reinterpret_cast<const char*>(xcb_randr_get_output_property_data(edid.get())),
                    xcb_randr_get_output_property_data_length(edid.get()));
            outputs.append(output);
        }
        return outputs;
    }

    void receiveNames() {
        for (const auto& [monitor, cookie] : std::as_const(m_names)) {
            if (const auto reply = m_connection.reply(xcb_get_atom_name_reply, cookie))
                monitor->name = QString::fromUtf8(xcb_get_atom_name_name(reply.get()),
                                                  xcb_get_atom_name_name_length(reply.get()));
        }
    }

private:
    struct Crtc {
        quint32 identifier;
        xcb_randr_get_crtc_info_cookie_t cookie;
    };
    struct Output {
        quint32 identifier;
        xcb_randr_get_output_info_cookie_t infoCookie;
        xcb_randr_get_output_property_cookie_t edidCookie;
    };
    struct Name {
        LMX11Monitor* monitor;
        xcb_get_atom_name_cookie_t cookie;
    };

    LMX11Connection& m_connection;
    xcb_timestamp_t m_timestamp;
    QList<Crtc> m_crtcs;
    QList<Output> m_outputs;
    QList<Name> m_names;
};

QList<LMX11Monitor> monitorsFromReply(const xcb_randr_get_monitors_reply_t* reply) {
    QList<LMX11Monitor> monitors;
    for (auto each = xcb_randr_get_monitors_monitors_iterator(reply); each.rem > 0;
         xcb_randr_monitor_info_next(&each)) {
        const xcb_randr_monitor_info_t& info = *each.data;
        LMX11Monitor monitor;
        monitor.nameAtom = info.name;
        monitor.geometry = QRect(info.x, info.y, info.width, info.height);
        monitor.millimetres = QSize(static_cast<int>(info.width_in_millimeters),
                                    static_cast<int>(info.height_in_millimeters));
        monitor.isPrimary = info.primary != 0;
        monitor.isAutomatic = info.automatic != 0;
        monitor.outputs = identifiers(xcb_randr_monitor_info_outputs(&info),
                                      xcb_randr_monitor_info_outputs_length(&info));
        monitors.append(monitor);
    }
    return monitors;
}

/// Most connectors have no monitor, and their answers are the larger part.
QList<quint32> outputsToAskFor(const QList<LMX11Monitor>& monitors,
                               const xcb_randr_get_screen_resources_current_reply_t* resources) {
    if (monitors.isEmpty())
        return identifiers(xcb_randr_get_screen_resources_current_outputs(resources),
                           resources->num_outputs);
    QList<quint32> outputs;
    for (const LMX11Monitor& monitor : monitors)
        outputs += monitor.outputs;
    return outputs;
}

void readDetails(LMX11Connection& connection, LMX11ScreensSnapshot& snapshot,
                 const xcb_randr_get_screen_resources_current_reply_t* resources) {
    DetailRequests requests(connection, resources->config_timestamp);
    requests.askForCrtcs(
        {xcb_randr_get_screen_resources_current_crtcs(resources), resources->num_crtcs});
    requests.askForOutputs(outputsToAskFor(snapshot.monitors, resources));
    for (LMX11Monitor& monitor : snapshot.monitors)
        requests.askForName(monitor);
    snapshot.crtcs = requests.receiveCrtcs();
    snapshot.outputs = requests.receiveOutputs();
    requests.receiveNames();
}

void readRandr(LMX11Connection& connection, LMX11ScreensSnapshot& snapshot) {
    xcb_connection_t* xcb = connection.xcb();
    const xcb_window_t root = connection.root();
    const bool hasMonitors = connection.randr()->isAtLeast(1, 5);
    const auto resourcesCookie = xcb_randr_get_screen_resources_current(xcb, root);
    const auto primaryCookie = xcb_randr_get_output_primary(xcb, root);
    const auto rangeCookie = xcb_randr_get_screen_size_range(xcb, root);
    std::optional<xcb_randr_get_monitors_cookie_t> monitorsCookie;
    if (hasMonitors)
        monitorsCookie = xcb_randr_get_monitors(xcb, root, 1);

    const auto resources =
        connection.reply(xcb_randr_get_screen_resources_current_reply, resourcesCookie);
    if (const auto primary = connection.reply(xcb_randr_get_output_primary_reply, primaryCookie))
        snapshot.primaryOutput = primary->output;
    if (const auto range = connection.reply(xcb_randr_get_screen_size_range_reply, rangeCookie)) {
        snapshot.minimumRootSize = QSize(range->min_width, range->min_height);
        snapshot.maximumRootSize = QSize(range->max_width, range->max_height);
    }
    if (monitorsCookie) {
        if (const auto reply = connection.reply(xcb_randr_get_monitors_reply, *monitorsCookie))
            snapshot.monitors = monitorsFromReply(reply.get());
    }
    if (!resources)
        return;
    snapshot.configTimestamp = resources->config_timestamp;
    readDetails(connection, snapshot, resources.get());
}

} // namespace

std::optional<LMX11ScreensSnapshot> LMX11ReadScreens(LMX11Connection& connection) {
    const auto geometryCookie = xcb_get_geometry(connection.xcb(), connection.root());
    LMX11ScreensSnapshot snapshot;
    snapshot.rootWindow = connection.root();
    if (connection.randr() && connection.randr()->isAtLeast(1, 3))
        readRandr(connection, snapshot);
    const auto geometry = connection.reply(xcb_get_geometry_reply, geometryCookie);
    if (!geometry)
        return std::nullopt;
    snapshot.rootSize = QSize(geometry->width, geometry->height);
    return snapshot;
}
