// SPDX-License-Identifier: MIT
#include "EngineTest.h"

namespace {

using LiveRecordsTest = EngineTest;

TEST_F(LiveRecordsTest, ReadsWindowsAndRefusesWhatIsNone) {
    using W = LMFakeWindow;
    const std::tuple<const char*, void (*)(W & window), bool> rows[] = {
        {"desktop", [](W&) {}, false},
        {"desktop without readable title", [](W& w) { w.title = QString(); }, false},
        {"title", [](W& w) { w.title = u"T"_s; }, true},
        {"subrole", [](W& w) { w.subrole = u"AXDialog"_s; }, true},
        {"two children", [](W& w) { w.childRoles.append(u"AXGroup"_s); }, true},
        {"another child", [](W& w) { w.childRoles = {u"AXButton"_s}; }, true},
        {"modal", [](W& w) { w = {.title = u"T"_s, .isModal = true}; }, false},
        {"frozen", [](W& w) { w = {.title = u"T"_s, .neverAnswers = true}; }, false},
    };
    desktop.addApplication(u"app"_s);
    for (const auto& [name, change, isRead] : rows) {
        W window{u""_s, left, u""_s, {u"AXGroup"_s}, false, false};
        change(window);
        EXPECT_EQ(live(desktop.addWindow(u"app"_s, window)) != nullptr, isRead) << name;
    }
    const LMElement element = desktop.addWindow(u"app"_s, {u"T"_s, {1, 2, 30, 40}});
    for (const auto& [attribute, isRead] :
         {std::pair(LMAttribute::Modal, true), {LMAttribute::Size, false}}) {
        desktop.accessibility().fail(element, LMFakeCall::Copy, attribute,
                                     LMPlatformError::CannotComplete);
        EXPECT_EQ(live(element) != nullptr, isRead) << attribute.data();
    }
}

TEST_F(LiveRecordsTest, ReadsAllWindowsAtOnceAndLosesOnlyThoseThatVanish) {
    LMApplication& application = store();
    int& roundTrips = desktop.world().roundTrips;
    roundTrips = 0;
    EXPECT_EQ(application.currentWindows().size(), 1U);
    const int few = std::exchange(roundTrips, 0);
    for (int index = 0; index < 50; ++index)
        desktop.addWindow(u"app"_s);
    EXPECT_EQ(application.currentWindows().size(), 51U);
    EXPECT_EQ(roundTrips, few);
    desktop.window(desktop.addWindow(u"app"_s)).readsBeforeVanishing = 0;
    EXPECT_EQ(application.currentWindows().size(), 51U);
}

TEST_F(LiveRecordsTest, HandlesApplicationsWithWindowsOfTheirOwn) {
    launch(u"regular"_s);
    launch(u"accessory"_s, {{}}, LMActivationPolicy::Accessory);
    launch(u"prohibited"_s, {{}}, LMActivationPolicy::Prohibited);
    launch(u"modal"_s, {{.isModal = true}});
    for (const QString& blocked : {u"excluded"_s, u"tint2"_s, u"org.rook.Rook"_s})
        launch(blocked);
    defaults.setObject(Keys::ExcludedApplications, QStringList{u"excluded"_s});
    QStringList identifiers;
    for (const LMApplication* application : LMApplication::currentApplications(context))
        identifiers.append(application->bundleIdentifier());
    EXPECT_EQ(identifiers, QStringList({u"regular"_s, u"accessory"_s}));
}

TEST_F(LiveRecordsTest, GivesEachWindowAPictureOfItsOwn) {
    LMApplication& application = store({{u"A"_s, left}, {u"B"_s, left}, {u"C"_s, right}});
    const std::vector<LMWindow*> windows = application.currentWindows();
    desktop.window(elements[2]).hasImage = false;
    application.attachScreenshotsToWindows(windows);
    EXPECT_EQ(pictures(), 0) << "switched off";
    defaults.setObject(Keys::CreateScreenshotsWhenStoringWindows, true);
    application.attachScreenshotsToWindows(windows);
    EXPECT_TRUE(shows(*windows[0], elements[0]) && shows(*windows[1], elements[1]));
    EXPECT_EQ(pictures(), 2);

    windows[0]->setScreenshotFilename(u"../../../etc/passwd"_s);
    EXPECT_EQ(windows[0]->screenshot().width(), QImage(u":/rook/DefaultWindow.png"_s).width());
}

} // namespace
