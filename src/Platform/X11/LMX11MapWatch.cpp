// SPDX-License-Identifier: MIT
#include "Platform/X11/LMX11MapWatch.h"

LMX11MapWatch::LMX11MapWatch(LMX11Connection& connection)
    : m_connection(connection),
      m_subscription(connection.addEventObserver([this](const xcb_generic_event_t& event) {
          if (LMXcbEventType(event) == XCB_MAP_NOTIFY)
              note(reinterpret_cast<const xcb_map_notify_event_t&>(event).window);
          else if (LMXcbEventType(event) == XCB_UNMAP_NOTIFY)
              note(reinterpret_cast<const xcb_unmap_notify_event_t&>(event).window);
      })) {}

void LMX11MapWatch::note(xcb_window_t window) {
    const Time now = std::chrono::steady_clock::now();
    m_times.removeIf([&](const auto& entry) { return now - entry.value() > moment; });
    m_times.insert(window, now);
}

bool LMX11MapWatch::hasJustChanged(xcb_window_t window) {
    m_connection.receiveEvents();
    const auto time = m_times.constFind(window);
    return time != m_times.constEnd() && std::chrono::steady_clock::now() - *time <= moment;
}
