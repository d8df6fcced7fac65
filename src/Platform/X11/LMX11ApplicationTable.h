// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/X11/LMX11Application.h"

#include <QHash>
#include <QList>

/// What is known of one managed window that has an application.
struct LMX11ApplicationWindow {
    xcb_window_t window = XCB_WINDOW_NONE;
    QString bundleIdentifier;
    QString localizedName;
    qint64 process = 0;    ///< Or the synthetic identifier of its client leader.
    quint64 startTime = 0; ///< Of the process; 0 when unknown.
    bool isListed = true;
};

/// Gathers windows into applications and gives these their process identifiers, by the rules of
/// LMX11ApplicationIndex. Keeps what must stay the same from one update to the next.
class LMX11ApplicationTable {
public:
    /// Windows in the order in which they appeared; all windows front to back.
    void update(const QList<LMX11ApplicationWindow>& windows,
                const QList<xcb_window_t>& stackingOrder);

    const QList<LMX11Application>& applications() const { return m_applications; }
    const LMX11Application* application(qint64 processIdentifier) const;
    const LMX11Application* applicationWithIdentifier(const QString& bundleIdentifier) const;
    const LMX11Application* applicationOfWindow(xcb_window_t window) const;

    /// The synthetic process identifier of windows that share a client leader.
    static qint64 processOfClientLeader(xcb_window_t leader);

private:
    /// A process that owns windows.
    struct Process {
        qint64 identifier = 0;
        quint64 startTime = 0;
    };
    using Processes = QHash<QString, QList<Process>>; ///< By bundle identifier.

    Processes gather(const QList<LMX11ApplicationWindow>& windows);
    void arrange(const QList<xcb_window_t>& stackingOrder, const QHash<xcb_window_t, bool>& listed);
    void assignProcesses(const Processes& processes);
    qint64 syntheticProcess(const QString& bundleIdentifier) const;
    const LMX11Application* at(qsizetype index) const;

    QList<LMX11Application> m_applications;
    QHash<QString, qsizetype> m_byIdentifier; ///< Places in m_applications.
    QHash<xcb_window_t, qsizetype> m_byWindow;
    QHash<qint64, qsizetype> m_byProcess;
    QHash<QString, quint64> m_launches; ///< Running applications: when they were launched.
    QHash<qint64, QString> m_handedOut; ///< Process identifiers that applications once bore.
    quint64 m_lastLaunch = 0;
};
