// SPDX-License-Identifier: MIT
#include "Platform/X11/LMX11ScreensWatcher.h"

#include <algorithm>
#include <utility>

using namespace std::chrono_literals;
using std::chrono::steady_clock;

namespace {

constexpr double MillimetresPerInch = 25.4;
constexpr double DefaultPixelsPerInch = 96;

template <class Event>
const Event& as(const xcb_generic_event_t& event) {
    return reinterpret_cast<const Event&>(event);
}

double ratio(double millimetres, double pixels) {
    const double scale = pixels > 0 ? millimetres / pixels : 0;
    return scale > 0 ? scale : MillimetresPerInch / DefaultPixelsPerInch;
}

} // namespace

LMX11ScreensWatcher::LMX11ScreensWatcher(LMX11Connection& connection) : m_connection(connection) {
    const xcb_screen_t& screen = connection.screen();
    noteRootSize(QSizeF(screen.width_in_pixels, screen.height_in_pixels),
                 QSizeF(screen.width_in_millimeters, screen.height_in_millimeters));
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &LMX11ScreensWatcher::checkWhetherSettled);

    m_subscription = connection.addEventFilter([this](const auto& event) { handle(event); });
    connection.selectEvents(connection.root(), XCB_EVENT_MASK_PROPERTY_CHANGE);
    if (connection.randr())
        xcb_randr_select_input(connection.xcb(), connection.root(),
                               XCB_RANDR_NOTIFY_MASK_SCREEN_CHANGE |
                                   XCB_RANDR_NOTIFY_MASK_CRTC_CHANGE |
                                   XCB_RANDR_NOTIFY_MASK_OUTPUT_CHANGE);
    connection.flush();
}

void LMX11ScreensWatcher::handle(const xcb_generic_event_t& event) {
    const int type = LMXcbEventType(event);
    const int randr = m_connection.randr() ? m_connection.randr()->firstEvent : 0;
    if (randr != 0 && type == randr + XCB_RANDR_SCREEN_CHANGE_NOTIFY) {
        const auto& change = as<xcb_randr_screen_change_notify_event_t>(event);
        noteRootSize(QSizeF(change.width, change.height), QSizeF(change.mwidth, change.mheight));
        screensChanged();
    } else if (randr != 0 && type == randr + XCB_RANDR_NOTIFY) {
        screensChanged();
        const auto& notify = as<xcb_randr_notify_event_t>(event);
        if (notify.subCode == XCB_RANDR_NOTIFY_CRTC_CHANGE)
            noteMonitorState(notify.u.cc);
    } else if (type == XCB_CONFIGURE_NOTIFY) {
        // The root window's own: it was resized, or the list of monitors was edited.
        if (as<xcb_configure_notify_event_t>(event).window == m_connection.root())
            screensChanged();
        else
            m_settling.desktopStirred(steady_clock::now());
    } else if (type == XCB_PROPERTY_NOTIFY) {
        const auto& change = as<xcb_property_notify_event_t>(event);
        if (change.window == m_connection.root() &&
            change.atom == m_connection.ewmhAtoms()._NET_WORKAREA)
            m_settling.desktopStirred(steady_clock::now());
    }
}

void LMX11ScreensWatcher::noteRootSize(const QSizeF& pixels, const QSizeF& millimetres) {
    m_millimetresPerPixel = QSizeF(ratio(millimetres.width(), pixels.width()),
                                   ratio(millimetres.height(), pixels.height()));
}

void LMX11ScreensWatcher::noteMonitorState(const xcb_randr_crtc_change_t& change) {
    const std::pair state(change.mode, QRect(change.x, change.y, change.width, change.height));
    const auto known = m_monitorStates.constFind(change.crtc);
    m_haveFlickered |= known != m_monitorStates.constEnd() && *known != state;
    m_monitorStates.insert(change.crtc, state);
}

void LMX11ScreensWatcher::screensChanged() {
    if (!m_settling.isUnsettled())
        m_connection.selectEvents(m_connection.root(), XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY);
    m_settling.screensChanged(steady_clock::now());
    if (!m_timer.isActive())
        waitUntilDeadline();
}

void LMX11ScreensWatcher::checkWhetherSettled() {
    // After the program was busy the timer may come before events that are waiting already.
    m_connection.dispatchEvents();
    if (!m_settling.settle(steady_clock::now())) {
        waitUntilDeadline();
        return;
    }
    m_timer.stop();
    m_connection.deselectEvents(m_connection.root(), XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY);
    m_connection.flush();
    m_monitorStates.clear();
    Q_EMIT settled(std::exchange(m_haveFlickered, false));
}

/// One timer for the whole burst: events only move the deadline, which is looked up when it fires.
void LMX11ScreensWatcher::waitUntilDeadline() {
    const auto deadline = m_settling.deadline();
    if (!deadline)
        return;
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(*deadline - steady_clock::now());
    m_timer.start(std::max(left, 1ms));
}
