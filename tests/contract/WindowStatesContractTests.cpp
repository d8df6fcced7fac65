// SPDX-License-Identifier: MIT
#include "contract/LMContractTest.h"

#include <algorithm>
#include <map>
#include <random>

namespace {

using S = LMWindowState;

/// Every state alone, and the pairs that make sense.
const std::pair<const char*, S> states[] = {
    {"plain", {.desktop = 0}},
    {"maximised", {.isMaximizedHorizontally = true, .isMaximizedVertically = true, .desktop = 0}},
    {"minimised", {.isMinimized = true, .desktop = 0}},
    {"shaded", {.isShaded = true, .desktop = 0}},
    {"vertically", {.isMaximizedVertically = true, .desktop = 0}},
    {"above", {.isKeptAbove = true, .desktop = 0}},
    {"below", {.isKeptBelow = true, .desktop = 0}},
    {"fullscreen", {.isFullscreen = true, .desktop = 0}},
    {"another desktop", {.desktop = 2}},
    {"all desktops", {.isOnAllDesktops = true}},
    {"minimised on another desktop", {.isMinimized = true, .desktop = 2}},
    {"fullscreen on another desktop", {.isFullscreen = true, .desktop = 2}},
    {"maximised and minimised",
     {.isMaximizedHorizontally = true,
      .isMaximizedVertically = true,
      .isMinimized = true,
      .desktop = 0}},
    {"fullscreen and minimised", {.isFullscreen = true, .isMinimized = true, .desktop = 0}},
};

} // namespace

class WindowStatesContract : public LMContractTest {
protected:
    LMWindowStates& all() { return desktop().windowStates(); }
    /// As the others see it, too.
    S state(const LMElement& window) {
        const auto result = all().stateOfWindow(window);
        EXPECT_TRUE(bool(result));
        S state = result.valueOr({});
        EXPECT_EQ(state.desktopName, all().desktopNames().value(state.desktop.value_or(-1)));
        state.desktopName.clear();
        state.normalFrame.reset();
        EXPECT_EQ(state, backend->visibleState(window));
        return state;
    }
    S known(const LMElement& window) { return all().stateOfWindow(window).valueOr({}); }
    std::optional<QRectF> normalFrame(const LMElement& window) { return known(window).normalFrame; }
    bool setState(const LMElement& window, const S& wanted) {
        const auto error = LMErrorOf(all().setStates({{window, wanted}}).first());
        return !error || (error == LMPlatformError::CannotComplete && inTime(false) &&
                          LMWaitUntil([&] { return backend->visibleState(window) == wanted; }));
    }
    /// The user works in a window of the current desktop, and goes on to do so.
    LMContractView focusOn(const LMElement& window) {
        backend->raise(window);
        const LMContractView view{0, window};
        EXPECT_TRUE(LMWaitUntil([&] { return backend->view() == view; }));
        return view;
    }
};
INSTANTIATE_TEST_SUITE_P(On, WindowStatesContract, testing::ValuesIn(LMContractBackends()),
                         LMBackendName);

TEST_P(WindowStatesContract, EveryStateComesTrueFromEveryOtherUnderTheUsersEyes) {
    const LMElement window = open();
    const QRectF before = frame(window);
    const LMContractView view = focusOn(open({.application = u"second"_qs}));
    QList<std::pair<const char*, S>> order(std::begin(states), std::end(states));
    order.append(QList(order.rbegin(), order.rend()));
    for (const auto& [name, wanted] : order) {
        SCOPED_TRACE(name);
        ASSERT_TRUE(setState(window, wanted));
        EXPECT_EQ(state(window), wanted);
        EXPECT_EQ(backend->view(), view);
        const bool fills = wanted.isMaximized() || wanted.isFullscreen;
        EXPECT_EQ(normalFrame(window), fills ? std::optional(before) : std::nullopt);
        // openbox draws how windows turn into icons and back by moving them about.
        EXPECT_TRUE(fills || wanted.isShaded || LMWaitUntil([&] { return isAt(window, before); }));
    }
}

TEST_P(WindowStatesContract, WindowsFillTheMonitorTheyStandOn) {
    for (const QRectF& monitor : backend->monitors()) {
        const LMElement window = open();
        const QRectF normal(monitor.topLeft() + QPointF(150, 120), QSizeF(500, 400));
        ASSERT_TRUE(setFrame(window, normal));
        const LMContractView view = focusOn(open());
        for (const bool isFullscreen : {false, true}) {
            ASSERT_TRUE(setState(window, {.isMaximizedHorizontally = !isFullscreen,
                                          .isMaximizedVertically = !isFullscreen,
                                          .isFullscreen = isFullscreen,
                                          .desktop = 0}));
            const QRectF filled = backend->visibleFrame(window);
            EXPECT_TRUE(monitor.contains(filled));
            EXPECT_GT(filled.height(), 0.9 * monitor.height());
            EXPECT_EQ(normalFrame(window), normal);
            EXPECT_TRUE(setState(window, {.desktop = 0}));
            EXPECT_TRUE(isAt(window, normal));
        }
        EXPECT_EQ(backend->view(), view);
    }
}

TEST_P(WindowStatesContract, AWindowMayFillItsMonitorWithoutBeingMaximized) {
    for (const QRectF& monitor : backend->monitors()) {
        const LMElement window = open();
        EXPECT_TRUE(inTime(bool(all().setStates({{window, {.desktop = 0}, monitor}}).first())));
        ASSERT_TRUE(setFrame(window, monitor));
        EXPECT_EQ(state(window), S{.desktop = 0});
        EXPECT_TRUE(isAt(window, monitor));
    }
}

TEST_P(WindowStatesContract, TheNormalFrameIsKnownWhoeverMaximizes) {
    const LMElement window = open();
    const QRectF normal = frame(window).translated(31, 47);
    ASSERT_TRUE(setFrame(window, normal));
    for (const bool isMaximized : {true, false}) {
        backend->setState(window, {.isMaximizedHorizontally = isMaximized,
                                   .isMaximizedVertically = isMaximized,
                                   .desktop = 0});
        EXPECT_EQ(normalFrame(window), isMaximized ? std::optional(normal) : std::nullopt);
    }
}

TEST_P(WindowStatesContract, WhatCannotBeIsLeftOut) {
    const LMElement window = open(), gone = open(), other = open();
    backend->closeWindow(gone);
    ASSERT_TRUE(LMWaitUntil([&] { return !windows().contains(gone); }));
    const S wanted{.isKeptAbove = true, .desktop = int(all().desktopNames().size())};
    const auto answers = all().setStates(
        {{window, wanted}, {gone, wanted}, {LMElement(), wanted}, {other, {.desktop = 1}}});
    EXPECT_EQ(LMErrorOf(answers[0]), std::nullopt);
    EXPECT_EQ(LMErrorOf(answers[1]), LMPlatformError::InvalidElement);
    EXPECT_EQ(LMErrorOf(answers[2]), LMPlatformError::InvalidElement);
    EXPECT_EQ(state(window), (S{.isKeptAbove = true, .desktop = 0}));
    EXPECT_EQ(state(other), S{.desktop = 1});
    EXPECT_EQ(LMErrorOf(all().stateOfWindow(gone)), LMPlatformError::InvalidElement);
    EXPECT_TRUE(all().setStates({}).isEmpty());
}

TEST_P(WindowStatesContract, ABatchIsReadAtOnceAndForgottenByAChange) {
    const LMElement window = open(), other = open();
    const LMReadingScope scope(accessibility(), {window, other});
    backend->setState(other, {.isKeptAbove = true, .desktop = 0});
    EXPECT_FALSE(known(other).isKeptAbove);
    EXPECT_TRUE(setState(window, {.desktop = 2}));
    EXPECT_EQ(state(window), S{.desktop = 2});
}

TEST_P(WindowStatesContract, WindowsArePiledUpAsWanted) {
    QList<LMElement> order;
    for (int number = 0; number < 5; ++number)
        order.prepend(open({.application = number % 2 == 0 ? u"first"_qs : u"second"_qs}));
    const LMElement gone = open(), other = open(), above = open();
    backend->closeWindow(gone);
    backend->minimize(order[3]);
    ASSERT_TRUE(setState(above, {.isKeptAbove = true, .desktop = 0}));
    ASSERT_TRUE(setState(other, {.desktop = 1}));
    const LMContractView view = focusOn(order.first());
    const auto pile = [&] {
        QList<LMElement> result = all().stackingOrder();
        result.removeOne(other); // How it lies to windows of other desktops is up to the manager.
        return result;
    };
    for (int round = 0; round < 4; ++round) {
        std::next_permutation(order.begin() + 1, order.end());
        EXPECT_TRUE(inTime(bool(all().setStackingOrder(QList{gone} + order))));
        EXPECT_TRUE(LMWaitUntil([&] { return pile() == QList{above} + order; })) << round;
        EXPECT_EQ(backend->view(), view);
    }
    EXPECT_EQ(all().stackingOrder().size(), order.size() + 2);
    for (int round = 0; round < 4; ++round) { // The active window is not in front.
        std::ranges::rotate(order, order.begin() + 1);
        EXPECT_TRUE(inTime(bool(all().setStackingOrder(order))));
        EXPECT_TRUE(LMWaitUntil([&] { return pile() == QList{above} + order; })) << round;
        EXPECT_EQ(backend->view(), view);
    }
}

TEST_P(WindowStatesContract, WindowsOfAllDesktopsStandInOrderOnEachOfThem) {
    constexpr int everywhere = -1;
    std::map<LMElement, int> desktops;
    QList<LMElement> order;
    for (const int desktop : {0, everywhere, 1, 2, everywhere, 1}) {
        const LMElement window =
            open({.application = order.size() % 2 == 0 ? u"first"_qs : u"second"_qs});
        ASSERT_TRUE(setState(
            window, {.isKeptAbove = true,
                     .isOnAllDesktops = desktop == everywhere,
                     .desktop = desktop == everywhere ? std::nullopt : std::optional(desktop)}));
        desktops[window] = desktop;
        order.append(window);
    }
    const auto pile = [&](QList<LMElement> windows, int desktop) {
        windows.removeIf([&](const LMElement& window) {
            const auto at = desktops.find(window);
            return at == desktops.end() || (at->second != desktop && at->second != everywhere);
        });
        return windows;
    };
    const LMContractView view = focusOn(open());
    std::mt19937 random(5);
    for (int round = 0; round < 8; ++round) {
        std::ranges::shuffle(order, random);
        EXPECT_TRUE(inTime(bool(all().setStackingOrder(order))));
        for (const int desktop : {0, 1, 2})
            EXPECT_TRUE(LMWaitUntil([&] {
                return pile(all().stackingOrder(), desktop) == pile(order, desktop);
            })) << round
                << " on desktop " << desktop;
        EXPECT_EQ(backend->view(), view);
    }
}
