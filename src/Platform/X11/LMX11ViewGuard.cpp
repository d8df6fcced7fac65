// SPDX-License-Identifier: MIT
#include "Platform/X11/LMX11ViewGuard.h"

#include "Platform/X11/LMX11Connection.h"
#include "Platform/X11/LMX11WindowManager.h"
#include "Platform/X11/LMX11WindowReader.h"

using namespace std::chrono_literals;

namespace {

/// How long the manager may take for one attempt.
constexpr auto answerTime = 150ms;

} // namespace

LMX11ViewGuard::LMX11ViewGuard(LMX11Connection& connection, LMX11WindowManager& windowManager)
    : m_connection(connection), m_windowManager(windowManager),
      m_view(LMX11ReadManagerLists(connection)) {}

void LMX11ViewGuard::restore() {
    // Managers hear of the focus that they gave after they have read everything else.
    m_windowManager.waitUntilCaughtUp(std::chrono::steady_clock::now() + answerTime);
    // Twice: managers take a request for outdated that is older than what they have just done.
    for (int attempt = 0; attempt < 2 && !isBack(); ++attempt) {
        if (m_now.currentDesktop != m_view.currentDesktop)
            m_windowManager.showDesktop(m_view.currentDesktop);
        if (!isFocusBack())
            m_windowManager.activate(m_view.activeWindow, m_now.activeWindow);
        const auto deadline = std::chrono::steady_clock::now() + answerTime;
        m_windowManager.waitUntilCaughtUp(deadline);
        const auto isNews = [](const xcb_generic_event_t& event) {
            return LMXcbEventType(event) == XCB_PROPERTY_NOTIFY;
        };
        while (!isBack() && m_connection.waitForEvent(isNews, deadline)) {
        }
    }
}

bool LMX11ViewGuard::isBack() {
    m_now = LMX11ReadManagerLists(m_connection);
    return m_now.currentDesktop == m_view.currentDesktop && isFocusBack();
}

bool LMX11ViewGuard::isFocusBack() {
    return m_now.activeWindow == m_view.activeWindow || m_view.activeWindow == XCB_WINDOW_NONE ||
           !isInSight(m_view.activeWindow);
}

bool LMX11ViewGuard::isInSight(xcb_window_t identifier) {
    const LMX11Window window =
        LMX11WindowReader(m_connection).readFrames({identifier}).windows.first();
    return window.exists && !window.states.isMinimized && !window.states.isShaded &&
           (window.isOnAllDesktops() || window.desktop.value_or(0) == m_view.currentDesktop);
}
