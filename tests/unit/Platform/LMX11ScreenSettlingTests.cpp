// SPDX-License-Identifier: MIT
#include "Platform/X11/LMX11ScreenSettling.h"

#include <gtest/gtest.h>

#include <vector>

using namespace std::chrono_literals;

namespace {

struct Event {
    std::chrono::milliseconds at;
    bool isScreen;
};

std::vector<Event> every(std::chrono::milliseconds step, std::chrono::milliseconds from,
                         std::chrono::milliseconds to, bool isScreen) {
    std::vector<Event> events;
    for (auto at = from; at <= to; at += step)
        events.push_back({at, isScreen});
    return events;
}

/// When reports are made, with a timer that only fires at deadlines, as the watcher's does.
std::vector<std::chrono::milliseconds> reportsOf(const std::vector<Event>& events) {
    LMX11ScreenSettling settling;
    std::vector<std::chrono::milliseconds> reports;
    const LMX11ScreenSettling::TimePoint start{12345s};
    const auto fireUntil = [&](std::chrono::milliseconds time) {
        while (settling.deadline() && *settling.deadline() <= start + time) {
            const auto now = *settling.deadline();
            EXPECT_FALSE(settling.settle(now - 1ms));
            EXPECT_TRUE(settling.settle(now));
            EXPECT_FALSE(settling.settle(now));
            reports.push_back(std::chrono::duration_cast<std::chrono::milliseconds>(now - start));
        }
    };
    for (const Event& event : events) {
        fireUntil(event.at);
        event.isScreen ? settling.screensChanged(start + event.at)
                       : settling.desktopStirred(start + event.at);
    }
    fireUntil(1h);
    EXPECT_FALSE(settling.isUnsettled());
    return reports;
}

TEST(LMX11ScreenSettling, ReportsEachBurstOnceWhenItHasEnded) {
    constexpr bool screen = true;
    constexpr bool desktop = false;
    std::vector<Event> unrest = every(100ms, 100ms, 9s, desktop);
    unrest.insert(unrest.begin(), {0ms, screen});
    // clang-format off
    const struct {
        const char* what;
        std::vector<Event> events;
        std::vector<std::chrono::milliseconds> reports;
    } cases[] = {
        {"several events for one change", every(10ms, 0ms, 50ms, screen), {350ms}},
        {"off, on, off, on within a second", every(250ms, 0ms, 750ms, screen), {1050ms}},
        {"windows moved afterwards", {{0ms, screen}, {200ms, desktop}, {450ms, desktop}}, {750ms}},
        {"windows moved for good", unrest, {3s}},
        {"monitors that never rest", every(200ms, 0ms, 5s, screen), {3s, 5300ms}},
        {"windows and panels alone", every(100ms, 0ms, 9s, desktop), {}},
        {"two changes far apart", {{0ms, screen}, {2s, desktop}, {4s, screen}}, {300ms, 4300ms}},
    };
    // clang-format on
    for (const auto& row : cases)
        EXPECT_EQ(reportsOf(row.events), row.reports) << row.what;
}

} // namespace
