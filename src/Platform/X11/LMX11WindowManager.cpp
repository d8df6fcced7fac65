// SPDX-License-Identifier: MIT
#include "Platform/X11/LMX11WindowManager.h"

#include "Platform/X11/LMX11Properties.h"
#include "Utilities/LMFormat.h"

#include <algorithm>
#include <chrono>
#include <limits>
#include <xcb/xcb_icccm.h>

namespace {

/// Source indication of pagers and other tools that act for the user: managers obey without asking
/// themselves whether the application may (EWMH, "Source indication in requests").
constexpr uint32_t userSource = 2;

/// A manager that has left so many requests in a row unanswered is taken to be frozen: nobody waits
/// long for it any more until it answers again.
constexpr int mostMissedFences = 8;
constexpr std::chrono::milliseconds frozenManagerTime{10};

uint32_t coordinate(int value) {
    constexpr int low = std::numeric_limits<int16_t>::min();
    constexpr int high = std::numeric_limits<int16_t>::max();
    return static_cast<uint32_t>(std::clamp(value, low, high));
}

uint32_t extent(int value) {
    return static_cast<uint32_t>(std::clamp(value, 1, int(std::numeric_limits<int16_t>::max())));
}

} // namespace

xcb_window_t LMX11WindowManager::supportingWindow() {
    const xcb_atom_t atom = m_connection.ewmhAtoms()._NET_SUPPORTING_WM_CHECK;
    const auto window =
        LMX11PropertyRequest(m_connection, m_connection.root(), atom).receive(m_connection);
    const xcb_window_t candidate = window.firstWord().value_or(XCB_WINDOW_NONE);
    if (candidate == XCB_WINDOW_NONE)
        return XCB_WINDOW_NONE;
    const auto itself = LMX11PropertyRequest(m_connection, candidate, atom).receive(m_connection);
    return itself.firstWord() == candidate ? candidate : xcb_window_t(XCB_WINDOW_NONE);
}

bool LMX11WindowManager::isRunning() {
    return supportingWindow() != XCB_WINDOW_NONE;
}

QString LMX11WindowManager::name() {
    const xcb_window_t window = supportingWindow();
    if (window == XCB_WINDOW_NONE)
        return {};
    const LMX11PropertyRequest request(m_connection, window, m_connection.ewmhAtoms()._NET_WM_NAME);
    return LMX11Text(request.receive(m_connection), m_connection.atoms());
}

LMPermission LMX11WindowManager::checkPermission() {
    LMPermission permission;
    if (!m_connection.isConnected())
        permission.missing = {LMLocalized("The X server does not answer.")};
    else if (!isRunning())
        permission.missing = {LMLocalized("No window manager is running.")};
    else
        permission.missing = missingProtocols();
    permission.isTrusted = permission.missing.isEmpty();
    return permission;
}

QStringList LMX11WindowManager::missingProtocols() {
    const xcb_ewmh_connection_t& atoms = m_connection.ewmhAtoms();
    const std::pair<xcb_atom_t, const char*> needed[] = {
        {atoms._NET_CLIENT_LIST_STACKING, "_NET_CLIENT_LIST_STACKING"},
        {atoms._NET_MOVERESIZE_WINDOW, "_NET_MOVERESIZE_WINDOW"},
        {atoms._NET_ACTIVE_WINDOW, "_NET_ACTIVE_WINDOW"},
        {atoms._NET_WM_STATE, "_NET_WM_STATE"},
        {atoms._NET_WM_STATE_HIDDEN, "_NET_WM_STATE_HIDDEN"},
    };
    const LMX11PropertyRequest request(m_connection, m_connection.root(), atoms._NET_SUPPORTED);
    const LMX11Property supported = request.receive(m_connection);
    QStringList missing;
    for (const auto& [atom, name] : needed) {
        if (!supported.containsWord(atom))
            missing.append(LMFormat(LMLocalized("The window manager does not support %@."),
                                    {QLatin1String(name)}));
    }
    return missing;
}

/// A manager receives all requests to configure windows that it may have to manage, ours included,
/// and passes on those for windows that were never mapped (ICCCM 4.1.5). It does so in the order in
/// which requests came. openbox, xfwm4, marco, kwin and mutter have all carried out a request to
/// move a window by then.
bool LMX11WindowManager::waitUntilCaughtUp(LMX11Connection::Deadline deadline,
                                           std::optional<std::chrono::milliseconds> patience) {
    using Clock = std::chrono::steady_clock;
    m_fence = m_fence == std::numeric_limits<int16_t>::max() ? int16_t(0) : int16_t(m_fence + 1);
    const auto place = static_cast<uint32_t>(m_fence);
    xcb_configure_window(m_connection.xcb(), m_connection.ownWindow(), XCB_CONFIG_WINDOW_X, &place);
    bool hasCaughtUp = false;
    const auto isSignOfLife = [&](const xcb_generic_event_t& event) {
        const auto& notify = reinterpret_cast<const xcb_configure_notify_event_t&>(event);
        hasCaughtUp = LMXcbEventType(event) == XCB_CONFIGURE_NOTIFY &&
                      notify.window == m_connection.ownWindow() && notify.x == m_fence;
        return hasCaughtUp || (patience && mayBeItsWork(event) && Clock::now() < deadline);
    };
    if (m_missedFences >= mostMissedFences)
        deadline = std::min(deadline, Clock::now() + frozenManagerTime);
    const auto nextDeadline = [&] {
        return patience ? std::min(deadline, Clock::now() + *patience) : deadline;
    };
    while (!hasCaughtUp && m_connection.waitForEvent(isSignOfLife, nextDeadline())) {
    }
    m_missedFences = hasCaughtUp ? 0 : m_missedFences + 1;
    return hasCaughtUp;
}

bool LMX11WindowManager::mayBeItsWork(const xcb_generic_event_t& event) const {
    if (LMXcbEventType(event) != XCB_PROPERTY_NOTIFY)
        return LMXcbEventType(event) == XCB_CONFIGURE_NOTIFY;
    const xcb_ewmh_connection_t& atoms = m_connection.ewmhAtoms();
    const xcb_atom_t titles[] = {XCB_ATOM_WM_NAME, XCB_ATOM_WM_ICON_NAME, atoms._NET_WM_NAME,
                                 atoms._NET_WM_ICON_NAME};
    const auto& changed = reinterpret_cast<const xcb_property_notify_event_t&>(event);
    return std::ranges::find(titles, changed.atom) == std::end(titles);
}

void LMX11WindowManager::moveResize(xcb_window_t window, const std::optional<QPoint>& place,
                                    const std::optional<QSize>& clientSize) {
    constexpr uint32_t hasPlace = 3u << 8;
    constexpr uint32_t hasSize = 3u << 10;
    const uint32_t flags = XCB_GRAVITY_NORTH_WEST | (place ? hasPlace : 0) |
                           (clientSize ? hasSize : 0) | userSource << 12;
    const QPoint origin = place.value_or(QPoint());
    const QSize size = clientSize.value_or(QSize());
    m_connection.sendToWindowManager(window, m_connection.ewmhAtoms()._NET_MOVERESIZE_WINDOW,
                                     {flags, coordinate(origin.x()), coordinate(origin.y()),
                                      extent(size.width()), extent(size.height())});
}

void LMX11WindowManager::changeState(xcb_window_t window, Change change, xcb_atom_t first,
                                     xcb_atom_t second) {
    m_connection.sendToWindowManager(window, m_connection.ewmhAtoms()._NET_WM_STATE,
                                     {static_cast<uint32_t>(change), first, second, userSource, 0});
}

void LMX11WindowManager::minimize(xcb_window_t window) {
    m_connection.sendToWindowManager(window, m_connection.atoms().wmChangeState,
                                     {XCB_ICCCM_WM_STATE_ICONIC, 0, 0, 0, 0});
    // openbox takes no notice of the above for windows of other virtual desktops.
    changeState(window, Change::Add, m_connection.ewmhAtoms()._NET_WM_STATE_HIDDEN);
}

template <typename Event>
void LMX11WindowManager::sendRedirected(const Event& event) {
    std::array<char, 32> buffer{}; // All events are of this size on the wire.
    std::copy_n(reinterpret_cast<const char*>(&event), sizeof event, buffer.begin());
    xcb_send_event(m_connection.xcb(), 0, m_connection.root(), XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
                   buffer.data());
}

/// Really mapping it would not do: mutter leaves minimised windows mapped, and then the server
/// passes no request on.
void LMX11WindowManager::map(xcb_window_t window, std::optional<quint32> desktop) {
    xcb_map_request_event_t event{};
    event.response_type = XCB_MAP_REQUEST;
    event.parent = m_connection.root();
    event.window = window;
    sendRedirected(event);
    if (desktop)
        sendToDesktop(window, *desktop);
    changeState(window, Change::Remove, m_connection.ewmhAtoms()._NET_WM_STATE_DEMANDS_ATTENTION);
}

void LMX11WindowManager::sendToDesktop(xcb_window_t window, quint32 desktop) {
    m_connection.sendToWindowManager(window, m_connection.ewmhAtoms()._NET_WM_DESKTOP,
                                     {desktop, userSource, 0, 0, 0});
}

void LMX11WindowManager::lower(xcb_window_t window) {
    constexpr uint32_t below = XCB_STACK_MODE_BELOW;
    xcb_configure_window(m_connection.xcb(), window, XCB_CONFIG_WINDOW_STACK_MODE, &below);
}

/// Really configuring it would not do: framed windows are not siblings for the server.
void LMX11WindowManager::raiseOnto(xcb_window_t window, xcb_window_t sibling) {
    xcb_configure_request_event_t event{};
    event.response_type = XCB_CONFIGURE_REQUEST;
    event.stack_mode = XCB_STACK_MODE_ABOVE;
    event.parent = m_connection.root();
    event.window = window;
    event.sibling = sibling;
    event.value_mask = XCB_CONFIG_WINDOW_SIBLING | XCB_CONFIG_WINDOW_STACK_MODE;
    sendRedirected(event);
}

void LMX11WindowManager::restackBelow(xcb_window_t window, xcb_window_t sibling) {
    m_connection.sendToWindowManager(window, m_connection.ewmhAtoms()._NET_RESTACK_WINDOW,
                                     {userSource, sibling, XCB_STACK_MODE_BELOW, 0, 0});
}

void LMX11WindowManager::activate(xcb_window_t window, xcb_window_t activeWindow) {
    // Managers refuse requests without the time of the user's action or call them suspicious.
    m_connection.sendToWindowManager(window, m_connection.ewmhAtoms()._NET_ACTIVE_WINDOW,
                                     {userSource, m_connection.serverTime(), activeWindow, 0, 0});
}

void LMX11WindowManager::showDesktop(quint32 desktop) {
    m_connection.sendToWindowManager(m_connection.root(),
                                     m_connection.ewmhAtoms()._NET_CURRENT_DESKTOP,
                                     {desktop, m_connection.serverTime(), 0, 0, 0});
}
