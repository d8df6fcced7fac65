// SPDX-License-Identifier: MIT
#include "Platform/LMClock.h"

#include <thread>

using namespace std::chrono_literals;

QDateTime LMSystemClock::now() const {
    return QDateTime::currentDateTime();
}

void LMSystemClock::sleep(std::chrono::microseconds duration) {
    const auto end = std::chrono::steady_clock::now() + duration;
    while (m_sleepObserver && end - std::chrono::steady_clock::now() > 40ms) {
        std::this_thread::sleep_for(40ms);
        m_sleepObserver();
    }
    std::this_thread::sleep_until(end);
}
