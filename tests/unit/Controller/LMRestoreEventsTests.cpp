// SPDX-License-Identifier: MIT
#include "unit/Controller/ControllerTest.h"

#include "Model/LMAction.h"
#include "Model/LMWorkspace.h"
#include "Model/Store/LMObjectContext.h"

#include <cmath>

namespace {

/// Windows are stored for one display and for two; each restore pauses for one second.
class RestoreEventsTest : public ControllerTest {
protected:
    RestoreEventsTest() {
        defaults.setObject(Keys::RestoreWindowsAsApplicationsLaunch, true);
        defaults.setObject(Keys::RestoreWindowsAutomatically, true);
        perform("SAll");
        restoreEvents.recordDisplayConfiguration();
        restoreEvents.registerForNotifications();
        moveAway();
    }
    void moveAway() {
        desktop.window(draft).frame = {500, 400, 300, 200};
        desktop.log().clear();
        userInterface.calls.clear();
    }
    bool isBack() { return desktop.window(draft).frame == QRectF(10, 20, 300, 200); }
    qsizetype pauses() { return desktop.log().filter(u"sleep"_s).size(); }
    void changeDisplays(const QList<QRectF>& bounds) {
        desktop.setScreens(bounds);
        desktop.announceScreenChange();
    }
    void launch(const QString& identifier) { restoreEvents.userLaunchedApplication(identifier); }
    LMWorkspace* workspace() { return delegate.commandParts().workspaceList.currentWorkspace(); }

    const QString editor = u"org.editor"_s;
    LMRestoreEvents& restoreEvents = delegate.restoreEvents();
    const QRectF main{0, 0, 1440, 900}, right{1440, 0, 1920, 1080};
};

TEST_F(RestoreEventsTest, AnApplicationThatLaunchesIsRestoredOnce) {
    launch(editor);
    EXPECT_EQ(pauses(), 0) << "not before the delay";
    EXPECT_TRUE(wait([this] { return isBack(); }));

    moveAway();
    defaults.setObject(Keys::RestoreWindowsAsApplicationsLaunch, false);
    launch(editor);
    QCoreApplication::processEvents();
    EXPECT_FALSE(isBack());

    defaults.setObject(Keys::RestoreWindowsAsApplicationsLaunch, true);
    launch(editor); // The workspace is gone when the time comes.
    store.managedObjectContext().deleteObject(workspace());
    store.saveWindows();
    launch(editor);
    QCoreApplication::processEvents();
    EXPECT_FALSE(isBack());
}

TEST_F(RestoreEventsTest, DelaysThatMakeNoSenseBecomeSome) {
    for (const auto& [seconds, delay] :
         {std::pair(2.5, 2500), {-1, 0}, {std::nan(""), 0}, {HUGE_VAL, 3600'000}})
        EXPECT_EQ(LMRestoreEvents::launchRestoreDelay(seconds).count(), delay) << seconds;
}

TEST_F(RestoreEventsTest, ChangedDisplaysAreRestoredOncePerChange) {
    changeDisplays({main});
    EXPECT_TRUE(userInterface.calls.isEmpty()) << "the same displays";
    changeDisplays({main, right});
    EXPECT_EQ(userInterface.calls, (QStringList{u"no picker"_s, u"reload"_s}));
    EXPECT_FALSE(isBack()) << "nothing is stored for two displays";
    defaults.setObject(Keys::RestoreWindowsAutomatically, false);
    changeDisplays({main});
    defaults.setObject(Keys::RestoreWindowsAutomatically, true);
    desktop.announceScreenChange();
    EXPECT_FALSE(isBack()) << "what was off is not made up for";

    auto* action = store.managedObjectContext().insertObject<LMAction>();
    workspace()->addActionsObject(action);
    action->setRunAs(u"Shell Script"_s);
    action->setRunOnDisplayChange(true);
    action->setScript(u"#!/bin/sh\necho"_s);
    changeDisplays({main, right});
    changeDisplays({main});
    EXPECT_TRUE(isBack());
    EXPECT_TRUE(test.hasLogged(u"Running the action"_s));
}

TEST_F(RestoreEventsTest, WhatArrivesDuringAnAlertWaitsOrIsRefused) {
    userInterface.duringModal = [this] {
        for (const char* code : {"RAll", "RApp", "SApp", "SWin", "SAll"})
            EXPECT_TRUE(perform(code).refusal.contains(u"Rook is asking")) << code;
        LMDBusService& service = delegate.dbusService();
        EXPECT_FALSE(service.LinkActiveWindow() || service.ShowAbout());
        EXPECT_TRUE(service.Status().contains(u"Storing Windows for All Applications…"));
        delegate.userCommands().performIfAvailable(LMMenuCommand::RestoreAllWindows);
        desktop.setScreens({main, right}); // There and back again.
        desktop.announceScreenChange();
        changeDisplays({main});
        launch(editor);
        launch(editor);
        QCoreApplication::processEvents();
        EXPECT_TRUE(desktop.log().isEmpty());
        EXPECT_TRUE(userInterface.calls.isEmpty());
    };
    EXPECT_FALSE(delegate.userCommands().perform(LMMenuCommand::StoreAllWindows).isDone);
    EXPECT_TRUE(wait([this] { return isBack(); }));
    QCoreApplication::processEvents();
    EXPECT_EQ(pauses(), 1) << "one launch is one restore";
}

} // namespace
