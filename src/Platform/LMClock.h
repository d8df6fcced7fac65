// SPDX-License-Identifier: MIT
#pragma once

#include <QDateTime>

#include <chrono>

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
};
