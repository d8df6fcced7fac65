// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

/// What was done to the fake desktop and how long was slept, in order, one line each:
///     position "TITLE" X,Y      size "TITLE" W,H      (every request, also one that is refused)
///     activate ID    hide ID    unhide ID             (ID: the application's identifier)
///     arrange DISPLAYID X,Y     sleep MICROSECONDS
class LMEventLog {
public:
    void add(const QString& event) { m_events.append(event); }
    void clear() { m_events.clear(); }

    const QStringList& events() const { return m_events; }

private:
    QStringList m_events;
};
