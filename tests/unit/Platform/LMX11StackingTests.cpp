// SPDX-License-Identifier: MIT
#include "Platform/X11/LMX11Stacking.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <random>

namespace {

using Pile = QList<LMX11StackedWindow>;
using Windows = QList<xcb_window_t>;

/// What is seen of the windows on each desktop within each layer, front to back.
QList<Windows> views(const Pile& pile, const Windows& order) {
    QList<Windows> result;
    for (const int layer : {-1, 0, 1}) {
        for (const quint32 desktop : {0u, 1u, 2u}) {
            Windows& view = result.emplaceBack(order);
            view.removeIf([&](xcb_window_t window) {
                const auto& each = *std::ranges::find(pile, window, &LMX11StackedWindow::window);
                return each.layer != layer || each.desktop.value_or(desktop) != desktop;
            });
        }
    }
    return result;
}

Windows only(const Pile& pile, const std::function<bool(xcb_window_t)>& condition) {
    Windows result;
    for (const LMX11StackedWindow& each : pile) {
        if (condition(each.window))
            result.append(each.window);
    }
    return result;
}

} // namespace

// Any pile can be brought into any order, also partly given, and then needs nothing more. Other
// windows keep their order among themselves.
TEST(LMX11Stacking, LoweringBringsTheWantedOrderOnEveryDesktop) {
    std::mt19937 random(7);
    const auto below = [&random](int limit) { return int(random() % unsigned(limit)); };
    for (int round = 0; round < 2000; ++round) {
        Pile pile;
        Windows wanted;
        for (xcb_window_t window = 1; window <= xcb_window_t(1 + below(9)); ++window) {
            const int desktop = below(4);
            pile.append({window, below(6) == 0 ? below(3) - 1 : 0,
                         desktop < 3 ? std::optional(quint32(desktop)) : std::nullopt});
            wanted.append(window);
        }
        std::ranges::shuffle(pile, random);
        std::ranges::shuffle(wanted, random);
        wanted = wanted.mid(below(3));
        const auto isWanted = [&](xcb_window_t window) { return wanted.contains(window); };
        const Pile before = pile;
        for (const xcb_window_t window : LMX11WindowsToLower(pile, Windows{99} + wanted)) {
            const auto at = std::ranges::find(pile, window, &LMX11StackedWindow::window);
            std::rotate(at, at + 1, pile.end());
        }
        ASSERT_EQ(views(pile, only(pile, isWanted)), views(pile, wanted)) << round;
        ASSERT_EQ(views(pile, only(pile, std::not_fn(isWanted))),
                  views(pile, only(before, std::not_fn(isWanted))))
            << round;
        ASSERT_TRUE(LMX11WindowsToLower(pile, wanted).isEmpty()) << round;
    }
}
