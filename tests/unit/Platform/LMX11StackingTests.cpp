// SPDX-License-Identifier: MIT
#include "Platform/X11/LMX11Stacking.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

// Any pile can be brought into any order, also partly given, and then needs nothing more. Other
// windows keep their order among themselves.
TEST(LMX11Stacking, RequestsBringTheWantedOrderOnEveryDesktop) {
    std::mt19937 random(7);
    const auto below = [&random](int limit) { return int(random() % unsigned(limit)); };
    for (int round = 0; round < 2000; ++round) {
        QList<LMX11StackedWindow> pile;
        for (xcb_window_t window = 1; window <= xcb_window_t(1 + below(9)); ++window) {
            const int desktop = below(4);
            pile.append({window, below(6) == 0 ? below(3) - 1 : 0,
                         desktop < 3 ? std::optional(quint32(desktop)) : std::nullopt});
        }
        QList<xcb_window_t> wanted{99}; // Not in the pile.
        for (const LMX11StackedWindow& each : std::as_const(pile)) {
            if (below(3) != 0)
                wanted.append(each.window);
        }
        std::ranges::shuffle(wanted, random);
        QList<xcb_window_t> goal = wanted;
        std::ranges::transform(pile, std::back_inserter(goal), &LMX11StackedWindow::window);
        const xcb_window_t staying = xcb_window_t(below(10));
        const bool obeysSiblings = below(2) == 0;
        const auto find = [&](xcb_window_t window) {
            return std::ranges::find(pile, window, &LMX11StackedWindow::window);
        };
        const LMX11Restacking plan = LMX11PlanRestacking(pile, wanted, staying);
        ASSERT_FALSE((plan.lowered + plan.raised).contains(staying)) << round;
        for (const xcb_window_t window : plan.lowered)
            std::rotate(find(window), find(window) + 1, pile.end());
        xcb_window_t sibling = staying;
        for (const xcb_window_t window : plan.raised) {
            const LMX11StackedWindow raised = *find(window);
            pile.erase(find(window));
            pile.insert(obeysSiblings ? find(sibling) : pile.begin(), raised);
            sibling = window;
        }
        ASSERT_TRUE(LMX11PlanRestacking(pile, wanted, staying).isEmpty()) << round;
        for (auto lower = pile.begin(); lower != pile.end(); ++lower) {
            for (auto upper = pile.begin(); upper != lower; ++upper) {
                const bool areSeenTogether =
                    upper->layer == lower->layer &&
                    (upper->desktop == lower->desktop || !upper->desktop || !lower->desktop);
                const bool areOrdered =
                    wanted.contains(upper->window) == wanted.contains(lower->window);
                ASSERT_TRUE(!areSeenTogether || !areOrdered ||
                            goal.indexOf(upper->window) < goal.indexOf(lower->window))
                    << round;
            }
        }
    }
}

// Under a manager that moves windows among those of their desktop only, 0 being the current one.
TEST(LMX11Stacking, WindowsOutOfSightComeBetweenThoseOfAllDesktops) {
    std::mt19937 random(7);
    int turns = 0;
    for (int round = 0; round < 3000; ++round) {
        QList<LMX11StackedWindow> pile{{1, -1, 0}};
        QList<xcb_window_t> wanted;
        for (xcb_window_t window = 2; window <= 7; ++window) {
            const quint32 desktop = quint32(random() % 4);
            pile.prepend({window, 0, desktop < 3 ? std::optional(desktop) : std::nullopt});
            wanted.append(window);
        }
        std::ranges::shuffle(wanted, random);
        const LMX11Restacking plan = LMX11PlanRestackingByDesktop(pile, wanted, 0);
        const auto take = [&](xcb_window_t window) {
            return pile.takeAt(std::ranges::find(pile, window, &LMX11StackedWindow::window) -
                               pile.begin());
        };
        const auto isNeighbour = [](const LMX11StackedWindow& moved) {
            return [desktop = moved.desktop.value_or(0)](const LMX11StackedWindow& each) {
                return each.desktop.value_or(desktop) == desktop;
            };
        };
        for (const xcb_window_t window : plan.raised) {
            const LMX11StackedWindow moved = take(window);
            pile.insert(std::ranges::find_if(pile, isNeighbour(moved)), moved);
        }
        for (const xcb_window_t window : plan.lowered) {
            const LMX11StackedWindow moved = take(window);
            const auto last = std::find_if(pile.rbegin(), pile.rend(), isNeighbour(moved));
            pile.insert(last.base(), moved);
        }
        turns += int(!plan.isEmpty());
        ASSERT_TRUE(plan.isEmpty() || LMX11PlanRestacking(pile, wanted).isEmpty()) << round;
    }
    EXPECT_GT(turns, 300);
}
