// SPDX-License-Identifier: MIT
#include "Platform/X11/LMX11FrameSetter.h"

#include <algorithm>
#include <cmath>

using namespace std::chrono_literals;

namespace {

/// What a frozen window manager costs per window.
constexpr auto answerTime = 250ms;
/// How long a request that had no effect may still take effect after the manager has worked
/// through it. None of the managers tried out needs it.
constexpr auto graceTime = 10ms;
/// Marco tells the new decorations of a maximised window a little later. GTK puts the shadow of a
/// window that is no longer maximised back step by step, a frame each.
constexpr auto quietTime = 10ms;
constexpr auto quietShadowTime = 50ms;
constexpr auto restlessTime = 250ms;

LMX11Connection::Deadline after(std::chrono::milliseconds duration) {
    return std::chrono::steady_clock::now() + duration;
}

LMPlatformStatus failure(LMPlatformError error) {
    return LMPlatformStatus::failure(error);
}

/// X has no coordinates beyond 16 bits; what is not a number stands for zero.
int pixel(double value) {
    return std::isfinite(value) ? int(std::lround(std::clamp(value, -32768.0, 32767.0))) : 0;
}

bool isWithinDecorations(const QPoint& miss, const LMX11Geometry& geometry) {
    const QMargins margins = geometry.decorations + geometry.shadow;
    return std::abs(miss.x()) <= margins.left() + margins.right() &&
           std::abs(miss.y()) <= margins.top() + margins.bottom();
}

} // namespace

bool LMX11FrameSetter::Goal::isReached(const LMX11Geometry& geometry) const {
    const QRect frame = geometry.frame();
    return (!origin || frame.topLeft() == *origin) && (!size || frame.size() == *size);
}

/// Panels take little: a maximised window still covers nine tenths of its monitor.
bool LMX11FrameSetter::Goal::fillsMonitor(const QList<QRect>& monitors) const {
    if (!origin || !size)
        return false;
    const QRect frame(*origin, *size);
    return std::ranges::any_of(monitors, [&](const QRect& monitor) {
        return monitor.contains(frame) && 10 * qint64(frame.width()) * frame.height() >=
                                              9 * qint64(monitor.width()) * monitor.height();
    });
}

LMX11FrameSetter::LMX11FrameSetter(LMX11Connection& connection, LMX11WindowManager& windowManager)
    : m_connection(connection), m_windowManager(windowManager), m_reader(connection),
      m_subscription(connection.addEventFilter([this](const xcb_generic_event_t& event) {
          if (LMXcbEventType(event) == XCB_DESTROY_NOTIFY)
              m_refusals.remove(reinterpret_cast<const xcb_destroy_notify_event_t&>(event).window);
      })) {}

LMPlatformStatus LMX11FrameSetter::setPosition(const LMX11Reading& reading,
                                               const QPointF& position) {
    LMX11Window window = reading.windows.first();
    const QPointF place = reading.coordinates.rootFromGlobal(position);
    const QPoint wanted(pixel(place.x()), pixel(place.y()));
    m_refusals.remove(window.identifier);
    const LMPlatformStatus status = reach(reading.coordinates, window, {wanted, std::nullopt});
    const QPoint granted = window.geometry.frame().topLeft();
    if (window.exists && granted != wanted)
        m_refusals.insert(window.identifier, {wanted, granted});
    return status;
}

LMPlatformStatus LMX11FrameSetter::setSize(const LMX11Reading& reading, const QSizeF& size) {
    LMX11Window window = reading.windows.first();
    const QPoint place = window.geometry.frame().topLeft();
    const auto refusal = m_refusals.constFind(window.identifier);
    const bool isRefused = refusal != m_refusals.constEnd() && refusal->granted == place;
    const QSize wanted(pixel(size.width()), pixel(size.height()));
    return reach(reading.coordinates, window, {isRefused ? refusal->wanted : place, wanted});
}

/// Takes the window to the goal. Success says that the manager has done what it is ready to do.
LMPlatformStatus LMX11FrameSetter::reach(const LMX11Coordinates& coordinates, LMX11Window& window,
                                         const Goal& goal) {
    if (!window.exists)
        return failure(m_connection.isConnected() ? LMPlatformError::InvalidElement
                                                  : LMPlatformError::CannotComplete);
    if (window.states.isFullscreen)
        return failure(LMPlatformError::NotSettable);
    if (goal.isReached(window.geometry))
        return LMPlatformStatus::success();

    m_deadline = after(answerTime);
    m_connection.selectEvents(window.identifier, XCB_EVENT_MASK_PROPERTY_CHANGE);
    LMPlatformStatus status = LMPlatformStatus::success();
    if (goal.fillsMonitor(coordinates.monitors()) && !window.states.isMaximized()) {
        status = changeMaximized(window, Change::Add);
        if (status && goal.isReached(window.geometry))
            return status;
    }
    if (status && window.states.isMaximized())
        status = changeMaximized(window, Change::Remove);
    if (status)
        status = request(window, goal);
    if (status && goal.size && window.states.isShaded && !goal.isReached(window.geometry))
        status = resizeShaded(window, goal);

    const Goal place{goal.origin, std::nullopt};
    // Managers push a window that grows beyond the screen; the user may have put it there.
    if (status && goal.size && !place.isReached(window.geometry))
        status = request(window, place);
    // A manager with another notion of gravity is off by the decorations, always by the same.
    const QPoint miss = goal.origin.value_or(QPoint()) - window.geometry.frame().topLeft();
    if (status && !place.isReached(window.geometry) && isWithinDecorations(miss, window.geometry))
        status = request(window, {*goal.origin + miss, std::nullopt});
    return status;
}

/// Asks for what differs from the goal, waits, and reads the window again.
LMPlatformStatus LMX11FrameSetter::request(LMX11Window& window, const Goal& goal) {
    const LMX11Geometry before = window.geometry;
    std::optional<QPoint> place;
    std::optional<QSize> size;
    if (goal.origin && before.frame().topLeft() != *goal.origin)
        place = before.requestOrigin(*goal.origin);
    if (goal.size && before.frame().size() != *goal.size)
        size = before.clientSize(*goal.size);
    if (!place && !size)
        return LMPlatformStatus::success();
    m_windowManager.moveResize(window.identifier, place, size);
    if (!m_windowManager.waitUntilCaughtUp(m_deadline))
        return failure(LMPlatformError::CannotComplete);
    LMPlatformStatus status = refresh(window);
    if (status && window.geometry == before &&
        waitForChange(window, std::min(m_deadline, after(graceTime))))
        status = refresh(window);
    if (status && window.geometry == before && !m_windowManager.isRunning())
        return failure(LMPlatformError::CannotComplete);
    return status;
}

LMPlatformStatus LMX11FrameSetter::changeMaximized(LMX11Window& window, Change change) {
    const xcb_ewmh_connection_t& atoms = m_connection.ewmhAtoms();
    return changeState(window, change, atoms._NET_WM_STATE_MAXIMIZED_VERT,
                       atoms._NET_WM_STATE_MAXIMIZED_HORZ);
}

/// kwin does not resize shaded windows. Not done before it is needed, because marco gives a window
/// the focus when it is no longer shaded.
LMPlatformStatus LMX11FrameSetter::resizeShaded(LMX11Window& window, const Goal& goal) {
    const xcb_atom_t shaded = m_connection.ewmhAtoms()._NET_WM_STATE_SHADED;
    LMPlatformStatus status = changeState(window, Change::Remove, shaded);
    if (status)
        status = request(window, goal);
    const LMPlatformStatus restored = changeState(window, Change::Add, shaded);
    return status ? restored : status;
}

LMPlatformStatus LMX11FrameSetter::changeState(LMX11Window& window, Change change, xcb_atom_t first,
                                               xcb_atom_t second) {
    m_windowManager.changeState(window.identifier, change, first, second);
    if (!m_windowManager.waitUntilCaughtUp(m_deadline))
        return failure(LMPlatformError::CannotComplete);
    const auto quiet = window.hasShadowProperty ? quietShadowTime : quietTime;
    const Deadline end = after(restlessTime);
    while (waitForChange(window, std::min(end, after(quiet)))) {
    }
    m_deadline = after(answerTime); // The manager has not been asked anything meanwhile.
    return refresh(window);
}

LMPlatformStatus LMX11FrameSetter::refresh(LMX11Window& window) {
    m_reader.refresh(window);
    if (window.exists)
        return LMPlatformStatus::success();
    return failure(m_connection.isConnected() ? LMPlatformError::InvalidElement
                                              : LMPlatformError::CannotComplete);
}

bool LMX11FrameSetter::waitForChange(const LMX11Window& window, Deadline deadline) {
    const auto concerns = [&](const xcb_generic_event_t& event) {
        switch (LMXcbEventType(event)) {
        case XCB_CONFIGURE_NOTIFY:
            return reinterpret_cast<const xcb_configure_notify_event_t&>(event).window ==
                   window.identifier;
        case XCB_PROPERTY_NOTIFY: {
            const auto& notify = reinterpret_cast<const xcb_property_notify_event_t&>(event);
            return notify.window == window.identifier &&
                   (notify.atom == m_connection.atoms().gtkFrameExtents ||
                    notify.atom == m_connection.ewmhAtoms()._NET_FRAME_EXTENTS);
        }
        default:
            return false;
        }
    };
    return m_connection.waitForEvent(concerns, deadline);
}
