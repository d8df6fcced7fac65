// SPDX-License-Identifier: MIT
#pragma once

#include <QDateTime>

#include <chrono>
#include <functional>

/// Time as the program sees it; tests bring their own.
class LMClock {
public:
    virtual ~LMClock() = default;

    /// Local wall-clock time.
    virtual QDateTime now() const = 0;

    /// Blocks the calling thread. Storing and restoring pause on purpose; nothing else sleeps.
    virtual void sleep(std::chrono::microseconds duration) = 0;
};

/// The real time of the system.
class LMSystemClock final : public LMClock {
public:
    QDateTime now() const override;
    void sleep(std::chrono::microseconds duration) override;

    /// Called about 25 times a second while the program sleeps, so that what moves on the screen
    /// goes on moving. It must not start anything: the program is in the middle of its work.
    void setSleepObserver(std::function<void()> observer) { m_sleepObserver = std::move(observer); }

private:
    std::function<void()> m_sleepObserver;
};
