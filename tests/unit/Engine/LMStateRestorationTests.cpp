// SPDX-License-Identifier: MIT
#include "EngineTest.h"
#include "Model/LMStateRestoration.h"
#include "Model/LMStateRules.h"

namespace {

class StateRestorationTest : public EngineTest {
protected:
    using S = LMWindowState;

    StateRestorationTest() { desktop.setScreens({first, second}); }

    void stand(const LMElement& element, const S& state, const QRectF& frame) {
        LMFakeWindow& window = desktop.window(element);
        window.state = {};
        window.frame = window.normalFrame = frame;
        desktop.world().changeState(window, state);
        desktop.log().clear();
    }
    /// Stores the windows with the first one in that state.
    void storeAs(const S& state, const QRectF& frame,
                 const QList<LMFakeWindow>& windows = {{u"A"_s}}) {
        if (!application)
            application = &store(windows);
        application->removeAllWindows();
        stand(elements[0], state, frame);
        application->storeWindows();
        desktop.log().clear();
    }
    LMStoredWindow& storedWindow() { return *application->orderedWindows()[0]; }
    S now(const LMElement& element) { return desktop.window(element).state; }
    /// What was done besides setting frames.
    QStringList changes() {
        QStringList result = desktop.log();
        result.removeIf([](const QString& event) {
            return !event.startsWith(u"state"_s) && !event.startsWith(u"stack"_s);
        });
        desktop.log().clear();
        return result;
    }
    void expectRestoringChangesNothing() {
        changes();
        application->restoreWindows();
        EXPECT_EQ(changes(), QStringList()) << "what is right is left alone";
    }

    LMApplication* application = nullptr;
    const QRectF first{0, 0, 1440, 900}, second{1440, 0, 1000, 700};
    const QRectF onSecond{1500, 100, 320, 240};
    const S plain{.desktop = 0}, minimized{.isMinimized = true, .desktop = 0};
    const S wide{.isMaximizedHorizontally = true, .desktop = 0};
    const S high{.isMaximizedVertically = true, .desktop = 0};
    const S maximized{.isMaximizedHorizontally = true, .isMaximizedVertically = true, .desktop = 0};
};

TEST_F(StateRestorationTest, TheEndIsWhatWasStoredWhateverWasBefore) {
    S both = maximized;
    both.isMinimized = true;
    const std::tuple<const char*, S, QRectF> stances[] = {
        {"plain", plain, left},
        {"elsewhere", {.desktop = 2}, onSecond},
        {"maximized", maximized, left},
        {"maximized on second", maximized, onSecond},
        {"wide", wide, left},
        {"high", high, left},
        {"fullscreen on second", {.isFullscreen = true, .desktop = 0}, onSecond},
        {"minimized", minimized, left},
        {"maximized, minimized", both, onSecond},
        {"shaded", {.isShaded = true, .desktop = 0}, right},
        {"below", {.isKeptBelow = true, .desktop = 0}, left},
        {"above, everywhere", {.isKeptAbove = true, .isOnAllDesktops = true}, right},
    };
    for (const auto& [storedName, storedState, storedFrame] : stances) {
        storeAs(storedState, storedFrame);
        const LMFakeWindow wanted = desktop.window(elements[0]);
        EXPECT_EQ(wanted.state, storedState) << "storing changes nothing";
        for (const auto& [name, before, frame] : stances) {
            SCOPED_TRACE(testing::Message() << name << " before " << storedName);
            stand(elements[0], before, frame);
            application->restoreWindows();
            const LMFakeWindow window = desktop.window(elements[0]);
            EXPECT_EQ(window.state, wanted.state);
            EXPECT_EQ(window.frame, wanted.frame);
            const bool isFilling = wanted.state.isMaximized() || wanted.state.isFullscreen;
            EXPECT_TRUE(!isFilling || window.normalFrame == storedFrame);
            expectRestoringChangesNothing();
        }
    }
}

TEST_F(StateRestorationTest, StatesComeAfterFramesAndMinimizedLast) {
    storeAs({.isMaximizedVertically = true, .isMinimized = true, .desktop = 0}, left);
    stand(elements[0], {.isFullscreen = true, .desktop = 3}, onSecond);
    application->restoreWindows();
    EXPECT_EQ(events(), u"state \"A\" desktop=0, position \"A\" 0,0, sleep 1000000, "
                        "size \"A\" 300,200, state \"A\" maximized-vertically desktop=0, "
                        "state \"A\" maximized-vertically minimized desktop=0"_s);
}

TEST_F(StateRestorationTest, AWindowWhoseOwnFrameNobodyKnowsStaysOnItsMonitor) {
    storeAs(maximized, {1600, 50, 99, 99}, {{.title = u"A"_s, .tellsNormalFrame = false}});
    const std::tuple<S, QRectF, QRectF> rows[] = {
        {maximized, left, {1790, 250, 300, 200}}, // Its own size, in the middle.
        {plain, onSecond, onSecond},              // It stands there anyway.
        {plain, {0, 0, 1400, 200}, {1565, 250, 750, 200}},
    };
    for (const auto& [before, own, expected] : rows) {
        stand(elements[0], before, own);
        application->restoreWindows();
        EXPECT_EQ(now(elements[0]), maximized);
        EXPECT_EQ(frame(elements[0]), second);
        EXPECT_EQ(desktop.window(elements[0]).normalFrame, expected);
    }
}

TEST_F(StateRestorationTest, WhatIsNotMaximizedComesFromTheStoredFrame) {
    const QRectF outdated(200, 310, 410, 333);
    const std::pair<S, QRectF> rows[] = {
        {wide, {outdated.x(), left.y(), outdated.width(), left.height()}},
        {high, {left.x(), outdated.y(), left.width(), outdated.height()}},
    };
    for (const auto& [stored, expected] : rows) {
        storeAs(stored, left);
        desktop.window(elements[0]).normalFrame = outdated;
        application->removeAllWindows();
        application->storeWindows();
        const QRectF wanted = frame(elements[0]);
        expectRestoringChangesNothing();
        stand(elements[0], plain, onSecond);
        application->restoreWindows();
        EXPECT_EQ(frame(elements[0]), wanted);
        EXPECT_EQ(desktop.window(elements[0]).normalFrame, expected);
        expectRestoringChangesNothing();
    }
}

TEST_F(StateRestorationTest, ARecordWithoutAStateRestoresTheFrameAlone) {
    storeAs(plain, left);
    storedWindow().setStateString(QString());
    stand(elements[0], {.isKeptAbove = true, .desktop = 2}, right);
    application->restoreWindows();
    EXPECT_EQ(changes(), QStringList());
    EXPECT_EQ(frame(elements[0]), left);
}

TEST_F(StateRestorationTest, FocusAndHidingComeBackWhereARestoreHasTakenThem) {
    storeAs(plain, left, {{u"F"_s, left, floating}});
    const LMElement other = launch(u"other"_s, {{u"O"_s, right}}).first();
    setHidden(u"app"_s, true);
    application->restoreWindows();
    EXPECT_TRUE(application->runningApplication()->isHidden);
    setHidden(u"app"_s, false);
    for (const bool hasState : {true, false}) {
        if (!hasState)
            storedWindow().setStateString(QString());
        desktop.focus(other);
        application->restoreWindows();
        EXPECT_EQ(application->runningApplication()->isActive, !hasState);
    }
}

TEST_F(StateRestorationTest, ADesktopIsFoundByNameThenByNumber) {
    const QStringList four{u"One"_s, u"Two"_s, u"Three"_s, u"Two"_s};
    const std::tuple<std::optional<int>, QString, QStringList, std::optional<int>> rows[] = {
        {1, u"Two"_s, four, 1},  {3, u"Two"_s, four, 3},      {0, u"Three"_s, four, 2},
        {2, u"Mail"_s, four, 2}, {4, u"Mail"_s, four, {}},    {5, u"One"_s, four, 0},
        {1, {}, four, 1},        {7, {}, four, {}},           {{}, u"One"_s, four, {}},
        {0, u"One"_s, {}, {}},   {1, {}, {QString(), {}}, 1},
    };
    for (const auto& [number, name, names, expected] : rows)
        EXPECT_EQ(LMDesktopToRestore({.desktop = number, .desktopName = name}, names), expected)
            << name.toStdString();
}

TEST_F(StateRestorationTest, WhatCannotBeHadOrIsSwitchedOffIsLeftAndTheFrameRestored) {
    S everything = maximized;
    everything.isShaded = everything.isKeptAbove = true;
    everything.desktop = 3;
    storeAs(everything, left);
    const QRectF filled = frame(elements[0]);
    const LMFakeWorld whole = desktop.world();
    LMWindowStateSupport& support = desktop.world().stateSupport;
    const auto switchOff = [this](QLatin1String key) { defaults.setObject(key, false); };
    const std::pair<std::function<void()>, std::function<void(S&)>> rows[] = {
        {[&] { support.maximized = false; },
         [](S& s) { s.isMaximizedHorizontally = s.isMaximizedVertically = false; }},
        {[&] { support.shaded = false; }, [](S& s) { s.isShaded = false; }},
        {[&] { support.above = false; }, [](S& s) { s.isKeptAbove = false; }},
        {[&] { support.desktops = false; }, [](S& s) { s.desktop = 0; }},
        {[&] { desktop.world().desktops.resize(2); }, [](S& s) { s.desktop = 0; }},
        {[&] { switchOff(Keys::RestoreVirtualDesktops); }, [](S& s) { s.desktop = 0; }},
        {[&] { switchOff(Keys::RestoreWindowStates); }, [](S& s) { s = {.desktop = 3}; }},
    };
    int row = 0;
    for (const auto& [breakIt, lacks] : rows) {
        SCOPED_TRACE(++row);
        stand(elements[0], plain, right);
        breakIt();
        application->restoreWindows();
        S expected = everything;
        lacks(expected);
        EXPECT_EQ(now(elements[0]), expected);
        EXPECT_EQ(frame(elements[0]), filled);
        expectRestoringChangesNothing();
        support = whole.stateSupport;
        desktop.world().desktops = whole.desktops;
        defaults.removeObject(Keys::RestoreVirtualDesktops);
        defaults.removeObject(Keys::RestoreWindowStates);
    }
}

TEST_F(StateRestorationTest, AlikeWindowsKeepTheirStoredWindowWhenTheirSizeChanges) {
    storeAs(maximized, QRectF(left.topLeft(), right.size()), {{u"T"_s, left}, {u"T"_s, right}});
    stand(elements[0], maximized, QRectF(onSecond.topLeft(), right.size()));
    desktop.window(elements[0]).frame.setSize(first.size()); // It is known by that.
    application->restoreWindows();
    EXPECT_EQ(now(elements[0]), maximized);
    EXPECT_EQ(frame(elements[0]), first);
    EXPECT_EQ(frame(elements[1]), right);
}

TEST_F(StateRestorationTest, AWindowThatTurnsIntoAnotherBetweenThePassesTakesItsState) {
    LMApplication& both =
        store({{u"A"_s, left}, {.title = u"B"_s, .frame = right, .state = minimized}});
    desktop.removeWindow(elements[1]);
    LMStateRestoration states(environment);
    both.restoreWindowPositions(&states);
    desktop.window(elements[0]).title = u"B"_s;
    both.restoreWindowSizes(&states);
    states.finishStates();
    EXPECT_EQ(frame(elements[0]).size(), right.size());
    EXPECT_TRUE(now(elements[0]).isMinimized);
}

// --- all applications ------------------------------------------------------------------------

class StateWorkspaceTest : public StateRestorationTest {
protected:
    QString order() {
        QString titles;
        for (const quint32 number : std::as_const(desktop.world().stacking))
            titles += desktop.world().windows[number].title;
        return titles;
    }
    /// "a" with A and B, "b" with C and D, which is minimised; front to back A C B D.
    LMWorkspace& storedWorkspace() {
        launch(u"a"_s, {{u"A"_s, left}, {u"B"_s, right}});
        both = launch(u"b"_s, {{u"C"_s, left}, {.title = u"D"_s, .state = minimized}});
        desktop.world().stacking = {1, 3, 2, 4};
        desktop.focus({LMElement::Kind::Window, 1, 0});
        auto& workspace = *context.insertObject<LMWorkspace>();
        workspace.storeWindowsWithProgressWindowController(progress);
        EXPECT_EQ(order(), u"ACBD"_s) << "storing leaves everything as it was";
        EXPECT_TRUE(now(both[1]).isMinimized);
        return workspace;
    }
    QList<LMElement> both;
};

TEST_F(StateWorkspaceTest, TheStackingOrderIsRestoredOnceAndLast) {
    LMWorkspace& workspace = storedWorkspace();
    for (const bool isOn : {true, false}) {
        defaults.setObject(Keys::RestoreStackingOrder, isOn);
        desktop.world().stacking = {2, 4, 3, 1};
        stand(both[0], {.isKeptBelow = true, .desktop = 0}, right);
        workspace.restoreWindowsWithProgressWindowController(progress, false);
        const QStringList done = changes();
        EXPECT_EQ(done.filter(u"stack"_s).size(), isOn ? 1 : 0);
        EXPECT_TRUE(!isOn || done.back().startsWith(u"stack"_s));
        EXPECT_EQ(order(), isOn ? u"ADCB"_s : u"BDCA"_s) << "a minimised one has no place";
        workspace.restoreWindowsWithProgressWindowController(progress, false);
        EXPECT_EQ(changes(), QStringList());
    }
    desktop.world().stacking = {3, 2, 4, 1};
    defaults.setObject(Keys::RestoreStackingOrder, true);
    workspace.restoreWindowsForApplication(u"a"_s);
    EXPECT_EQ(order(), u"CADB"_s) << "one application orders its own windows";
}

TEST_F(StateWorkspaceTest, ApplicationsHiddenOnTheWayAreNotMinimized) {
    defaults.setObject(Keys::EnableSpacesSupport, true);
    LMWorkspace& workspace = storedWorkspace();
    for (int round = 0; round < 2; ++round) {
        workspace.restoreWindowsWithProgressWindowController(progress, false);
        EXPECT_FALSE(now(both[0]).isMinimized);
        EXPECT_TRUE(now(both[1]).isMinimized);
        stand(both[1], plain, right);
    }
}

} // namespace
