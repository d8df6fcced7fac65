// SPDX-License-Identifier: MIT
#include "support/LMFakeApplications.h"

#include <algorithm>
#include <utility>

QList<LMRunningApplication> LMFakeApplications::runningApplications() {
    QList<LMRunningApplication> result;
    if (!m_world.isConnected)
        return result;
    for (const LMFakeApplication& application : std::as_const(m_world.applications)) {
        const QList<quint32> windows = m_world.windowsOf(application);
        if (!windows.isEmpty())
            result.append({.bundleIdentifier = application.bundleIdentifier,
                           .localizedName = application.localizedName,
                           .processIdentifier = application.processIdentifiers.first(),
                           .activationPolicy = application.activationPolicy,
                           .isActive = windows.contains(m_world.focusedWindow.value_or(0)),
                           .isHidden = std::ranges::all_of(windows, [this](quint32 number) {
                               return m_world.windows[number].state.isMinimized;
                           })});
    }
    return result;
}

LMFakeApplication* LMFakeApplications::reach(qint64 processIdentifier, const QString& what) {
    LMFakeApplication* application =
        m_world.isConnected ? m_world.application(processIdentifier) : nullptr;
    if (!application || m_world.windowsOf(*application).isEmpty())
        return nullptr;
    m_world.log.add(what + u' ' + application->bundleIdentifier);
    return application;
}

bool LMFakeApplications::activate(qint64 processIdentifier) {
    const LMFakeApplication* application = reach(processIdentifier, u"activate"_qs);
    if (!application)
        return false;
    for (const quint32 number : m_world.windowsOf(*application)) {
        if (m_world.windows[number].state.isMinimized)
            continue;
        m_world.raise(number);
        m_world.focusedWindow = number;
        return true;
    }
    return false;
}

bool LMFakeApplications::hide(qint64 processIdentifier) {
    LMFakeApplication* application = reach(processIdentifier, u"hide"_qs);
    if (!application)
        return false;
    for (const quint32 number : m_world.windowsOf(*application)) {
        LMFakeWindow& window = m_world.windows[number];
        if (!window.state.isMinimized)
            application->minimizedByHiding.append(number);
        window.state.isMinimized = true;
        if (m_world.focusedWindow == number)
            m_world.focusFrontWindow();
    }
    return true;
}

bool LMFakeApplications::unhide(qint64 processIdentifier) {
    LMFakeApplication* application = reach(processIdentifier, u"unhide"_qs);
    if (!application)
        return false;
    for (const quint32 number : std::exchange(application->minimizedByHiding, {})) {
        if (m_world.windows.contains(number))
            m_world.windows[number].state.isMinimized = false;
    }
    return true;
}

QImage LMFakeApplications::iconForApplication(const QString& bundleIdentifier, int size) {
    if (!m_world.application(bundleIdentifier))
        return QImage();
    QImage icon(size, size, QImage::Format_ARGB32);
    icon.fill(Qt::blue);
    return icon;
}
