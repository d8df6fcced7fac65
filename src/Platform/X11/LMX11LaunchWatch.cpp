// SPDX-License-Identifier: MIT
#include "Platform/X11/LMX11LaunchWatch.h"

QStringList LMX11LaunchWatch::update(const QList<Window>& listed) {
    QStringList launched;
    QSet<QString> running;
    for (const Window& window : listed) {
        if (!window.isSettled)
            continue;
        const QString& identifier = window.bundleIdentifier;
        running.insert(identifier);
        const bool isKnown =
            m_ignored.remove(window.window) || m_known.value(window.window) == identifier;
        m_known.insert(window.window, identifier);
        if (!isKnown && !m_running.contains(identifier) && !launched.contains(identifier))
            launched.append(identifier);
    }
    m_running = std::move(running);
    return launched;
}

void LMX11LaunchWatch::ignore(const QList<xcb_window_t>& windows) {
    for (const xcb_window_t window : windows) {
        if (!m_known.contains(window))
            m_ignored.insert(window);
    }
}

void LMX11LaunchWatch::forget(xcb_window_t window) {
    m_known.remove(window);
    m_ignored.remove(window);
}
