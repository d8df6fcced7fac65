// SPDX-License-Identifier: MIT
#include "Model/LMDisplay.h"

#include "EngineTest.h"

#include <QDir>

namespace {

using LiveRecordsTest = EngineTest;

LMFakeWindow desktopWindow() {
    return {.title = u""_s, .subrole = u""_s, .childRoles = {u"AXGroup"_s}, .hasGrowArea = false};
}

TEST_F(LiveRecordsTest, ReadsWindowsAndRefusesWhatIsNone) {
    const struct {
        const char* name;
        void (*change)(LMFakeWindow& window);
        bool isRead;
    } rows[] = {
        {"desktop", [](LMFakeWindow&) {}, false},
        {"desktop without readable title", [](LMFakeWindow& w) { w.title = QString(); }, false},
        {"title", [](LMFakeWindow& w) { w.title = u"T"_s; }, true},
        {"subrole", [](LMFakeWindow& w) { w.subrole = u"AXDialog"_s; }, true},
        {"document", [](LMFakeWindow& w) { w.hasDocument = true; }, true},
        {"two children", [](LMFakeWindow& w) { w.childRoles.append(u"AXGroup"_s); }, true},
        {"another child", [](LMFakeWindow& w) { w.childRoles = {u"AXButton"_s}; }, true},
        {"modal", [](LMFakeWindow& w) { w = {.title = u"T"_s, .isModal = true}; }, false},
        {"frozen", [](LMFakeWindow& w) { w = {.title = u"T"_s, .neverAnswers = true}; }, false},
    };
    desktop.addApplication(u"app"_s);
    for (const auto& row : rows) {
        LMFakeWindow window = desktopWindow();
        row.change(window);
        const LMElement element = desktop.addWindow(u"app"_s, window);
        EXPECT_EQ(LMWindow::windowWithElement(context, element) != nullptr, row.isRead) << row.name;
    }
    const LMElement element = desktop.addWindow(u"app"_s, fakeWindow(u"T"_s, {1, 2, 30, 40}));
    desktop.accessibility().fail(element, LMFakeCall::Copy, LMAttribute::Modal,
                                 LMPlatformError::CannotComplete);
    const LMWindow* window = LMWindow::windowWithElement(context, element);
    ASSERT_NE(window, nullptr);
    EXPECT_EQ(window->title(), u"T"_s);
    EXPECT_EQ(window->frameString(), u"{{1, 2}, {30, 40}}"_s);
    desktop.accessibility().fail(element, LMFakeCall::Copy, LMAttribute::Size,
                                 LMPlatformError::CannotComplete);
    EXPECT_EQ(LMWindow::windowWithElement(context, element), nullptr);
}

TEST_F(LiveRecordsTest, ReadsAllWindowsAtOnceAndLosesOnlyThoseThatVanish) {
    launch(u"app"_s, {fakeWindow(u"A"_s, {0, 0, 10, 10}), fakeWindow(u"B"_s, {0, 0, 10, 10})});
    LMApplication& application = stored(u"app"_s);
    const auto roundTrips = [&] {
        const int before = desktop.world().roundTrips;
        const std::vector<LMWindow*> windows = application.currentWindows();
        return std::pair(windows.size(), desktop.world().roundTrips - before);
    };
    const int few = roundTrips().second;
    for (int index = 0; index < 50; ++index)
        desktop.addWindow(u"app"_s, fakeWindow(QString::number(index), {0, 0, 10, 10}));
    EXPECT_EQ(roundTrips(), std::pair(std::size_t(52), few));
    desktop.window(desktop.addWindow(u"app"_s)).readsBeforeVanishing = 0;
    EXPECT_EQ(roundTrips().first, 52U);
    desktop.removeApplication(u"app"_s);
    EXPECT_TRUE(application.currentWindows().empty());
    EXPECT_EQ(application.processIdentifier(), 0);
}

TEST_F(LiveRecordsTest, HandlesApplicationsWithWindowsOfTheirOwn) {
    const auto add = [&](const QString& identifier, LMActivationPolicy policy, bool isModal) {
        desktop.addApplication(identifier, {}, {}, policy);
        desktop.addWindow(identifier, {.isModal = isModal});
    };
    add(u"regular"_s, LMActivationPolicy::Regular, false);
    add(u"accessory"_s, LMActivationPolicy::Accessory, false);
    add(u"prohibited"_s, LMActivationPolicy::Prohibited, false);
    add(u"modal"_s, LMActivationPolicy::Regular, true);
    add(u"excluded"_s, LMActivationPolicy::Regular, false);
    add(u"tint2"_s, LMActivationPolicy::Regular, false);
    add(u"org.rook.Rook"_s, LMActivationPolicy::Regular, false);
    defaults.setObject(LMUserDefaultsKeys::ExcludedApplications, QStringList{u"excluded"_s});
    const auto identifiers = [&] {
        QStringList result;
        for (const LMApplication* application : LMApplication::currentApplications(context))
            result.append(application->bundleIdentifier());
        return result;
    };
    EXPECT_EQ(identifiers(), QStringList({u"regular"_s, u"accessory"_s}));
}

TEST_F(LiveRecordsTest, GivesEachWindowAPictureOfItsOwn) {
    const QRectF place(0, 0, 20, 10);
    const QList<LMElement> elements =
        launch(u"app"_s, {fakeWindow(u"front"_s, place), fakeWindow(u"back"_s, place),
                          fakeWindow(u"elsewhere"_s, {5, 5, 20, 10})});
    LMApplication& application = stored(u"app"_s);
    std::vector<LMWindow*> windows = application.currentWindows();
    application.attachScreenshotsToWindows(windows);
    EXPECT_EQ(windows[0]->screenshotFilename(), u""_s) << "switched off";

    defaults.setObject(LMUserDefaultsKeys::CreateScreenshotsWhenStoringWindows, true);
    desktop.window(elements[2]).hasImage = false;
    application.attachScreenshotsToWindows(windows);
    for (std::size_t index = 0; index < 2; ++index) {
        EXPECT_EQ(windows[index]->screenshot().pixel(0, 0),
                  0xff000000u | unsigned(elements[int(index)].identifier));
    }
    EXPECT_EQ(windows[2]->screenshotFilename(), u""_s);
    EXPECT_EQ(QDir(folders.screenshotsDirectoryURL()).entryList(QDir::Files).size(), 2);

    windows[0]->setScreenshotFilename(u"../../../etc/passwd"_s);
    EXPECT_EQ(windows[0]->screenshot().width(), QImage(u":/rook/DefaultWindow.png"_s).width());
}

TEST_F(LiveRecordsTest, ComparesDisplayConfigurations) {
    const QRectF main(0, 0, 1440, 900);
    const QRectF toTheLeft(-1920, 0, 1920, 1080);
    const auto displays = [&](const QList<QRectF>& bounds) {
        desktop.setScreens(bounds);
        return LMDisplay::currentDisplays(context);
    };
    auto reversed = displays({main, toTheLeft});
    std::reverse(reversed.begin(), reversed.end());
    EXPECT_EQ(reversed[0]->displayBounds(), u"{{-1920, 0}, {1920, 1080}}"_s);
    EXPECT_TRUE(LMDisplaysAreEqual(displays({main, toTheLeft}), reversed));
    EXPECT_FALSE(LMDisplaysAreEqual(displays({main}), reversed));
    EXPECT_FALSE(LMDisplaysAreEqual(displays({main}), displays({{0, 0, 1440, 901}})));
}

} // namespace
