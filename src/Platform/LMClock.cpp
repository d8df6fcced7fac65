// SPDX-License-Identifier: MIT
#include "Platform/LMClock.h"

#include <thread>

QDateTime LMSystemClock::now() const {
    return QDateTime::currentDateTime();
}

void LMSystemClock::sleep(std::chrono::microseconds duration) {
    if (duration.count() > 0)
        std::this_thread::sleep_for(duration);
}
