// SPDX-License-Identifier: MIT
#include "Platform/X11/LMX11ScreenSettling.h"

#include <gtest/gtest.h>

using namespace std::chrono_literals;

TEST(LMX11ScreenSettling, ReportsWhenABurstHasEndedOrLastedTooLong) {
    using Settling = LMX11ScreenSettling;
    Settling settling;
    const Settling::TimePoint start{12345s};
    settling.desktopStirred(start);
    EXPECT_FALSE(settling.deadline()) << "windows and panels alone";
    settling.screensChanged(start);
    settling.desktopStirred(start + 200ms);
    EXPECT_FALSE(settling.settle(start + 499ms));
    EXPECT_TRUE(settling.settle(start + 500ms));
    EXPECT_FALSE(settling.isUnsettled());
    // Monitors, or the windows on them, that never come to rest.
    for (const auto stir : {&Settling::screensChanged, &Settling::desktopStirred}) {
        settling.screensChanged(start);
        for (auto now = start; now < start + 3s; now += 100ms)
            (settling.*stir)(now);
        EXPECT_FALSE(settling.settle(start + 2999ms));
        EXPECT_TRUE(settling.settle(start + 3s));
    }
}
