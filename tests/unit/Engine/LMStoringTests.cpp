// SPDX-License-Identifier: MIT
#include "EngineTest.h"

#include <QDir>

namespace {

class StoringTest : public EngineTest {
protected:
    qsizetype pictures() const {
        return QDir(folders.screenshotsDirectoryURL()).entryList(QDir::Files).size();
    }
    LMWindow* live(const LMElement& element) {
        return LMWindow::windowWithElement(context, element);
    }
    const QRectF left{0, 0, 300, 200};
    const QRectF right{400, 0, 300, 200};
};

TEST_F(StoringTest, ShowsTheApplicationAndPutsItBack) {
    const struct {
        bool isHidden;
        bool spacesInUse;
        QString events;
    } rows[] = {
        {false, false, u"activate app, sleep 2500"_s},
        {true, false, u"activate app, sleep 2500, sleep 2500, hide app"_s},
        {false, true, u"hide app, unhide app"_s},
        {true, true, u"hide app, hide app"_s},
    };
    for (const auto& row : rows) {
        launch(u"app"_s, {fakeWindow(u"A"_s, left)});
        LMApplication& application = stored(u"app"_s);
        defaults.setObject(LMUserDefaultsKeys::EnableSpacesSupport, row.spacesInUse);
        if (row.isHidden)
            desktop.applications().hide(application.processIdentifier());
        events();
        application.storeWindows();
        EXPECT_EQ(events(), row.events);
        EXPECT_EQ(application.runningApplication()->isHidden, row.isHidden);
        desktop.removeApplication(u"app"_s);
    }
}

TEST_F(StoringTest, StoresEveryWindowAnew) {
    launch(u"app"_s, {fakeWindow(u"A"_s, left), fakeWindow(u"B"_s, right)});
    LMApplication& application = stored(u"app"_s);
    application.removeAllWindows();
    EXPECT_TRUE(application.windows().isEmpty() && application.windowsOrdering().isEmpty());
    application.storeFloatingWindows();
    application.storeFloatingWindows();
    EXPECT_EQ(events(), u"activate app, sleep 2500, activate app, sleep 2500"_s);
    EXPECT_EQ(titles(application.orderedWindows()), u"A, B"_s);
    application.storeWindows();
    EXPECT_EQ(titles(application.orderedWindows()), u"A, B, A, B"_s);
    EXPECT_EQ(application.orderedWindows()[3]->frame(), right);

    desktop.removeApplication(u"app"_s);
    events();
    application.storeWindows();
    application.storeFloatingWindows();
    EXPECT_EQ(events(), QString());
    EXPECT_EQ(test.messages.count(u"app: Not Launched"_s), 1);
}

TEST_F(StoringTest, ReplacesTheFocusedWindowAndPutsItFirst) {
    const QList<LMElement> elements =
        launch(u"app"_s, {fakeWindow(u"A"_s, left), fakeWindow(u"B"_s, left)});
    LMApplication& application = stored(u"app"_s);
    desktop.focus(elements[1]);
    desktop.window(elements[1]).frame = right;
    application.storeFocusedWindow(nullptr);
    application.storeFocusedWindow(LMWindow::focusedWindow(context));
    EXPECT_EQ(titles(application.orderedWindows()), u"B, A"_s);
    EXPECT_EQ(application.orderedWindows()[0]->frame(), right);
    EXPECT_EQ(pictures(), 0);

    defaults.setObject(LMUserDefaultsKeys::CreateScreenshotsWhenStoringWindows, true);
    desktop.window(elements[1]).title = u"C"_s;
    application.storeFocusedWindow(LMWindow::focusedWindow(context));
    EXPECT_EQ(titles(application.orderedWindows()), u"C, B, A"_s);
    EXPECT_EQ(pictures(), 1);
    desktop.focus({});
    EXPECT_EQ(LMWindow::focusedWindow(context), nullptr);
}

TEST_F(StoringTest, LinksAWindowToTheStoredWindowChosen) {
    const QList<LMElement> elements =
        launch(u"app"_s, {fakeWindow(u"A"_s, left), fakeWindow(u"B"_s, right)});
    LMApplication& application = stored(u"app"_s);
    const std::vector<LMStoredWindow*> all = application.orderedWindows();

    // Its own: only moved.
    desktop.window(elements[1]).frame.moveTo(0, 500);
    application.addMatchingWindow(live(elements[1]), all[1]);
    EXPECT_EQ(events(), u"position \"B\" 400,0, sleep 1000000, size \"B\" 300,200"_s);
    EXPECT_EQ(titles(application.orderedWindows()), u"A, B"_s);
    EXPECT_EQ(pictures(), 0);

    // Another: its record leaves the former stored window, which goes when that was its last one.
    LMWindow* const window = live(elements[0]);
    application.addMatchingWindow(window, all[1]);
    EXPECT_EQ(application.orderedWindows(), std::vector<LMStoredWindow*>{all[1]});
    EXPECT_EQ(all[1]->orderedMatchingWindows().back(), window);
    EXPECT_EQ(all[1]->matchingWindows().count(), 2U);
    EXPECT_EQ(desktop.window(elements[0]).frame, right);
    EXPECT_EQ(pictures(), 1) << "pictured whether or not pictures are switched on";
    EXPECT_EQ(window->screenshot().pixel(0, 0), 0xff000000u | unsigned(elements[0].identifier));
}

} // namespace
