// SPDX-License-Identifier: MIT
#include "EngineTest.h"

namespace {

using StoringTest = EngineTest;

TEST_F(StoringTest, ShowsTheApplicationAndPutsItBack) {
    const std::tuple<bool, bool, QString> rows[] = {
        {false, false, u"activate app, sleep 2500"_s},
        {true, false, u"activate app, sleep 2500, sleep 2500, hide app"_s},
        {false, true, u"hide app, unhide app"_s},
        {true, true, u"hide app, hide app"_s},
    };
    LMApplication& application = store();
    for (const auto& [isHidden, areSpacesInUse, expected] : rows) {
        defaults.setObject(Keys::EnableSpacesSupport, areSpacesInUse);
        setHidden(u"app"_s, isHidden);
        application.storeWindows();
        EXPECT_EQ(events(), expected);
        EXPECT_EQ(application.runningApplication()->isHidden, isHidden);
    }
}

TEST_F(StoringTest, StoresEveryWindowAnew) {
    LMApplication& application = store({{u"A"_s, left}, {u"B"_s, right}});
    application.removeAllWindows();
    application.storeFloatingWindows();
    application.storeFloatingWindows();
    EXPECT_EQ(titles(application.orderedWindows()), u"A, B"_s);
    application.storeWindows();
    EXPECT_EQ(titles(application.orderedWindows()), u"A, B, A, B"_s);
    EXPECT_EQ(application.orderedWindows()[3]->frame(), right);

    desktop.removeApplication(u"app"_s);
    events();
    application.storeWindows();
    application.storeFloatingWindows();
    EXPECT_EQ(events(), QString());
}

TEST_F(StoringTest, ReplacesTheFocusedWindowAndPutsItFirst) {
    LMApplication& application = store({{u"A"_s, left}, {u"B"_s, left}});
    const LMElement& focused = elements[1];
    desktop.focus(focused);
    desktop.window(focused).frame = right;
    application.storeFocusedWindow(nullptr);
    application.storeFocusedWindow(LMWindow::focusedWindow(context));
    EXPECT_EQ(titles(application.orderedWindows()), u"B, A"_s);
    EXPECT_EQ(application.orderedWindows()[0]->frame(), right);

    defaults.setObject(Keys::CreateScreenshotsWhenStoringWindows, true);
    desktop.window(focused).title = u"C"_s;
    application.storeFocusedWindow(LMWindow::focusedWindow(context));
    EXPECT_EQ(titles(application.orderedWindows()), u"C, B, A"_s);
    EXPECT_EQ(pictures(), 1);
    desktop.focus({});
    EXPECT_EQ(LMWindow::focusedWindow(context), nullptr);
}

TEST_F(StoringTest, LinksAWindowToTheStoredWindowChosen) {
    LMApplication& application = store({{u"A"_s, left}, {u"B"_s, right}});
    const std::vector<LMStoredWindow*> all = application.orderedWindows();

    // Its own: only moved.
    desktop.window(elements[1]).frame.moveTo(0, 500);
    application.addMatchingWindow(live(elements[1]), all[1]);
    EXPECT_EQ(events(), u"position \"B\" 400,0, sleep 1000000, size \"B\" 350,250"_s);
    EXPECT_EQ(application.orderedWindows(), all);

    // Another: its record leaves the former stored window, which goes when that was its last one.
    LMWindow* const window = live(elements[0]);
    application.addMatchingWindow(window, all[1]);
    EXPECT_EQ(application.orderedWindows(), std::vector<LMStoredWindow*>{all[1]});
    EXPECT_EQ(all[1]->orderedMatchingWindows().back(), window);
    EXPECT_EQ(frame(elements[0]), right);
    EXPECT_EQ(pictures(), 1) << "pictured whether or not pictures are switched on";
    EXPECT_TRUE(shows(*window, elements[0]));
}

} // namespace
