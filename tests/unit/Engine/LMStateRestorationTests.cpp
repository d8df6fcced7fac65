// SPDX-License-Identifier: MIT
#include "EngineTest.h"
#include "Model/LMStateRestoration.h"
#include "Model/LMStateRules.h"

namespace {

class StateRestorationTest : public EngineTest {
protected:
    StateRestorationTest() { desktop.setScreens({first, second}); }

    using Change = std::function<void(LMWindowState&)>;
    static LMWindowState state(const Change& change) {
        LMWindowState result;
        result.desktop = 0;
        change(result);
        return result;
    }
    /// What a window can be, by name; the frame tells the monitor.
    std::vector<std::tuple<QString, LMWindowState, QRectF>> stances() {
        const auto maximize = [](LMWindowState& s) {
            s.isMaximizedHorizontally = s.isMaximizedVertically = true;
        };
        const auto maximizeMinimized = [=](LMWindowState& s) { maximize(s), s.isMinimized = true; };
        const auto fullscreen = [](LMWindowState& s) { s.isFullscreen = true; };
        const auto everywhere = [](LMWindowState& s) {
            s.desktop.reset();
            s.isOnAllDesktops = s.isKeptAbove = true;
        };
        return {
            {u"plain"_s, state([](LMWindowState&) {}), left},
            {u"elsewhere"_s, state([](LMWindowState& s) { s.desktop = 2; }), onSecond},
            {u"maximized"_s, state(maximize), left},
            {u"maximized on second"_s, state(maximize), onSecond},
            {u"wide"_s, state([](LMWindowState& s) { s.isMaximizedHorizontally = true; }), left},
            {u"high"_s, state([](LMWindowState& s) { s.isMaximizedVertically = true; }), left},
            {u"fullscreen on second"_s, state(fullscreen), onSecond},
            {u"minimized"_s, state([](LMWindowState& s) { s.isMinimized = true; }), left},
            {u"maximized, minimized"_s, state(maximizeMinimized), onSecond},
            {u"shaded"_s, state([](LMWindowState& s) { s.isShaded = true; }), right},
            {u"below"_s, state([](LMWindowState& s) { s.isKeptBelow = true; }), left},
            {u"above, everywhere"_s, state(everywhere), right},
        };
    }
    void stand(const LMElement& element, const LMWindowState& state, const QRectF& frame) {
        LMFakeWindow& window = desktop.window(element);
        window.state = {};
        window.frame = window.normalFrame = frame;
        desktop.world().changeState(window, state);
        desktop.log().clear();
    }
    LMWindowState now(const LMElement& element) { return desktop.window(element).state; }
    /// What was done besides setting frames.
    QStringList changes() {
        QStringList result = desktop.log().events();
        result.removeIf([](const QString& event) {
            return !event.startsWith(u"state"_s) && !event.startsWith(u"stack"_s);
        });
        desktop.log().clear();
        return result;
    }
    LMApplication& storeAs(const LMWindowState& state, const QRectF& frame) {
        LMApplication& application = store({{u"A"_s, left}});
        application.removeAllWindows();
        stand(elements[0], state, frame);
        application.storeWindows();
        desktop.log().clear();
        return application;
    }

    const QRectF first{0, 0, 1440, 900}, second{1440, 0, 1000, 700};
    const QRectF onSecond{1500, 100, 320, 240};
};

TEST_F(StateRestorationTest, TheEndIsWhatWasStoredWhateverWasBefore) {
    LMApplication& application = store({{u"A"_s, left}});
    const LMElement element = elements[0];
    for (const auto& [storedName, storedState, storedFrame] : stances()) {
        application.removeAllWindows();
        stand(element, storedState, storedFrame);
        application.storeWindows();
        const LMFakeWindow wanted = desktop.window(element);
        EXPECT_EQ(wanted.state, storedState) << "storing changes nothing";
        for (const auto& [name, before, frame] : stances()) {
            SCOPED_TRACE((name + u" before "_s + storedName).toStdString());
            stand(element, before, frame);
            application.restoreWindows();
            const LMFakeWindow window = desktop.window(element);
            EXPECT_EQ(window.state, wanted.state);
            EXPECT_EQ(window.frame, wanted.frame);
            const bool isFilling = wanted.state.isMaximized() || wanted.state.isFullscreen;
            EXPECT_TRUE(!isFilling || window.normalFrame == storedFrame);
            changes();
            application.restoreWindows();
            EXPECT_EQ(changes(), QStringList()) << "what is right is left alone";
        }
    }
}

TEST_F(StateRestorationTest, StatesComeAfterFramesAndMinimizedLast) {
    LMWindowState both = state([](LMWindowState& s) { s.isMaximizedVertically = true; });
    both.isMinimized = true;
    LMApplication& application = storeAs(both, left);
    stand(elements[0], state([](LMWindowState& s) { s.desktop = 3, s.isFullscreen = true; }),
          onSecond);
    application.restoreWindows();
    EXPECT_EQ(events(), u"state \"A\" desktop=0, position \"A\" 0,0, sleep 1000000, "
                        "size \"A\" 300,200, state \"A\" maximized-vertically desktop=0, "
                        "state \"A\" maximized-vertically minimized desktop=0"_s);
}

TEST_F(StateRestorationTest, AWindowWhoseOwnFrameNobodyKnowsStaysOnItsMonitor) {
    const LMWindowState maximized =
        state([](LMWindowState& s) { s.isMaximizedHorizontally = s.isMaximizedVertically = true; });
    LMApplication& application = store({{.title = u"A"_s, .tellsNormalFrame = false}});
    const std::tuple<QRectF, QRectF> rows[] = {
        {left, QRectF(1790, 250, 300, 200)}, // Its own size, in the middle.
        {onSecond, onSecond},                // It stands there anyway.
        {{0, 0, 1400, 200}, {1565, 250, 750, 200}},
    };
    application.removeAllWindows();
    stand(elements[0], maximized, {1600, 50, 99, 99});
    application.storeWindows();
    for (const LMWindowState& before : {maximized, state([](LMWindowState&) {})}) {
        for (const auto& [own, expected] : rows) {
            stand(elements[0], before, own);
            if (before == maximized && own == onSecond)
                continue; // Nothing to do.
            application.restoreWindows();
            EXPECT_EQ(now(elements[0]), maximized);
            EXPECT_EQ(frame(elements[0]), second);
            EXPECT_EQ(desktop.window(elements[0]).normalFrame, expected);
        }
    }
}

TEST_F(StateRestorationTest, WhatIsNotMaximizedComesFromTheStoredFrame) {
    LMApplication& application = store({{u"A"_s, left}});
    const QRectF outdated(200, 310, 410, 333);
    const std::tuple<LMWindowState, QRectF> rows[] = {
        {state([](LMWindowState& s) { s.isMaximizedHorizontally = true; }),
         {outdated.x(), left.y(), outdated.width(), left.height()}},
        {state([](LMWindowState& s) { s.isMaximizedVertically = true; }),
         {left.x(), outdated.y(), left.width(), outdated.height()}},
    };
    for (const auto& [stored, expected] : rows) {
        application.removeAllWindows();
        stand(elements[0], stored, left);
        desktop.window(elements[0]).normalFrame = outdated;
        application.storeWindows();
        const QRectF wanted = frame(elements[0]);
        application.restoreWindows();
        EXPECT_EQ(changes(), QStringList()) << "nothing has changed";
        stand(elements[0], state([](LMWindowState&) {}), onSecond);
        application.restoreWindows();
        EXPECT_EQ(frame(elements[0]), wanted);
        EXPECT_EQ(desktop.window(elements[0]).normalFrame, expected);
        changes();
        application.restoreWindows();
        EXPECT_EQ(changes(), QStringList()) << "what is right is left alone";
    }
}

TEST_F(StateRestorationTest, ARecordWithoutAStateRestoresTheFrameAlone) {
    LMApplication& application = storeAs(state([](LMWindowState&) {}), left);
    application.orderedWindows()[0]->setStateString(QString());
    const LMWindowState elsewhere =
        state([](LMWindowState& s) { s.desktop = 2, s.isKeptAbove = true; });
    stand(elements[0], elsewhere, right);
    application.restoreWindows();
    EXPECT_EQ(changes(), QStringList());
    EXPECT_EQ(now(elements[0]), elsewhere);
    EXPECT_EQ(frame(elements[0]), left);
}

TEST_F(StateRestorationTest, TheFocusComesBackWhereARestoreHasTakenIt) {
    LMApplication& application = store({{u"F"_s, left, floating}});
    const LMElement other = launch(u"other"_s, {{u"O"_s, right}}).first();
    for (const bool hasState : {true, false}) {
        if (!hasState)
            application.orderedWindows()[0]->setStateString(QString());
        desktop.focus(other);
        application.restoreWindows();
        EXPECT_EQ(application.runningApplication()->isActive, !hasState);
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
    for (const auto& [number, name, names, expected] : rows) {
        LMWindowState stored;
        stored.desktop = number;
        stored.desktopName = name;
        EXPECT_EQ(LMDesktopToRestore(stored, names), expected) << name.toStdString();
    }
}

TEST_F(StateRestorationTest, WhatCannotBeHadOrIsSwitchedOffIsLeftAndTheFrameRestored) {
    LMWindowState everything = state([](LMWindowState& s) { s.desktop = 3; });
    everything.isMaximizedHorizontally = everything.isMaximizedVertically = true;
    everything.isShaded = everything.isKeptAbove = true;
    LMApplication& application = storeAs(everything, left);
    const QRectF filled = frame(elements[0]);
    const LMWindowState plain = state([](LMWindowState&) {});
    using Break = std::function<void()>;
    const auto support = [this]() -> LMWindowStateSupport& { return desktop.world().stateSupport; };
    const auto switchOff = [this](QLatin1String key) { defaults.setObject(key, false); };
    const std::tuple<Break, Change> rows[] = {
        {[&] { support().maximized = false; },
         [](LMWindowState& s) { s.isMaximizedHorizontally = s.isMaximizedVertically = false; }},
        {[&] { support().shaded = false; }, [](LMWindowState& s) { s.isShaded = false; }},
        {[&] { support().above = false; }, [](LMWindowState& s) { s.isKeptAbove = false; }},
        {[&] { support().desktops = false; }, [](LMWindowState& s) { s.desktop.reset(); }},
        {[&] {
             desktop.world().desktops = {u"One"_s, u"Two"_s};
         },
         [](LMWindowState& s) { s.desktop = 0; }},
        {[&] { switchOff(Keys::RestoreVirtualDesktops); }, [](LMWindowState& s) { s.desktop = 0; }},
        {[&] { switchOff(Keys::RestoreWindowStates); },
         [&](LMWindowState& s) { s = plain, s.desktop = 3; }},
    };
    int row = 0;
    for (const auto& [breakIt, lacks] : rows) {
        SCOPED_TRACE(++row);
        stand(elements[0], plain, right);
        breakIt();
        application.restoreWindows();
        LMWindowState expected = everything;
        lacks(expected);
        LMWindowState actual = now(elements[0]);
        if (!support().desktops)
            actual.desktop.reset();
        EXPECT_EQ(actual, expected);
        EXPECT_EQ(frame(elements[0]), filled);
        changes();
        application.restoreWindows();
        EXPECT_EQ(changes(), QStringList());
        support() = {true, true, true, true, true, true, true, true};
        desktop.world().desktops = {u"One"_s, u"Two"_s, u"Three"_s, u"Four"_s};
        defaults.removeObject(Keys::RestoreVirtualDesktops);
        defaults.removeObject(Keys::RestoreWindowStates);
    }
}

TEST_F(StateRestorationTest, AlikeWindowsKeepTheirStoredWindowWhenTheirSizeChanges) {
    LMApplication& application = store({{u"T"_s, left}, {u"T"_s, right}});
    application.removeAllWindows();
    const LMWindowState maximized =
        state([](LMWindowState& s) { s.isMaximizedHorizontally = s.isMaximizedVertically = true; });
    stand(elements[0], maximized, QRectF(left.topLeft(), right.size()));
    application.storeWindows();
    stand(elements[0], maximized, QRectF(onSecond.topLeft(), right.size()));
    desktop.window(elements[0]).frame.setSize(first.size()); // It is known by that.
    application.restoreWindows();
    EXPECT_EQ(now(elements[0]), maximized);
    EXPECT_EQ(frame(elements[0]), first);
    EXPECT_EQ(frame(elements[1]), right);
}

TEST_F(StateRestorationTest, AWindowThatTurnsIntoAnotherBetweenThePassesTakesItsState) {
    const LMWindowState minimized = state([](LMWindowState& s) { s.isMinimized = true; });
    LMApplication& application =
        store({{u"A"_s, left}, {.title = u"B"_s, .frame = right, .state = minimized}});
    desktop.removeWindow(elements[1]);
    LMStateRestoration states(environment);
    application.restoreWindowPositions(&states);
    desktop.window(elements[0]).title = u"B"_s;
    application.restoreWindowSizes(&states);
    states.finishStates();
    EXPECT_EQ(frame(elements[0]).size(), right.size());
    EXPECT_TRUE(now(elements[0]).isMinimized);
}

TEST_F(StateRestorationTest, HiddenApplicationsWithFloatingWindowsStayHidden) {
    LMApplication& application = store({{u"F"_s, left, floating}});
    setHidden(u"app"_s, true);
    application.restoreWindows();
    EXPECT_TRUE(application.runningApplication()->isHidden);
}

// --- all applications ------------------------------------------------------------------------

class StateWorkspaceTest : public StateRestorationTest {
protected:
    struct : LMProgress {
        void setMaxValue(double) override {}
        void increment(const LMWorkspace*) override {}
    } progress;
    QString order() {
        QString titles;
        for (const quint32 number : std::as_const(desktop.world().stacking))
            titles += desktop.world().windows[number].title;
        return titles;
    }
    /// "a" with A and B, "b" with C and D, which is minimised; front to back A C B D.
    LMWorkspace& storedWorkspace() {
        const LMWindowState minimized = state([](LMWindowState& s) { s.isMinimized = true; });
        launch(u"a"_s, {{u"A"_s, left}, {u"B"_s, right}});
        both = launch(u"b"_s, {{u"C"_s, left}, {.title = u"D"_s, .state = minimized}});
        desktop.world().stacking = {1, 3, 2, 4};
        desktop.focus({LMElement::Kind::Window, 1, 0});
        auto& workspace = *context.insertObject<LMWorkspace>();
        workspace.storeWindowsWithProgressWindowController(progress);
        return workspace;
    }
    QList<LMElement> both;
};

TEST_F(StateWorkspaceTest, StoringLeavesEverythingAsItWas) {
    storedWorkspace();
    EXPECT_EQ(order(), u"ACBD"_s);
    EXPECT_TRUE(now(both[1]).isMinimized);
}

TEST_F(StateWorkspaceTest, TheStackingOrderIsRestoredOnceAndLast) {
    LMWorkspace& workspace = storedWorkspace();
    for (const bool isOn : {true, false}) {
        defaults.setObject(Keys::RestoreStackingOrder, isOn);
        desktop.world().stacking = {2, 4, 3, 1};
        stand(both[0], state([](LMWindowState& s) { s.isKeptBelow = true; }), right);
        workspace.restoreWindowsWithProgressWindowController(progress, false);
        const QStringList done = changes();
        EXPECT_EQ(done.filter(u"stack"_s).size(), isOn ? 1 : 0);
        EXPECT_TRUE(!isOn || done.back().startsWith(u"stack"_s));
        EXPECT_EQ(order(), isOn ? u"ADCB"_s : u"BDCA"_s) << "a minimised one has no place";
        EXPECT_FALSE(now(both[0]).isKeptBelow);
        workspace.restoreWindowsWithProgressWindowController(progress, false);
        EXPECT_EQ(changes(), QStringList());
    }
}

TEST_F(StateWorkspaceTest, OneApplicationOrdersItsOwnWindows) {
    LMWorkspace& workspace = storedWorkspace();
    desktop.world().stacking = {3, 2, 4, 1};
    workspace.restoreWindowsForApplication(u"a"_s);
    EXPECT_EQ(order(), u"CADB"_s);
}

TEST_F(StateWorkspaceTest, ApplicationsHiddenOnTheWayAreNotMinimized) {
    defaults.setObject(Keys::EnableSpacesSupport, true);
    LMWorkspace& workspace = storedWorkspace();
    for (int round = 0; round < 2; ++round) {
        workspace.restoreWindowsWithProgressWindowController(progress, false);
        EXPECT_FALSE(now(both[0]).isMinimized);
        EXPECT_TRUE(now(both[1]).isMinimized);
        stand(both[1], state([](LMWindowState&) {}), right);
    }
}

} // namespace
