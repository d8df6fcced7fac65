// SPDX-License-Identifier: MIT
#include "support/LMFakeApplications.h"

#include <algorithm>

LMRunningApplication LMFakeApplications::description(const LMFakeApplication& application) const {
    LMRunningApplication result;
    result.bundleIdentifier = application.bundleIdentifier;
    result.localizedName = application.localizedName;
    result.processIdentifier = application.processIdentifiers.first();
    result.activationPolicy = application.activationPolicy;
    result.isActive =
        m_world.focusedWindow && m_world.windowsOf(application).contains(*m_world.focusedWindow);
    result.isHidden = m_world.isHidden(application);
    return result;
}

QList<LMRunningApplication> LMFakeApplications::runningApplications() {
    QList<LMRunningApplication> result;
    if (!m_world.isConnected)
        return result;
    for (const LMFakeApplication& application : std::as_const(m_world.applications)) {
        if (!m_world.windowsOf(application).isEmpty())
            result.append(description(application));
    }
    return result;
}

LMFakeApplication* LMFakeApplications::reachable(qint64 processIdentifier) {
    LMFakeApplication* application =
        m_world.isConnected ? m_world.application(processIdentifier) : nullptr;
    return application && !m_world.windowsOf(*application).isEmpty() ? application : nullptr;
}

bool LMFakeApplications::activate(qint64 processIdentifier) {
    const LMFakeApplication* application = reachable(processIdentifier);
    if (!application)
        return false;
    m_world.log.add(QStringLiteral("activate ") + application->bundleIdentifier);
    const QList<quint32> numbers = m_world.windowsOf(*application);
    const auto shown = std::find_if(numbers.begin(), numbers.end(), [this](quint32 number) {
        const LMFakeWindow& window = m_world.windows[number];
        return !window.isMinimized && window.virtualDesktop == 0;
    });
    if (shown == numbers.end())
        return false;
    const quint32 number = *shown;
    m_world.raise(number);
    m_world.focusedWindow = number;
    return true;
}

bool LMFakeApplications::hide(qint64 processIdentifier) {
    LMFakeApplication* application = reachable(processIdentifier);
    if (!application)
        return false;
    m_world.log.add(QStringLiteral("hide ") + application->bundleIdentifier);
    for (const quint32 number : m_world.windowsOf(*application)) {
        LMFakeWindow& window = m_world.windows[number];
        if (!window.isMinimized)
            application->minimizedByHiding.append(number);
        window.isMinimized = true;
        if (m_world.focusedWindow == number)
            m_world.focusFrontWindow();
    }
    return true;
}

bool LMFakeApplications::unhide(qint64 processIdentifier) {
    LMFakeApplication* application = reachable(processIdentifier);
    if (!application)
        return false;
    m_world.log.add(QStringLiteral("unhide ") + application->bundleIdentifier);
    for (const quint32 number : std::exchange(application->minimizedByHiding, {})) {
        if (m_world.windows.contains(number))
            m_world.windows[number].isMinimized = false;
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
