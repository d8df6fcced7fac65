// SPDX-License-Identifier: MIT
#include "Model/LMRestoreReport.h"

#include "EngineTest.h"

namespace {

class RestoringTest : public EngineTest {
protected:
    /// Moves all windows of the fake desktop away from where they are.
    void scatter() {
        for (LMFakeWindow& window : desktop.world().windows)
            window.frame = QRectF(700, 500, 99, 77);
    }
    QRectF frame(const LMElement& element) { return desktop.window(element).frame; }

    const QRectF left{0, 0, 300, 200};
    const QRectF right{400, 0, 350, 250};
};

TEST_F(RestoringTest, MovesThenPausesThenResizes) {
    const QList<LMElement> elements =
        launch(u"app"_s, {fakeWindow(u"A"_s, left), fakeWindow(u"B"_s, right)});
    LMApplication& application = stored(u"app"_s);
    scatter();
    desktop.raise(elements[1]);
    application.restoreWindows();
    EXPECT_EQ(events(), u"position \"B\" 400,0, position \"A\" 0,0, sleep 1000000, "
                        "size \"B\" 350,250, size \"A\" 300,200"_s);
    EXPECT_EQ(frame(elements[0]), left);
    EXPECT_EQ(frame(elements[1]), right);

    desktop.removeWindow(elements[0]);
    application.restoreWindowPositions();
    EXPECT_TRUE(test.messages.contains(u"\t\t\"A\" WAS UNMATCHED"_s));
    desktop.removeApplication(u"app"_s);
    events();
    application.restoreWindows();
    EXPECT_EQ(events(), QString());
}

TEST_F(RestoringTest, OneStoredWindowMayServeSeveralLiveOnesAndOneThatFitsNoneStays) {
    const QList<LMElement> elements = launch(u"firefox"_s, {fakeWindow(u"Page"_s, left)});
    LMApplication& application = stored(u"firefox"_s);
    application.addDefaultTitleMatchPatterns();
    const LMElement second = desktop.addWindow(u"firefox"_s, fakeWindow(u"Other"_s, right));
    const LMElement third =
        desktop.addWindow(u"firefox"_s, {.title = QString(), .frame = right, .hasDocument = true});
    application.orderedWindows()[0]->setTitleRegularExpression(u"."_s);
    application.restoreWindows();
    EXPECT_EQ(frame(elements[0]), left);
    EXPECT_EQ(frame(second), left);
    EXPECT_EQ(frame(third), right);
}

TEST_F(RestoringTest, ShowsAnApplicationWithFloatingWindows) {
    launch(u"app"_s, {floatingWindow(u"F"_s, left)});
    LMApplication& application = stored(u"app"_s);
    const QString shown = u"activate app, sleep 2500, position \"F\" 0,0"_s;
    application.restoreWindowPositions();
    EXPECT_EQ(events(), shown);
    desktop.applications().hide(application.processIdentifier());
    events();
    application.restoreWindowPositions();
    EXPECT_EQ(events(), shown + u", sleep 2500, hide app"_s);
    defaults.setObject(LMUserDefaultsKeys::EnableSpacesSupport, true);
    application.restoreWindowPositions();
    EXPECT_EQ(events(), u"position \"F\" 0,0"_s);
}

TEST_F(RestoringTest, ShowsAHiddenApplicationForAMoveAcrossSpaces) {
    const QList<QRectF> two{{0, 0, 1440, 900}, {1440, 0, 1440, 900}};
    const struct {
        QList<QRectF> screens;
        bool separateSpaces;
        QPointF position;
        bool isHidden;
        bool isShown;
    } rows[] = {
        {two, true, {1500, 0}, true, true},
        {two, true, {700, 0}, true, false},
        {two, false, {1500, 0}, true, false},
        {two.mid(0, 1), true, {1500, 0}, true, false},
    };
    const LMElement element = launch(u"app"_s, {fakeWindow(u"A"_s, left)})[0];
    LMApplication& application = stored(u"app"_s);
    for (const auto& row : rows) {
        desktop.setScreens(row.screens);
        desktop.world().screensHaveSeparateSpaces = row.separateSpaces;
        desktop.window(element).frame.moveTo(row.position);
        desktop.applications().unhide(application.processIdentifier());
        if (row.isHidden)
            desktop.applications().hide(application.processIdentifier());
        events();
        application.restoreWindowPositions();
        EXPECT_EQ(events(), row.isShown ? u"unhide app, sleep 2500, position \"A\" 0,0, "
                                          "sleep 2500, hide app"_s
                                        : u"position \"A\" 0,0"_s);
    }
}

TEST_F(RestoringTest, AsksTheSocialClientTwice) {
    launch(u"com.tapbots.TweetbotMac"_s, {fakeWindow(u"T"_s, left)});
    stored(u"com.tapbots.TweetbotMac"_s).restoreWindows();
    const QString twice = events();
    EXPECT_EQ(twice.count(u"position \"T\" 0,0"_s), 2);
}

TEST_F(RestoringTest, LosesNoWindowToOneThatRefusesFreezesOrVanishes) {
    QList<LMElement> elements;
    desktop.addApplication(u"app"_s);
    for (const QString& title : {u"fixed"_s, u"frozen"_s, u"vanishing"_s, u"last"_s})
        elements.append(desktop.addWindow(u"app"_s, fakeWindow(title, left)));
    LMApplication& application = stored(u"app"_s);
    scatter();
    desktop.window(elements[0]).hasImmutablePosition = true;
    desktop.window(elements[1]).neverAnswers = true;
    desktop.window(elements[2]).readsBeforeVanishing = 1; // listed, then gone
    application.restoreWindows();
    EXPECT_EQ(frame(elements[0]), QRectF(QPointF(700, 500), left.size()));
    EXPECT_EQ(frame(elements[3]), left);
    EXPECT_TRUE(test.messages.contains(u"Unable to restore window position: fixed"_s));
    EXPECT_TRUE(test.messages.contains(u"Unable to restore window position: vanishing"_s));

    desktop.loseConnection(u"gone"_s);
    application.restoreWindows();
    application.storeWindows();
    application.storeFocusedWindow(LMWindow::focusedWindow(context));
}

TEST_F(RestoringTest, ReportsWhatItWouldDoAndDoesIt) {
    const QList<LMElement> elements = launch(
        u"app"_s, {fakeWindow(u"A"_s, left), fakeWindow(u"B"_s, right), fakeWindow(u"C"_s, left)});
    launch(u"gone"_s, {fakeWindow(u"G"_s, left)});
    auto* workspace = context.insertObject<LMWorkspace>();
    workspace->addApplicationsObject(&stored(u"app"_s));
    workspace->addApplicationsObject(&stored(u"gone"_s));
    desktop.removeApplication(u"gone"_s);
    desktop.removeWindow(elements[2]);
    launch(u"new"_s, {fakeWindow(u"N"_s, right)});
    scatter();
    desktop.raise(elements[1]);

    const std::vector<LMApplicationReport> reports = LMReportRestore(*workspace);
    ASSERT_EQ(reports.size(), 3U);
    ASSERT_EQ(reports[0].windows.size(), 2U);
    const LMPlannedWindow& first = reports[0].windows[0];
    EXPECT_EQ(first.title, u"B"_s);
    EXPECT_EQ(first.frame, QRectF(700, 500, 99, 77));
    ASSERT_TRUE(first.move && reports[0].windows[1].move);
    EXPECT_EQ(first.move->label, u"B"_s);
    EXPECT_EQ(first.move->score, 4U);
    EXPECT_TRUE(first.move->likeness.title && !first.move->likeness.size);
    EXPECT_EQ(reports[0].unusedStoredWindows.at(0).label, u"C"_s);
    EXPECT_TRUE(reports[1].isStored && !reports[1].isLaunched);
    EXPECT_EQ(reports[1].unusedStoredWindows.size(), 1U);
    EXPECT_TRUE(!reports[2].isStored && reports[2].isLaunched);
    EXPECT_FALSE(reports[2].windows.at(0).move);
    EXPECT_EQ(LMReportRestore(*workspace, u"new"_s).size(), 1U);
    EXPECT_EQ(events(), QString()) << "a dry run touches nothing";

    workspace->restoreWindowsForApplication(u"app"_s);
    EXPECT_EQ(frame(elements[1]), first.move->frame);
    EXPECT_EQ(frame(elements[0]), reports[0].windows[1].move->frame);
}

} // namespace
