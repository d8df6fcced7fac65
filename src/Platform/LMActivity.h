// SPDX-License-Identifier: MIT
#pragma once

#include <QDateTime>
#include <QList>
#include <QString>

#include <functional>

struct LMEnvironment;

/// What the process is busy with and what it did before, for people who ask from outside, and for
/// whatever must not begin in the middle of something else.
class LMActivity {
public:
    struct Entry {
        QString label; ///< For people: "Restoring Windows…".
        QDateTime start;
        QDateTime end{}; ///< Invalid while it goes on.
    };

    bool isBusy() const { return !m_current.isEmpty(); }
    /// What goes on now, the outermost first.
    const QList<Entry>& current() const { return m_current; }
    /// What has ended, the latest first; not more than a few.
    const QList<Entry>& recent() const { return m_recent; }

    /// Called when something begins or ends, before it begins and after it has ended.
    void setChangeHandler(std::function<void()> handler) { m_changed = std::move(handler); }

private:
    friend class LMActivityScope;
    void begin(const QString& label, const QDateTime& now);
    void end(const QDateTime& now);

    QList<Entry> m_current;
    QList<Entry> m_recent;
    std::function<void()> m_changed;
};

/// Something goes on for as long as this lives. Scopes nest.
class LMActivityScope {
public:
    LMActivityScope(LMEnvironment& environment, const QString& label);
    ~LMActivityScope();
    Q_DISABLE_COPY_MOVE(LMActivityScope)

private:
    LMEnvironment& m_environment;
};
