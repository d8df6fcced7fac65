// SPDX-License-Identifier: MIT
#include "EngineTest.h"

namespace {

using RestoringTest = EngineTest;

TEST_F(RestoringTest, MovesThenPausesThenResizes) {
    LMApplication& application = store({{u"A"_s, left}, {u"B"_s, right}});
    desktop.raise(elements[1]);
    application.restoreWindows();
    EXPECT_EQ(events(), u"position \"B\" 400,0, position \"A\" 0,0, sleep 1000000, "
                        "size \"B\" 350,250, size \"A\" 300,200"_s);
    desktop.removeApplication(u"app"_s);
    events();
    application.restoreWindows();
    EXPECT_EQ(events(), QString());
}

TEST_F(RestoringTest, OneStoredWindowMayServeSeveralLiveOnesAndOneThatFitsNoneStays) {
    launch(u"firefox"_s, {{u"Page"_s, left}});
    LMApplication& application = stored(u"firefox"_s);
    const LMElement other = desktop.addWindow(u"firefox"_s, {u"Other"_s, right});
    const LMElement unlike =
        desktop.addWindow(u"firefox"_s, {.title = {}, .frame = right, .hasDocument = true});
    application.orderedWindows()[0]->setTitleRegularExpression(u"."_s);
    application.restoreWindows();
    EXPECT_EQ(frame(other), left);
    EXPECT_EQ(frame(unlike), right);
}

TEST_F(RestoringTest, ShowsAnApplicationWithFloatingWindows) {
    LMApplication& application = store({{u"F"_s, left, floating}});
    const auto restored = [&] {
        application.restoreWindowPositions();
        return events();
    };
    const QString shown = u"activate app, sleep 2500, position \"F\" 0,0"_s;
    EXPECT_EQ(restored(), shown);
    setHidden(u"app"_s, true);
    EXPECT_EQ(restored(), shown + u", sleep 2500, hide app"_s);
    defaults.setObject(Keys::EnableSpacesSupport, true);
    EXPECT_EQ(restored(), u"position \"F\" 0,0"_s);
}

TEST_F(RestoringTest, LosesNoWindowToOneThatRefusesFreezesOrVanishes) {
    LMApplication& application =
        store({{u"fixed"_s, left}, {u"frozen"_s, left}, {u"gone"_s, left}, {u"last"_s, left}});
    for (LMFakeWindow& window : desktop.world().windows)
        window.frame = QRectF(700, 500, 99, 77);
    desktop.window(elements[0]).hasImmutablePosition = true;
    desktop.window(elements[1]).neverAnswers = true;
    desktop.window(elements[2]).readsBeforeVanishing = 1; // listed, then gone
    application.restoreWindows();
    EXPECT_EQ(frame(elements[0]), QRectF(QPointF(700, 500), left.size()));
    EXPECT_EQ(frame(elements[3]), left);
    EXPECT_TRUE(test.messages.contains(u"Unable to restore window position: gone"_s));
}

} // namespace
