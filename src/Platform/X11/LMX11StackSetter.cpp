// SPDX-License-Identifier: MIT
#include "Platform/X11/LMX11StackSetter.h"

#include "Platform/X11/LMX11ApplicationIndex.h"
#include "Platform/X11/LMX11ViewGuard.h"
#include "Platform/X11/LMX11WindowManager.h"

#include <utility>
#include <vector>

using namespace std::chrono_literals;

namespace {

/// What a frozen window manager costs.
constexpr auto answerTime = 250ms;
/// How long a manager may take to tell the new order after it has read the requests.
constexpr auto quietTime = 50ms;

LMX11Connection::Deadline after(std::chrono::milliseconds duration) {
    return std::chrono::steady_clock::now() + duration;
}

int layerOf(const LMX11Window& window) {
    return int(window.states.isAbove) - int(window.states.isBelow);
}

} // namespace

LMX11StackSetter::LMX11StackSetter(LMX11Connection& connection, LMX11ApplicationIndex& index,
                                   LMX11WindowManager& windowManager)
    : m_connection(connection), m_index(index), m_windowManager(windowManager),
      m_reader(connection) {}

QList<xcb_window_t> LMX11StackSetter::stackingOrder() {
    m_index.refresh();
    QList<xcb_window_t> result = m_index.stackingOrder();
    result.removeIf([this](xcb_window_t window) {
        const auto presence = m_index.presence(window);
        return !presence || !presence->isListed;
    });
    return result;
}

LMPlatformStatus LMX11StackSetter::reach(const QList<xcb_window_t>& wanted) {
    const auto failed = LMPlatformStatus::failure(LMPlatformError::CannotComplete);
    if (!m_windowManager.isRunning())
        return failed;
    const QList<LMX11StackedWindow> before = pile();
    if (LMX11PlanRestacking(before, wanted).isEmpty())
        return LMPlatformStatus::success();
    LMX11ViewGuard view(m_connection, m_windowManager);
    const bool canRestack = knowsRestacking();
    const xcb_window_t staying = canRestack ? xcb_window_t(XCB_WINDOW_NONE) : view.activeWindow();
    const QList<Means> allMeans =
        canRestack ? QList{Means::Asking, Means::Restacking, Means::RestackingAll}
                   : QList{Means::Asking, Means::AsIfUsed, Means::AllByDesktop};
    LMX11Restacking next = LMX11PlanRestacking(before, wanted, staying);
    bool isAnswered = false;
    for (const Means means : allMeans) {
        if (means == allMeans.last())
            next = LMX11PlanRestackingByDesktop(pile(), wanted, view.currentDesktop());
        if (next.isEmpty())
            break;
        request(next, staying, means);
        isAnswered = waitForManager(next.order.size());
        next = waitForOrder(wanted, staying);
    }
    if (isAnswered)
        view.restore();
    return isAnswered || next.isEmpty() ? LMPlatformStatus::success() : failed;
}

QList<LMX11StackedWindow> LMX11StackSetter::pile() {
    QList<LMX11StackedWindow> result;
    const LMX11Reading reading = m_reader.readFrames(stackingOrder());
    for (const LMX11Window& window : reading.windows) {
        if (window.exists)
            result.append({window.identifier, layerOf(window),
                           window.isOnAllDesktops() ? std::nullopt : window.desktop,
                           window.states.isFullscreen});
    }
    return result;
}

/// What is left to be done when the manager has had time to tell the new order.
LMX11Restacking LMX11StackSetter::waitForOrder(const QList<xcb_window_t>& wanted,
                                               xcb_window_t staying) {
    const auto isNews = [this](const xcb_generic_event_t& event) {
        return LMXcbEventType(event) == XCB_PROPERTY_NOTIFY &&
               reinterpret_cast<const xcb_property_notify_event_t&>(event).atom ==
                   m_connection.ewmhAtoms()._NET_CLIENT_LIST_STACKING;
    };
    const auto deadline = after(answerTime);
    LMX11Restacking next;
    do {
        next = LMX11PlanRestacking(pile(), wanted, staying);
    } while (!next.isEmpty() &&
             m_connection.waitForEvent(isNews, std::min(deadline, after(quietTime))));
    return next;
}

bool LMX11StackSetter::knowsRestacking() {
    const xcb_ewmh_connection_t& atoms = m_connection.ewmhAtoms();
    const LMX11PropertyRequest supported(m_connection, m_connection.root(), atoms._NET_SUPPORTED);
    return supported.receive(m_connection).containsWord(atoms._NET_RESTACK_WINDOW);
}

void LMX11StackSetter::request(const LMX11Restacking& plan, xcb_window_t staying, Means means) {
    switch (means) {
    case Means::Asking:
        lower(plan.lowered);
        raise(plan.raised, staying);
        break;
    case Means::Restacking:
        for (const xcb_window_t window : plan.lowered)
            m_windowManager.restackBelow(window, XCB_WINDOW_NONE);
        break;
    case Means::RestackingAll:
        for (qsizetype index = 1; index < plan.order.size(); ++index)
            m_windowManager.restackBelow(plan.order[index], plan.order[index - 1]);
        break;
    case Means::AsIfUsed:
        asIfUsed(plan.lowered + plan.raised, [&] { request(plan, staying, Means::Asking); });
        break;
    case Means::AllByDesktop:
        asIfUsed(plan.order, [&] {
            raise(plan.raised, staying);
            lower(plan.lowered);
        });
        break;
    }
}

void LMX11StackSetter::lower(const QList<xcb_window_t>& windows) {
    for (const xcb_window_t window : windows)
        m_windowManager.lower(window);
}

void LMX11StackSetter::raise(const QList<xcb_window_t>& windows, xcb_window_t sibling) {
    for (const xcb_window_t window : windows)
        m_windowManager.raiseOnto(window, std::exchange(sibling, window));
}

/// Many toolkits keep the time in a window of its own.
QList<xcb_window_t> LMX11StackSetter::timeWindows(QList<xcb_window_t> windows) {
    const xcb_atom_t timeWindow = m_connection.ewmhAtoms()._NET_WM_USER_TIME_WINDOW;
    std::vector<LMX11PropertyRequest> requests;
    for (const xcb_window_t window : std::as_const(windows))
        requests.emplace_back(m_connection, window, timeWindow);
    for (qsizetype index = 0; index < windows.size(); ++index) {
        const auto kept = requests[size_t(index)].receive(m_connection).firstWord();
        windows[index] = kept.value_or(windows[index]);
    }
    return windows;
}

/// Requests what is to be requested while the windows are the last ones that were used. The times
/// are put back. Managers do not take older ones to heart.
void LMX11StackSetter::asIfUsed(const QList<xcb_window_t>& used,
                                const std::function<void()>& requests) {
    const xcb_atom_t userTime = m_connection.ewmhAtoms()._NET_WM_USER_TIME;
    const uint32_t now = m_connection.serverTime();
    const QList<xcb_window_t> windows = timeWindows(used);
    std::vector<LMX11PropertyRequest> times;
    for (const xcb_window_t window : windows)
        times.emplace_back(m_connection, window, userTime);
    const auto set = [&](xcb_window_t window, uint32_t time) {
        xcb_change_property(m_connection.xcb(), XCB_PROP_MODE_REPLACE, window, userTime,
                            XCB_ATOM_CARDINAL, 32, 1, &time);
    };
    for (const xcb_window_t window : windows)
        set(window, now);
    waitForManager(windows.size());
    requests();
    waitForManager(windows.size());
    for (qsizetype index = 0; index < windows.size(); ++index) {
        if (const auto before = times[size_t(index)].receive(m_connection).firstWord())
            set(windows[index], *before);
        else
            xcb_delete_property(m_connection.xcb(), windows[index], userTime);
    }
}

bool LMX11StackSetter::waitForManager(qsizetype requests) {
    return m_windowManager.waitUntilCaughtUp(after(requests * answerTime), answerTime);
}
