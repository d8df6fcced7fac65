// SPDX-License-Identifier: MIT
#include "Model/LMAction.h"
#include "Model/LMDisplay.h"

#include "EngineTest.h"

namespace {

class WorkspaceTest : public EngineTest {
protected:
    /// A workspace for a display configuration that need not be the present one.
    LMWorkspace& workspace(const QList<QRectF>& displays = {{0, 0, 1440, 900}}) {
        const QList<LMScreen> screens = desktop.screens().screens();
        desktop.setScreens(displays);
        auto* record = context.insertObject<LMWorkspace>();
        desktop.screens().setScreens(screens);
        return *record;
    }

    QStringList storedApplications(const LMWorkspace& record) {
        QStringList result;
        for (const LMApplication* application : record.applications())
            result.append(application->bundleIdentifier());
        return result;
    }

    template <class T>
    std::size_t count() const {
        return context.objects<T>().size();
    }

    const QRectF left{0, 0, 300, 200};
    const QRectF right{400, 0, 350, 250};
    CountingProgress progress;
};

TEST_F(WorkspaceTest, StoresEveryApplication) {
    LMFakeWindow helper = fakeWindow(u""_s, left);
    helper.childRoles.clear();
    launch(u"a"_s, {fakeWindow(u"A"_s, left)});
    launch(u"com.google.Chrome"_s, {helper});
    launch(u"b"_s, {fakeWindow(u"B"_s, right)});
    desktop.applications().hide(desktop.world().application(u"b"_s)->processIdentifiers[0]);
    events();
    LMWorkspace& record = workspace();
    for (int round = 0; round < 2; ++round) {
        record.storeWindowsWithProgressWindowController(progress);
        EXPECT_EQ(storedApplications(record), (QStringList{u"a"_s, u"b"_s}));
        EXPECT_EQ(record.applications().allObjects()[1]->windows().count(), 1U);
        EXPECT_EQ(events(), u"unhide b, activate a, sleep 2500, activate com.google.Chrome, "
                            "sleep 2500, activate b, sleep 2500, hide b"_s);
    }
    EXPECT_EQ(progress.maxValue, 3);
    EXPECT_EQ(progress.steps, 6);
}

TEST_F(WorkspaceTest, StoresAndRestoresUnderSpaces) {
    const QString finder = desktop.world().fileManagerIdentifier;
    launch(u"a"_s, {fakeWindow(u"A"_s, left)});
    launch(finder, {fakeWindow(u"F"_s, right)});
    desktop.makeActive(u"a"_s);
    defaults.setObject(LMUserDefaultsKeys::EnableSpacesSupport, true);
    LMWorkspace& record = workspace();
    record.storeWindowsWithProgressWindowController(progress);
    // The file manager alone: hidden, hidden to be stored, put back, shown for what floats.
    EXPECT_EQ(events().replace(finder, u"f"_s),
              u"hide f, hide f, hide f, hide f, activate f, sleep 2500, unhide f, "
              "hide a, hide a, hide a, unhide a, unhide f"_s);
    EXPECT_EQ(storedApplications(record), (QStringList{finder, u"a"_s}));
    EXPECT_EQ(progress.steps, 2);

    desktop.makeActive(u"a"_s);
    progress = {};
    record.restoreWindowsWithProgressWindowController(progress, false);
    EXPECT_EQ(events().replace(finder, u"f"_s),
              u"position \"A\" 0,0, sleep 1000000, size \"A\" 300,200, hide f, "
              "position \"F\" 400,0, sleep 1000000, size \"F\" 350,250, unhide f, hide a, "
              "position \"F\" 400,0, position \"A\" 0,0, sleep 1000000, "
              "size \"F\" 350,250, size \"A\" 300,200, unhide a, unhide f"_s);
    EXPECT_EQ(progress.maxValue, 4);
    EXPECT_EQ(progress.steps, 4);
}

TEST_F(WorkspaceTest, StoresOneApplicationInPlaceOfItsFormerRecord) {
    const LMElement element = launch(u"a"_s, {fakeWindow(u"A"_s, left)})[0];
    launch(u"b"_s, {fakeWindow(u"B"_s, left)});
    LMWorkspace& record = workspace();
    record.storeWindowsForApplication(u"a"_s);
    desktop.window(element).title = u"New"_s;
    record.storeWindowsForApplication(u"a"_s);
    record.storeWindowsForApplication(u"none"_s);
    EXPECT_EQ(storedApplications(record), QStringList{u"a"_s});
    ASSERT_TRUE(record.storesApplication(u"a"_s) && !record.storesApplication(u"b"_s));
    EXPECT_EQ(titles(record.applicationForBundleIdentifier(u"a"_s)->orderedWindows()), u"New"_s);
    desktop.removeApplication(u"a"_s);
    record.storeWindowsForApplication(u"a"_s);
    EXPECT_TRUE(record.applications().isEmpty()) << "what does not run is forgotten";
}

TEST_F(WorkspaceTest, ArrangesTheDisplaysAsTheyStood) {
    const QRectF main(0, 0, 1440, 900);
    // clang-format off
    const struct {
        const char* name;
        QList<QRectF> wanted;
        QList<QRectF> attached;
        QString events; ///< None: it cannot become current.
        bool isCurrentAfterwards;
    } rows[] = {
        {"moved to the left", {main, {-1920, 0, 1920, 1080}}, {main, {1440, 0, 1920, 1080}}, u"arrange 2 -1920,0"_s, true},
        {"current", {main, {1440, 0, 800, 600}}, {main, {1440, 0, 800, 600}}, {}, true},
        {"other count", {main, {1440, 0, 800, 600}}, {main}, {}, false},
        {"other size", {main, {1440, 0, 800, 600}}, {main, {-801, 0, 801, 600}}, {}, false},
        {"other main size", {main, {1440, 0, 800, 600}}, {{0, 0, 1441, 900}, {-800, 0, 800, 600}}, {}, false},
        {"a display of the main one's size", {main, {-1440, 0, 1440, 900}}, {main, {1440, 0, 1440, 900}}, u"arrange 2 -1440,0"_s, true},
        {"twins in the order of their bounds", {main, {-800, 0, 800, 600}, {1440, 0, 800, 600}}, {main, {1440, 300, 800, 600}, {-800, 300, 800, 600}}, u"arrange 2 1440,0, arrange 3 -800,0"_s, true},
    };
    // clang-format on
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        LMWorkspace& record = workspace(row.wanted);
        LMDisplay* const first = record.displays().allObjects()[0];
        record.removeDisplaysObject(first); // The main one comes last: a set has no order.
        record.addDisplaysObject(first);
        desktop.setScreens(row.attached);
        events();
        EXPECT_EQ(record.canBecomeCurrentWorkspace(), !row.events.isEmpty());
        record.makeCurrentWorkspace();
        EXPECT_EQ(events(), row.events);
        EXPECT_EQ(record.isCurrentWorkspace(), row.isCurrentAfterwards);
    }
}

TEST_F(WorkspaceTest, LeavesTheArrangementWhenItCannotBeChanged) {
    LMWorkspace& record = workspace({{0, 0, 1440, 900}, {-800, 0, 800, 600}});
    desktop.setScreens({{0, 0, 1440, 900}, {1440, 0, 800, 600}});
    for (bool LMFakeWorld::*can :
         {&LMFakeWorld::canArrangeDisplays, &LMFakeWorld::beginsDisplayConfiguration,
          &LMFakeWorld::completesDisplayConfiguration}) {
        desktop.world().*can = false;
        record.makeCurrentWorkspace();
        EXPECT_FALSE(record.isCurrentWorkspace());
        desktop.world().*can = true;
    }
    record.makeCurrentWorkspace();
    EXPECT_TRUE(record.isCurrentWorkspace());
}

TEST_F(WorkspaceTest, KeepsNothingOverAThousandRounds) {
    const QList<LMElement> elements =
        launch(u"a"_s, {fakeWindow(u"A"_s, left), floatingWindow(u"F"_s, right)});
    launch(u"b"_s, {fakeWindow(u"B"_s, right), {.isModal = true}});
    LMWorkspace& record = workspace();
    for (int round = 0; round < 1000; ++round) {
        record.storeWindowsWithProgressWindowController(progress);
        context.discardTransientObjects();
        for (LMFakeWindow& window : desktop.world().windows)
            window.frame.translate(17, 11);
        record.restoreWindowsWithProgressWindowController(progress, false);
        context.discardTransientObjects();
        ASSERT_EQ(desktop.window(elements[0]).frame, left);
        ASSERT_EQ(desktop.window(elements[1]).frame, right);
        ASSERT_EQ(count<LMWindow>(), 3U);
        ASSERT_EQ(count<LMStoredWindow>(), 3U);
        ASSERT_EQ(count<LMApplication>(), 2U);
        ASSERT_EQ(count<LMDisplay>(), 1U);
        events();
        test.messages.clear();
    }
}

} // namespace
