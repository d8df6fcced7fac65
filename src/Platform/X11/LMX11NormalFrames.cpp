// SPDX-License-Identifier: MIT
#include "Platform/X11/LMX11NormalFrames.h"

#include "Platform/X11/LMX11ApplicationIndex.h"

#include <QAbstractEventDispatcher>

#include <algorithm>
#include <cstdlib>

using namespace std::chrono_literals;

namespace {

/// Managers change states and frames in either order, and windows that are dragged change all the
/// time.
constexpr auto restTime = 150ms;

/// More than any manager takes to maximise a window; drags take hundreds.
constexpr qsizetype mostPassings = 16;

/// More than marco's and mutter's frames have for the pointer to take hold of, pixels.
constexpr int invisibleBorder = 32;

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
          // Others' news must not put it off: titles may change all the time.
          if (std::exchange(m_hasNews, false))
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
        m_records.remove(destroyed.window);
        m_watched.remove(destroyed.window);
        m_changed.remove(destroyed.window);
    } else if (type == XCB_CONFIGURE_NOTIFY) {
        observeConfigure(reinterpret_cast<const xcb_configure_notify_event_t&>(event));
    } else if (type == XCB_PROPERTY_NOTIFY) {
        const auto& changed = reinterpret_cast<const xcb_property_notify_event_t&>(event);
        if (changed.atom == m_connection.ewmhAtoms()._NET_WM_STATE)
            noteChange(changed.window);
        if (changed.atom == m_connection.ewmhAtoms()._NET_CLIENT_LIST)
            m_areWindowsNew = m_hasNews = true;
    }
}

void LMX11NormalFrames::noteChange(xcb_window_t window) {
    m_changed.insert(window);
    m_hasNews = true;
}

void LMX11NormalFrames::observeConfigure(const xcb_configure_notify_event_t& event) {
    if (event.window == m_connection.ownWindow())
        return;
    noteChange(event.window);
    const auto record = m_records.find(event.window);
    if (record == m_records.end())
        return;
    constexpr uint8_t sentFlag = 0x80;
    const QPoint border(event.border_width, event.border_width);
    record->passings.append(
        {QRect(QPoint(event.x, event.y) + border, QSize(event.width, event.height)),
         (event.response_type & sentFlag) != 0});
    if (record->passings.size() > mostPassings)
        record->passings.removeFirst();
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
    if (windows.isEmpty() || !m_connection.isConnected())
        return;
    const LMX11Reading reading = m_reader.readFrames(windows);
    note(reading);
    for (const LMX11Window& window : reading.windows) {
        const auto record = m_records.find(window.identifier);
        if (record == m_records.end() || !fills(window))
            continue;
        if (hasMoved(*record, window.geometry))
            m_records.erase(record);
        else
            record->passings.clear();
    }
}

/// Managers that maximise a window take it from the one geometry to the other, in one direction
/// after the other, perhaps, and with the decorations of either. Whatever belongs to neither is
/// where it was in between.
bool LMX11NormalFrames::hasMoved(const Record& record, const LMX11Geometry& now) {
    const QMargins most = record.normal.decorations | now.decorations;
    const QRect withinFrame(0, 0, most.left() + invisibleBorder, most.top() + invisibleBorder);
    const QList<QRect> filled = record.filled + QList{now.client};
    const auto isKnown = [&](int (QRect::*value)() const, const QRect& client, int tolerance) {
        const int passed = (client.*value)();
        return passed == (record.normal.client.*value)() ||
               std::ranges::any_of(filled, [&](const QRect& rect) {
                   return std::abs(passed - (rect.*value)()) <= tolerance;
               });
    };
    return std::ranges::any_of(record.passings, [&](const Passing& passing) {
        const QRect& client = passing.client;
        const bool isInFrame = !passing.isSent && withinFrame.contains(client.topLeft());
        return !isKnown(&QRect::width, client, most.left() + most.right()) ||
               !isKnown(&QRect::height, client, most.top() + most.bottom()) ||
               !(isInFrame || (isKnown(&QRect::x, client, most.left()) &&
                               isKnown(&QRect::y, client, most.top())));
    });
}

void LMX11NormalFrames::note(const LMX11Window& window) {
    if (!window.exists)
        return;
    // What has led here is of no interest any more.
    m_connection.receiveEvents();
    if (!fills(window)) {
        m_records.insert(window.identifier, {window.geometry, {}, {}});
    } else if (const auto record = m_records.find(window.identifier);
               record != m_records.end() && !record->filled.contains(window.geometry.client)) {
        record->filled.append(window.geometry.client);
    }
}

void LMX11NormalFrames::note(const LMX11Reading& reading) {
    for (const LMX11Window& window : reading.windows) {
        if (!window.states.isMinimized || fills(window) || !m_records.contains(window.identifier))
            note(window);
    }
}

std::optional<QRect> LMX11NormalFrames::frameOf(const LMX11Window& window,
                                                const QList<QRect>& monitors) const {
    m_connection.receiveEvents();
    const auto record = m_records.constFind(window.identifier);
    if (!fills(window) || record == m_records.cend() || hasMoved(*record, window.geometry))
        return std::nullopt;
    const QRect normal = record->normal.frame();
    const QRect* then = monitorOf(normal, monitors);
    const QRect* now = monitorOf(window.geometry.frame(), monitors);
    return then != nullptr && now != nullptr ? normal.translated(now->topLeft() - then->topLeft())
                                             : normal;
}
