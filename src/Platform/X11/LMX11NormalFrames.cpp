// SPDX-License-Identifier: MIT
#include "Platform/X11/LMX11NormalFrames.h"

#include "Platform/X11/LMX11ApplicationIndex.h"

#include <QAbstractEventDispatcher>

#include <algorithm>

using namespace std::chrono_literals;

namespace {

/// Managers change states and frames in either order, and windows that are dragged change all the
/// time.
constexpr auto restTime = 150ms;

bool fills(const LMX11Window& window) {
    return window.states.isMaximized() || window.states.isFullscreen;
}

const QRect* monitorOf(const QRect& frame, const QList<QRect>& monitors) {
    const auto found = std::ranges::find_if(
        monitors, [&](const QRect& monitor) { return monitor.contains(frame.center()); });
    return found != monitors.end() ? &*found : nullptr;
}

} // namespace

LMX11NormalFrames::LMX11NormalFrames(LMX11Connection& connection, LMX11ApplicationIndex& index)
    : m_connection(connection), m_index(index), m_reader(connection),
      m_observer(connection.addEventObserver([this](const auto& event) { observe(event); })),
      m_filter(connection.addEventFilter([this](const auto&) {
          if (m_areWindowsNew || !m_changed.isEmpty())
              m_timer.start();
      })) {
    m_timer.setSingleShot(true);
    m_timer.setInterval(restTime);
    m_timer.callOnTimeout([this] { readChangedWindows(); });
    if (QAbstractEventDispatcher::instance() != nullptr)
        m_timer.start();
}

void LMX11NormalFrames::observe(const xcb_generic_event_t& event) {
    const uint8_t type = LMXcbEventType(event);
    if (type == XCB_DESTROY_NOTIFY) {
        const auto& destroyed = reinterpret_cast<const xcb_destroy_notify_event_t&>(event);
        m_frames.remove(destroyed.window);
        m_watched.remove(destroyed.window);
        m_changed.remove(destroyed.window);
    } else if (type == XCB_CONFIGURE_NOTIFY) {
        const auto& changed = reinterpret_cast<const xcb_configure_notify_event_t&>(event);
        if (changed.window != m_connection.ownWindow())
            m_changed.insert(changed.window);
    } else if (type == XCB_PROPERTY_NOTIFY) {
        const auto& changed = reinterpret_cast<const xcb_property_notify_event_t&>(event);
        if (changed.atom == m_connection.ewmhAtoms()._NET_WM_STATE)
            m_changed.insert(changed.window);
        m_areWindowsNew |= changed.atom == m_connection.ewmhAtoms()._NET_CLIENT_LIST;
    }
}

void LMX11NormalFrames::readChangedWindows() {
    if (std::exchange(m_areWindowsNew, false))
        m_index.refresh();
    QList<xcb_window_t> windows;
    for (const xcb_window_t window : m_index.stackingOrder()) {
        if (m_changed.contains(window) || !m_watched.contains(window))
            windows.append(window);
        m_watched.insert(window);
    }
    m_changed.clear();
    if (!windows.isEmpty() && m_connection.isConnected())
        note(m_reader.readFrames(windows));
}

void LMX11NormalFrames::note(const LMX11Window& window) {
    if (window.exists && !fills(window))
        m_frames.insert(window.identifier, window.geometry.frame());
}

void LMX11NormalFrames::note(const LMX11Reading& reading) {
    for (const LMX11Window& window : reading.windows) {
        if (!window.states.isMinimized || !m_frames.contains(window.identifier))
            note(window);
    }
}

std::optional<QRect> LMX11NormalFrames::frameOf(const LMX11Window& window,
                                                const QList<QRect>& monitors) const {
    const auto known = m_frames.constFind(window.identifier);
    if (!fills(window) || known == m_frames.cend())
        return std::nullopt;
    const QRect* then = monitorOf(*known, monitors);
    const QRect* now = monitorOf(window.geometry.frame(), monitors);
    return then != nullptr && now != nullptr ? known->translated(now->topLeft() - then->topLeft())
                                             : *known;
}
