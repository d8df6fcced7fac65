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

/// Whether managers obey a single request: no state of the window has to be changed for it.
bool isPlain(const LMX11Window& window, bool forResizing) {
    return window.exists && !window.states.isFullscreen && !window.states.isMaximized() &&
           (!forResizing || (window.structure.isResizable && !window.states.isShaded));
}

} // namespace

bool LMX11FrameSetter::Goal::isReached(const LMX11Geometry& geometry) const {
    const QRect frame = geometry.frame();
    return (!origin || frame.topLeft() == *origin) && (!size || frame.size() == *size);
}

/// Managers push a window that grows beyond the screen; the user may have put it there. A manager
/// with another notion of gravity is off by the decorations, always by the same.
bool LMX11FrameSetter::Goal::mayGetNearer(const LMX11Geometry& geometry) const {
    const QPoint miss = origin.value_or(QPoint()) - geometry.frame().topLeft();
    return origin && !miss.isNull() && (size || isWithinDecorations(miss, geometry));
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

LMX11FrameSetter::LMX11FrameSetter(LMX11Connection& connection, LMX11WindowManager& windowManager,
                                   LMX11NormalFrames& normalFrames)
    : m_connection(connection), m_windowManager(windowManager), m_normalFrames(normalFrames),
      m_reader(connection),
      m_subscription(connection.addEventFilter([this](const xcb_generic_event_t& event) {
          if (LMXcbEventType(event) == XCB_DESTROY_NOTIFY)
              m_refusals.remove(reinterpret_cast<const xcb_destroy_notify_event_t&>(event).window);
      })) {}

LMPlatformStatus LMX11FrameSetter::setPosition(const LMX11Reading& reading,
                                               const QPointF& position) {
    LMX11Window window = reading.windows.first();
    const Goal goal = goalFor(position, reading.coordinates, window);
    const LMPlatformStatus status = reach(reading.coordinates, window, goal);
    noteRefusal(window, *goal.origin);
    m_normalFrames.note(window);
    return status;
}

LMPlatformStatus LMX11FrameSetter::setSize(const LMX11Reading& reading, const QSizeF& size) {
    LMX11Window window = reading.windows.first();
    const LMPlatformStatus status =
        reach(reading.coordinates, window, goalFor(size, reading.coordinates, window));
    m_normalFrames.note(window);
    return status;
}

void LMX11FrameSetter::setPlainFrame(const LMX11Coordinates& coordinates, LMX11Window& window,
                                     const QRectF& frame) {
    const QPointF place = coordinates.rootFromGlobal(frame.topLeft());
    const Goal goal{QPoint(pixel(place.x()), pixel(place.y())),
                    QSize(pixel(frame.width()), pixel(frame.height()))};
    if (!window.exists || window.states.isFullscreen || window.states.isMaximized() ||
        !goal.fillsMonitor(coordinates.monitors()) || goal.isReached(window.geometry))
        return;
    m_deadline = after(answerTime);
    m_connection.selectEvents(window.identifier, XCB_EVENT_MASK_PROPERTY_CHANGE);
    (void)reachPlainly(window, goal); // LMAccessibility is to tell what is amiss.
    m_normalFrames.note(window);
}

LMX11FrameSetter::Goal LMX11FrameSetter::goalFor(const LMAttributeValue& value,
                                                 const LMX11Coordinates& coordinates,
                                                 const LMX11Window& window) const {
    if (const auto* position = std::get_if<QPointF>(&value)) {
        const QPointF place = coordinates.rootFromGlobal(*position);
        return {QPoint(pixel(place.x()), pixel(place.y())), std::nullopt};
    }
    const auto size = std::get<QSizeF>(value);
    const QPoint place = window.geometry.frame().topLeft();
    const auto refusal = m_refusals.constFind(window.identifier);
    const bool isRefused = refusal != m_refusals.constEnd() && refusal->granted == place;
    return {isRefused ? refusal->wanted : place, QSize(pixel(size.width()), pixel(size.height()))};
}

void LMX11FrameSetter::noteRefusal(const LMX11Window& window, const QPoint& wanted) {
    const QPoint granted = window.geometry.frame().topLeft();
    if (window.exists && granted != wanted)
        m_refusals.insert(window.identifier, {wanted, granted});
    else
        m_refusals.remove(window.identifier);
}

QList<bool> LMX11FrameSetter::setTogether(LMX11Reading& reading,
                                          const QList<LMAttributeValue>& values) {
    struct Request {
        Goal goal;
        LMX11Geometry before;
        bool isSent = false;
    };
    QList<Request> requests;
    QList<LMX11Window*> asked;
    for (qsizetype index = 0; index < values.size(); ++index) {
        LMX11Window& window = reading.windows[index];
        const Goal goal = goalFor(values[index], reading.coordinates, window);
        const bool isSent = isPlain(window, goal.size.has_value()) &&
                            !goal.fillsMonitor(reading.coordinates.monitors()) &&
                            send(window, goal);
        requests.append({goal, window.geometry, isSent});
        if (isSent)
            asked.append(&window);
    }
    if (!asked.isEmpty() &&
        !m_windowManager.waitUntilCaughtUp(after(asked.size() * answerTime), answerTime))
        return QList<bool>(values.size(), false);
    m_reader.refresh(asked);
    for (const LMX11Window* window : std::as_const(asked))
        m_normalFrames.note(*window);
    QList<bool> done;
    for (qsizetype index = 0; index < requests.size(); ++index) {
        const LMX11Window& window = reading.windows[index];
        const auto& [goal, before, isSent] = requests[index];
        const bool isAnswered = isSent && window.geometry != before;
        done.append(window.exists && (goal.isReached(window.geometry) ||
                                      (isAnswered && !goal.mayGetNearer(window.geometry))));
        if (isSent || done.last())
            noteRefusal(window, *goal.origin);
    }
    return done;
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
    return status ? reachPlainly(window, goal) : status;
}

/// The same for a window that is not maximised and is not to be.
LMPlatformStatus LMX11FrameSetter::reachPlainly(LMX11Window& window, const Goal& goal) {
    LMPlatformStatus status = request(window, goal);
    if (status && goal.size && window.states.isShaded && !goal.isReached(window.geometry))
        status = resizeShaded(window, goal);

    const Goal place{goal.origin, std::nullopt};
    if (status && goal.size && goal.mayGetNearer(window.geometry))
        status = request(window, place);
    if (status && place.mayGetNearer(window.geometry)) {
        const QPoint miss = *goal.origin - window.geometry.frame().topLeft();
        status = request(window, {*goal.origin + miss, std::nullopt});
    }
    return status;
}

/// Asks for what differs from the goal. False when nothing does.
bool LMX11FrameSetter::send(const LMX11Window& window, const Goal& goal) {
    const LMX11Geometry& geometry = window.geometry;
    std::optional<QPoint> place;
    std::optional<QSize> size;
    if (goal.origin && geometry.frame().topLeft() != *goal.origin)
        place = geometry.requestOrigin(*goal.origin);
    if (goal.size && geometry.frame().size() != *goal.size)
        size = geometry.clientSize(*goal.size);
    if (!place && !size)
        return false;
    m_windowManager.moveResize(window.identifier, place, size);
    return true;
}

/// Asks for what differs from the goal, waits, and reads the window again.
LMPlatformStatus LMX11FrameSetter::request(LMX11Window& window, const Goal& goal) {
    const LMX11Geometry before = window.geometry;
    if (!send(window, goal))
        return LMPlatformStatus::success();
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
    m_reader.refresh({&window});
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
