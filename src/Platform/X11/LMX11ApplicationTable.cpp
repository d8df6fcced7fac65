// SPDX-License-Identifier: MIT
#include "Platform/X11/LMX11ApplicationTable.h"

#include <algorithm>
#include <limits>
#include <tuple>

namespace {

/// Processes have at most 22 bits, windows 29.
constexpr qint64 firstOfClientLeaders = qint64(1) << 32;
constexpr qint64 firstOfApplications = qint64(1) << 33;

} // namespace

qint64 LMX11ApplicationTable::processOfClientLeader(xcb_window_t leader) {
    return firstOfClientLeaders + leader;
}

qint64 LMX11ApplicationTable::syntheticProcess(const QString& bundleIdentifier) const {
    return firstOfApplications + static_cast<qint64>(m_launches.value(bundleIdentifier));
}

void LMX11ApplicationTable::update(const QList<LMX11ApplicationWindow>& windows,
                                   const QList<xcb_window_t>& stackingOrder) {
    const Processes processes = gather(windows);
    QHash<xcb_window_t, bool> listed;
    for (const LMX11ApplicationWindow& window : windows)
        listed.insert(window.window, window.isListed);
    arrange(stackingOrder, listed);
    assignProcesses(processes);
}

/// Makes the applications, in the order of their launch, and notes their windows and processes.
LMX11ApplicationTable::Processes
LMX11ApplicationTable::gather(const QList<LMX11ApplicationWindow>& windows) {
    m_applications.clear();
    m_byIdentifier.clear();
    m_byWindow.clear();
    QHash<QString, LMX11Application> found;
    QHash<QString, quint64> launches;
    Processes processes;
    for (const LMX11ApplicationWindow& window : windows) {
        LMX11Application& application = found[window.bundleIdentifier];
        if (application.bundleIdentifier.isEmpty()) {
            application.bundleIdentifier = window.bundleIdentifier;
            application.localizedName = window.localizedName;
            const auto known = m_launches.constFind(window.bundleIdentifier);
            launches.insert(window.bundleIdentifier,
                            known != m_launches.cend() ? *known : ++m_lastLaunch);
        }
        processes[window.bundleIdentifier].append({window.process, window.startTime});
    }
    m_launches = std::move(launches);
    m_applications = found.values();
    std::ranges::sort(m_applications, {}, [this](const LMX11Application& application) {
        return m_launches.value(application.bundleIdentifier);
    });
    for (qsizetype index = 0; index < m_applications.size(); ++index)
        m_byIdentifier.insert(m_applications.at(index).bundleIdentifier, index);
    for (const LMX11ApplicationWindow& window : windows)
        m_byWindow.insert(window.window, m_byIdentifier.value(window.bundleIdentifier));
    return processes;
}

void LMX11ApplicationTable::arrange(const QList<xcb_window_t>& stackingOrder,
                                    const QHash<xcb_window_t, bool>& listed) {
    for (const xcb_window_t window : stackingOrder) {
        const auto place = m_byWindow.constFind(window);
        if (place == m_byWindow.cend())
            continue;
        LMX11Application& application = m_applications[*place];
        (listed.value(window) ? application.windows : application.otherWindows).append(window);
    }
}

void LMX11ApplicationTable::assignProcesses(const Processes& processes) {
    const auto age = [](const Process& process) {
        constexpr quint64 unknown = std::numeric_limits<quint64>::max();
        return std::tuple(process.startTime == 0 ? unknown : process.startTime, process.identifier);
    };
    m_byProcess.clear();
    for (qsizetype index = 0; index < m_applications.size(); ++index) {
        LMX11Application& application = m_applications[index];
        QList<Process> own = processes.value(application.bundleIdentifier);
        std::ranges::sort(own, {}, age);
        const auto isFree = [this](const Process& process) {
            return !m_byProcess.contains(process.identifier);
        };
        const auto oldest = std::ranges::find_if(own, isFree);
        application.processIdentifier = oldest != own.end()
                                            ? oldest->identifier
                                            : syntheticProcess(application.bundleIdentifier);
        m_byProcess.insert(application.processIdentifier, index);
        m_handedOut.insert(application.processIdentifier, application.bundleIdentifier);
    }
    // Younger processes lead to their application as well, unless they stand for another one.
    for (qsizetype index = 0; index < m_applications.size(); ++index) {
        const QList<Process> own = processes.value(m_applications.at(index).bundleIdentifier);
        for (const Process& process : own) {
            if (!m_byProcess.contains(process.identifier))
                m_byProcess.insert(process.identifier, index);
        }
    }
    m_handedOut.removeIf(
        [this](const auto& handedOut) { return !m_byIdentifier.contains(handedOut.value()); });
}

const LMX11Application* LMX11ApplicationTable::at(qsizetype index) const {
    return index < 0 ? nullptr : &m_applications.at(index);
}

const LMX11Application* LMX11ApplicationTable::application(qint64 processIdentifier) const {
    const qsizetype index = m_byProcess.value(processIdentifier, -1);
    return index >= 0 ? at(index) : applicationWithIdentifier(m_handedOut.value(processIdentifier));
}

const LMX11Application*
LMX11ApplicationTable::applicationWithIdentifier(const QString& bundleIdentifier) const {
    return at(m_byIdentifier.value(bundleIdentifier, -1));
}

const LMX11Application* LMX11ApplicationTable::applicationOfWindow(xcb_window_t window) const {
    return at(m_byWindow.value(window, -1));
}
