// SPDX-License-Identifier: MIT
#include "Platform/X11/LMX11DisplayConfiguration.h"

#include "Platform/X11/LMX11Connection.h"
#include "Platform/X11/LMX11ScreensReader.h"
#include "Utilities/LMLogger.h"

#include <xcb/randr.h>
#include <xcb/xcbext.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <sys/uio.h>

namespace {

/// Keeps every other client waiting for as long as it lives.
class ServerGrab {
public:
    explicit ServerGrab(LMX11Connection& connection) : m_connection(connection) {
        xcb_grab_server(m_connection.xcb());
    }
    ~ServerGrab() {
        xcb_ungrab_server(m_connection.xcb());
        m_connection.flush();
    }
    Q_DISABLE_COPY_MOVE(ServerGrab)

private:
    LMX11Connection& m_connection;
};

/// The request RRSetMonitor as it goes over the wire. The library's own function for it leaves the
/// monitor out (libxcb 1.15 counts the parts of the message wrongly).
xcb_void_cookie_t sendSetMonitor(LMX11Connection& connection, const LMX11Monitor& monitor) {
    xcb_randr_set_monitor_request_t header{};
    header.window = connection.root();
    xcb_randr_monitor_info_t info{};
    info.name = monitor.nameAtom;
    info.primary = monitor.isPrimary;
    info.nOutput = static_cast<uint16_t>(monitor.outputs.size());
    info.x = static_cast<int16_t>(monitor.geometry.x());
    info.y = static_cast<int16_t>(monitor.geometry.y());
    info.width = static_cast<uint16_t>(monitor.geometry.width());
    info.height = static_cast<uint16_t>(monitor.geometry.height());
    info.width_in_millimeters = static_cast<uint32_t>(monitor.millimetres.width());
    info.height_in_millimeters = static_cast<uint32_t>(monitor.millimetres.height());
    QList<quint32> outputs = monitor.outputs;

    // xcb uses two parts before the first one for itself.
    std::array<iovec, 5> parts{{{},
                                {},
                                {&header, sizeof header},
                                {&info, sizeof info},
                                {outputs.data(), sizeof(quint32) * info.nOutput}}};
    const xcb_protocol_request_t request{3, &xcb_randr_id, XCB_RANDR_SET_MONITOR, 1};
    return {xcb_send_request(connection.xcb(), XCB_REQUEST_CHECKED, &parts[2], &request)};
}

QString stepText(const LMX11ArrangementStep& step) {
    const QRect& place = step.crtc.geometry;
    switch (step.kind) {
    case LMX11ArrangementStep::Kind::ResizeRoot:
        return QStringLiteral("resize the root window to %1x%2")
            .arg(step.rootSize.width())
            .arg(step.rootSize.height());
    case LMX11ArrangementStep::Kind::SetCrtc:
        return step.crtc.isLit()
                   ? QStringLiteral("move CRTC 0x%1 to %2,%3")
                         .arg(step.crtc.identifier, 0, 16)
                         .arg(place.x())
                         .arg(place.y())
                   : QStringLiteral("switch off CRTC 0x%1").arg(step.crtc.identifier, 0, 16);
    case LMX11ArrangementStep::Kind::SetMonitor:
        return QStringLiteral("set monitor %1").arg(step.monitor.name);
    }
    return {};
}

} // namespace

LMPlatformStatus LMX11DisplayConfiguration::configureDisplayOrigin(quint32 displayID, qint32 x,
                                                                   qint32 y) {
    const std::optional<LMX11ScreensSnapshot> snapshot = LMX11ReadScreens(m_connection);
    if (!snapshot)
        return LMPlatformStatus::failure(LMPlatformError::Failure);
    if (const auto refusal = LMX11CheckOrigin(*snapshot, displayID, QPoint(x, y)))
        return refuse(*refusal);
    m_origins.insert(displayID, QPoint(x, y));
    return LMPlatformStatus::success();
}

LMPlatformStatus LMX11DisplayConfiguration::completePermanently() {
    const ServerGrab grab(m_connection);
    const std::optional<LMX11ScreensSnapshot> snapshot = LMX11ReadScreens(m_connection);
    if (!snapshot)
        return LMPlatformStatus::failure(LMPlatformError::Failure);
    m_configTimestamp = snapshot->configTimestamp;
    const auto plan = LMX11PlanArrangement(*snapshot, m_origins);
    if (!plan)
        return refuse(plan.error());
    const LMX11Arrangement before = LMX11ArrangementFromSnapshot(*snapshot);
    if (apply(before, *plan))
        return LMPlatformStatus::success();
    rollBack(before);
    return LMPlatformStatus::failure(LMPlatformError::Failure);
}

LMPlatformStatus LMX11DisplayConfiguration::refuse(const LMX11PlanRefusal& refusal) {
    m_connection.logger().error(QStringLiteral("The displays cannot be arranged so: %@"),
                                {refusal.reason});
    return LMPlatformStatus::failure(refusal.error);
}

bool LMX11DisplayConfiguration::apply(const LMX11Arrangement& from, const LMX11Arrangement& to) {
    if (!run(LMX11ArrangementSteps(from, to)) || !run(LMX11MonitorSteps(readArrangement(), to)))
        return false;
    if (readArrangement() == to)
        return true;
    m_connection.logger().error(QStringLiteral("RandR arranged the displays otherwise."));
    return false;
}

/// Goes on past requests that fail, for the rest may still succeed.
void LMX11DisplayConfiguration::rollBack(const LMX11Arrangement& before) {
    for (const LMX11ArrangementStep& step : LMX11ArrangementSteps(readArrangement(), before))
        run(step);
    for (const LMX11ArrangementStep& step : LMX11MonitorSteps(readArrangement(), before))
        run(step);
    m_connection.logger().error(
        readArrangement() == before
            ? QStringLiteral("Arranging the displays failed; they stand as before.")
            : QStringLiteral("Arranging the displays failed, and putting them back failed too."));
}

bool LMX11DisplayConfiguration::run(const QList<LMX11ArrangementStep>& steps) {
    return std::all_of(steps.begin(), steps.end(), [this](const auto& step) { return run(step); });
}

bool LMX11DisplayConfiguration::run(const LMX11ArrangementStep& step) {
    bool isDone = false;
    switch (step.kind) {
    case LMX11ArrangementStep::Kind::ResizeRoot:
        isDone = resizeRoot(step.rootSize);
        break;
    case LMX11ArrangementStep::Kind::SetCrtc:
        isDone = setCrtc(step.crtc);
        break;
    case LMX11ArrangementStep::Kind::SetMonitor:
        isDone = setMonitor(step.monitor);
        break;
    }
    if (!isDone)
        m_connection.logger().error(QStringLiteral("RandR refused to %@."), {stepText(step)});
    return isDone;
}

bool LMX11DisplayConfiguration::resizeRoot(const QSize& size) {
    const auto millimetres = [](int pixels, double scale) {
        return static_cast<uint32_t>(std::max(1L, std::lround(pixels * scale)));
    };
    return m_connection.check(xcb_randr_set_screen_size_checked(
               m_connection.xcb(), m_connection.root(), static_cast<uint16_t>(size.width()),
               static_cast<uint16_t>(size.height()),
               millimetres(size.width(), m_millimetresPerPixel.width()),
               millimetres(size.height(), m_millimetresPerPixel.height()))) == nullptr;
}

bool LMX11DisplayConfiguration::setCrtc(const LMX11Crtc& crtc) {
    const bool isLit = crtc.isLit();
    const auto reply = m_connection.reply(
        xcb_randr_set_crtc_config_reply,
        xcb_randr_set_crtc_config(
            m_connection.xcb(), crtc.identifier, XCB_CURRENT_TIME, m_configTimestamp,
            static_cast<int16_t>(isLit ? crtc.geometry.x() : 0),
            static_cast<int16_t>(isLit ? crtc.geometry.y() : 0), crtc.mode,
            isLit ? crtc.rotation : uint16_t(XCB_RANDR_ROTATION_ROTATE_0),
            static_cast<uint32_t>(crtc.outputs.size()), crtc.outputs.constData()));
    return reply && reply->status == XCB_RANDR_SET_CONFIG_SUCCESS;
}

/// The server sets no monitor whose name is in use.
bool LMX11DisplayConfiguration::setMonitor(const LMX11Monitor& monitor) {
    xcb_randr_delete_monitor(m_connection.xcb(), m_connection.root(), monitor.nameAtom);
    return m_connection.check(sendSetMonitor(m_connection, monitor)) == nullptr;
}

LMX11Arrangement LMX11DisplayConfiguration::readArrangement() {
    const std::optional<LMX11ScreensSnapshot> snapshot = LMX11ReadScreens(m_connection);
    return snapshot ? LMX11ArrangementFromSnapshot(*snapshot) : LMX11Arrangement();
}
