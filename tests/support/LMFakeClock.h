// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/LMClock.h"

#include <QStringList>

/// A clock that stands still except while someone sleeps, which takes no time.
class LMFakeClock final : public LMClock {
public:
    /// The log, when given, must outlive the clock.
    explicit LMFakeClock(QStringList* log = nullptr) : m_log(log) {}

    QDateTime now() const override { return m_now; }
    void setNow(const QDateTime& now) { m_now = now; }

    void sleep(std::chrono::microseconds duration) override {
        m_now = m_now.addMSecs(duration.count() / 1000);
        if (m_log)
            m_log->append(QStringLiteral("sleep %1").arg(duration.count()));
    }

private:
    QStringList* m_log;
    QDateTime m_now{QDate(2024, 5, 17), QTime(12, 0)};
};
