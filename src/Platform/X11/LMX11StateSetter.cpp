// SPDX-License-Identifier: MIT
#include "Platform/X11/LMX11StateSetter.h"

#include "Platform/X11/LMX11WindowManager.h"
#include "Platform/X11/LMX11WindowState.h"

#include <algorithm>

using namespace std::chrono_literals;

namespace {

/// What a frozen window manager costs. Twice what frames get: changing a state means a new frame,
/// new decorations and showing or hiding, and mutter repaints in between.
constexpr auto answerTime = 500ms;
/// A busy one may well answer next time.
constexpr int mostMissedAnswers = 2;
/// How long a manager that has worked through the requests may be silent before it is taken to
/// have refused what has not come. marco and mutter hide and show windows when they are idle.
constexpr auto quietTime = 50ms;
constexpr auto restTime = 10ms;

LMX11Connection::Deadline after(std::chrono::milliseconds duration) {
    return std::chrono::steady_clock::now() + duration;
}

using Change = LMX11WindowManager::Change;

bool isReached(const LMX11Window& window, const LMWindowState& wanted,
               const QStringList& desktopNames) {
    LMWindowState present = LMX11StateOfWindow(window, desktopNames);
    present.desktopName = wanted.desktopName;
    present.normalFrame = wanted.normalFrame;
    return !window.exists || present == wanted;
}

std::optional<quint32> desktopOf(const LMWindowState& state) {
    if (state.isOnAllDesktops)
        return LMX11Window::allDesktops;
    return state.desktop ? std::optional(quint32(*state.desktop)) : std::nullopt;
}

} // namespace

LMX11StateSetter::LMX11StateSetter(LMX11Connection& connection, LMX11WindowManager& windowManager)
    : m_connection(connection), m_windowManager(windowManager), m_reader(connection) {}

bool LMX11StateSetter::reach(LMX11Reading& reading, const QList<LMWindowState>& wanted) {
    Tasks tasks;
    bool haveShadows = false;
    m_asked.clear();
    for (qsizetype index = 0; index < wanted.size(); ++index) {
        LMX11Window& window = reading.windows[index];
        if (isReached(window, wanted[index], reading.desktopNames))
            continue;
        m_connection.selectEvents(window.identifier, XCB_EVENT_MASK_PROPERTY_CHANGE);
        tasks.append({&window, wanted[index]});
        m_asked.insert(window.identifier);
        haveShadows = haveShadows || window.hasShadowProperty;
    }
    // The last time for what a manager has undone or forgotten over something else.
    int missed = 0;
    for (const Means means : {Means::States, Means::Mapping, Means::Mapping}) {
        if (tasks.isEmpty() || missed == mostMissedAnswers)
            break;
        for (const Task& task : std::as_const(tasks))
            send(task, LMX11StateOfWindow(*task.window, reading.desktopNames), means);
        if (!settle(tasks, reading.desktopNames))
            ++missed;
    }
    if (!m_asked.isEmpty() && missed < mostMissedAnswers)
        waitForRest(haveShadows);
    return tasks.isEmpty() || missed == 0;
}

void LMX11StateSetter::send(const Task& task, const LMWindowState& is, Means means) {
    const xcb_ewmh_connection_t& atoms = m_connection.ewmhAtoms();
    const LMWindowState& wanted = task.wanted;
    const xcb_window_t window = task.window->identifier;
    const auto differs = [&](Change direction, bool LMWindowState::*flag) {
        return is.*flag != wanted.*flag && wanted.*flag == (direction == Change::Add);
    };
    const auto changeWhatDiffers = [&](Change direction, bool LMWindowState::*flag,
                                       xcb_atom_t state) {
        if (differs(direction, flag))
            m_windowManager.changeState(window, direction, state);
    };
    using S = LMWindowState;
    const auto desktop = desktopOf(wanted);
    changeWhatDiffers(Change::Remove, &S::isShaded, atoms._NET_WM_STATE_SHADED);
    for (const Change direction : {Change::Remove, Change::Add}) {
        if (direction == Change::Add && desktop && desktopOf(is) != desktop)
            m_windowManager.sendToDesktop(window, *desktop);
        changeWhatDiffers(direction, &S::isKeptAbove, atoms._NET_WM_STATE_ABOVE);
        changeWhatDiffers(direction, &S::isKeptBelow, atoms._NET_WM_STATE_BELOW);
        const bool changesWidth = differs(direction, &S::isMaximizedHorizontally);
        const bool changesHeight = differs(direction, &S::isMaximizedVertically);
        if (changesWidth || changesHeight) // In one request: xfwm4 does not obey to two.
            m_windowManager.changeState(window, direction,
                                        changesWidth ? atoms._NET_WM_STATE_MAXIMIZED_HORZ
                                                     : atoms._NET_WM_STATE_MAXIMIZED_VERT,
                                        changesWidth && changesHeight
                                            ? atoms._NET_WM_STATE_MAXIMIZED_VERT
                                            : xcb_atom_t(XCB_ATOM_NONE));
        changeWhatDiffers(direction, &S::isFullscreen, atoms._NET_WM_STATE_FULLSCREEN);
    }
    if (is.isMinimized && !wanted.isMinimized)
        show(window, wanted, means);
    if (!is.isMinimized)
        changeWhatDiffers(Change::Add, &S::isShaded, atoms._NET_WM_STATE_SHADED);
    if (!is.isMinimized && wanted.isMinimized)
        m_windowManager.minimize(window);
}

void LMX11StateSetter::show(xcb_window_t window, const LMWindowState& wanted, Means means) {
    if (means == Means::States)
        m_windowManager.changeState(window, Change::Remove,
                                    m_connection.ewmhAtoms()._NET_WM_STATE_HIDDEN);
    else
        m_windowManager.map(window, desktopOf(wanted));
}

/// Waits until the manager has answered, and leaves the tasks that are not done.
bool LMX11StateSetter::settle(Tasks& tasks, const QStringList& desktopNames) {
    const bool isAnswered =
        m_windowManager.waitUntilCaughtUp(after(tasks.size() * answerTime), answerTime);
    const Deadline deadline = after(isAnswered ? answerTime : 0ms);
    do {
        LMX11WindowReader::Windows windows;
        for (const Task& task : std::as_const(tasks))
            windows.append(task.window);
        m_reader.refresh(windows);
        tasks.removeIf(
            [&](const Task& task) { return isReached(*task.window, task.wanted, desktopNames); });
    } while (!tasks.isEmpty() && waitForChange(std::min(deadline, after(quietTime))));
    return isAnswered;
}

/// Frames and shadows follow the states, step by step with some toolkits.
void LMX11StateSetter::waitForRest(bool haveShadows) {
    const Deadline deadline = after(answerTime);
    while (waitForChange(std::min(deadline, after(haveShadows ? quietTime : restTime)))) {
    }
}

bool LMX11StateSetter::waitForChange(Deadline deadline) {
    const auto concerns = [this](const xcb_generic_event_t& event) {
        if (!m_windowManager.mayBeItsWork(event))
            return false;
        switch (LMXcbEventType(event)) {
        case XCB_CONFIGURE_NOTIFY:
            return m_asked.contains(
                reinterpret_cast<const xcb_configure_notify_event_t&>(event).window);
        case XCB_PROPERTY_NOTIFY:
            return m_asked.contains(
                reinterpret_cast<const xcb_property_notify_event_t&>(event).window);
        default:
            return false;
        }
    };
    return m_connection.waitForEvent(concerns, deadline);
}
