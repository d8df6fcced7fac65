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
        desktop.world().setScreens(screens);
        return *record;
    }
    static QStringList storedApplications(const LMWorkspace& record) {
        QStringList result;
        for (const LMApplication* application : record.applications())
            result.append(application->bundleIdentifier());
        return result;
    }
};

TEST_F(WorkspaceTest, StoresEveryApplication) {
    launch(u"a"_s);
    launch(u"com.google.Chrome"_s, {{.title = u""_s, .childRoles = {}}});
    launch(u"b"_s);
    setHidden(u"b"_s, true);
    LMWorkspace& record = workspace();
    for (int round = 0; round < 2; ++round) {
        record.storeWindowsWithProgressWindowController(progress);
        EXPECT_EQ(storedApplications(record), (QStringList{u"a"_s, u"b"_s}));
        EXPECT_EQ(events(), u"unhide b, activate a, sleep 2500, activate com.google.Chrome, "
                            "sleep 2500, activate b, sleep 2500, hide b, "
                            "stack \"Window\" \"\" \"Window\""_s);
    }
    EXPECT_EQ(progress.maxValue, 3);
    EXPECT_EQ(progress.steps, 6);
}

TEST_F(WorkspaceTest, StoresAndRestoresUnderSpaces) {
    const QString finder = desktop.world().fileManagerIdentifier;
    launch(u"a"_s, {{u"A"_s, left}});
    launch(finder, {{u"F"_s, right}});
    desktop.makeActive(u"a"_s);
    defaults.setObject(Keys::EnableSpacesSupport, true);
    LMWorkspace& record = workspace();
    record.storeWindowsWithProgressWindowController(progress);
    // The file manager alone: hidden, hidden to be stored, put back, shown for what floats.
    EXPECT_EQ(events().replace(finder, u"f"_s),
              u"hide f, hide f, hide f, hide f, activate f, sleep 2500, unhide f, "
              "hide a, hide a, hide a, unhide a, unhide f, activate a"_s);
    EXPECT_EQ(storedApplications(record), (QStringList{finder, u"a"_s}));

    desktop.makeActive(u"a"_s);
    record.restoreWindowsWithProgressWindowController(progress, false);
    EXPECT_EQ(events().replace(finder, u"f"_s),
              u"position \"A\" 0,0, sleep 1000000, size \"A\" 300,200, hide f, "
              "position \"F\" 400,0, sleep 1000000, size \"F\" 350,250, unhide f, hide a, "
              "position \"F\" 400,0, position \"A\" 0,0, sleep 1000000, "
              "size \"F\" 350,250, size \"A\" 300,200, unhide a, unhide f, "
              "activate a"_s);

    // Nothing is kept but what is stored.
    record.storeWindowsWithProgressWindowController(progress);
    context.discardTransientObjects();
    EXPECT_EQ(context.objects<LMApplication>().size(), 2U);
    EXPECT_EQ(context.objects<LMWindow>().size(), 2U);
}

TEST_F(WorkspaceTest, StoresOneApplicationInPlaceOfItsFormerRecord) {
    const LMElement element = launch(u"a"_s)[0];
    launch(u"b"_s);
    LMWorkspace& record = workspace();
    record.storeWindowsForApplication(u"a"_s);
    desktop.window(element).title = u"New"_s;
    record.storeWindowsForApplication(u"a"_s);
    EXPECT_EQ(storedApplications(record), QStringList{u"a"_s});
    EXPECT_EQ(titles(record.applications().allObjects()[0]->orderedWindows()), u"New"_s);
    desktop.removeApplication(u"a"_s);
    record.storeWindowsForApplication(u"a"_s);
    EXPECT_TRUE(record.applications().isEmpty()) << "what does not run is forgotten";
}

TEST_F(WorkspaceTest, ArrangesTheDisplaysAsTheyStood) {
    using Rects = QList<QRectF>;
    using W = LMFakeWorld;
    const QRectF main(0, 0, 1440, 900), twin(1440, 0, 1440, 900), westTwin(-1440, 0, 1440, 900);
    const QRectF west(-800, 0, 800, 600), east(1440, 0, 800, 600), other(1440, 0, 801, 600);
    const QRectF lowWest(-800, 300, 800, 600), lowEast(1440, 300, 800, 600);
    const QString none;                                            // It cannot become current.
    const QString twins = u"arrange 2 1440,0, arrange 3 -800,0"_s; // In the order of their bounds.
    const std::tuple<Rects, Rects, QString> rows[] = {
        {{main, west}, {main, east}, u"arrange 2 -800,0"_s},
        {{main, east}, {main, east}, none},
        {{main, east}, {main}, none},
        {{main, east}, {main, other}, none},
        {{main, east}, {{0, 0, 1441, 900}, west}, none},
        {{main, westTwin}, {main, twin}, u"arrange 2 -1440,0"_s},
        {{main, west, east}, {main, lowEast, lowWest}, twins},
    };
    int row = 0;
    for (const auto& [wanted, attached, expected] : rows) {
        SCOPED_TRACE(++row);
        LMWorkspace& record = workspace(wanted);
        LMDisplay* const first = record.displays().allObjects()[0];
        record.removeDisplaysObject(first); // The main one comes last: a set has no order.
        record.addDisplaysObject(first);
        desktop.setScreens(attached);
        EXPECT_EQ(record.canBecomeCurrentWorkspace(), expected != none);
        const bool wasCurrent = record.isCurrentWorkspace();
        for (auto can : {&W::canArrangeDisplays, &W::beginsDisplayConfiguration,
                         &W::completesDisplayConfiguration}) {
            desktop.world().*can = false;
            EXPECT_LE(record.canBecomeCurrentWorkspace(), desktop.world().canArrangeDisplays);
            record.makeCurrentWorkspace();
            EXPECT_EQ(record.isCurrentWorkspace(), wasCurrent);
            desktop.world().*can = true;
        }
        events();
        record.makeCurrentWorkspace();
        EXPECT_EQ(events(), expected);
        EXPECT_EQ(record.isCurrentWorkspace(), expected != none || wanted == attached);
    }
}

} // namespace
