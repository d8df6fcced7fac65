// SPDX-License-Identifier: MIT
#include "unit/Controller/ControllerTest.h"

#include "Model/LMApplication.h"
#include "Model/LMStoredWindow.h"
#include "Model/LMWorkspace.h"
#include "Model/Store/LMObjectContext.h"

namespace {

using testing::ElementsAre;

const QVariantMap Overwrite{{u"Overwrite"_s, true}};

TEST_F(ControllerTest, StoringAndRestoringShowProgressAndLeaveTheUsersApplicationActive) {
    ASSERT_TRUE(perform("SAll").isDone && perform("RAll").isDone);
    EXPECT_THAT(userInterface.labels,
                ElementsAre(u"Storing Windows for All Applications…"_s, u"Restoring Windows…"_s));
    EXPECT_EQ(userInterface.maxValue, 4); // Two applications, two passes.
    EXPECT_EQ(userInterface.shown, 0);
    EXPECT_TRUE(desktop.applications().runningApplications().front().isActive);
}

TEST_F(ControllerTest, NothingIsReplacedSilently) {
    ASSERT_TRUE(perform("SAll").isDone);
    for (const auto& [code, asks] : {
             std::pair("SAll", u"Stored windows already exist. Do you want"),
             std::pair("SApp", u"Stored windows already exist for “Editor”."),
             std::pair("SWin", u"An identical stored window already exists."),
         }) {
        const LMCommandResult refused = perform(code);
        EXPECT_FALSE(refused.isDone) << code;
        EXPECT_TRUE(refused.refusal.contains(asks)) << code;
        EXPECT_TRUE(perform(code, Overwrite).isDone) << code;
    }
    EXPECT_TRUE(userInterface.alerts.isEmpty()) << "a script must never be asked or told";
    EXPECT_EQ(store.managedObjectContext().objects<LMStoredWindow>().size(), 3U)
        << "the active window was replaced, not doubled";
}

TEST_F(ControllerTest, QuestionsDecide) {
    LMStoreCommands commands(delegate.commandParts());
    perform("SAll");
    const LMCommandResult declined = commands.storeAllWindows(false, true);
    EXPECT_FALSE(declined.isDone || declined.refusal.isEmpty()) << "the user said no, and is told";
    userInterface.answer = {};
    EXPECT_TRUE(commands.storeAllWindows(false, true).isDone);
    EXPECT_TRUE(commands.storeActiveApplicationWindows(false, true).isDone);
    userInterface.duringModal = [this] { desktop.focus({}); };
    EXPECT_TRUE(commands.storeActiveWindow(false, true).isDone) << "the alert has taken the focus";
    ASSERT_EQ(userInterface.alerts.size(), 7); // Four questions, three messages.
    EXPECT_EQ(userInterface.alerts[5],
              u"An identical stored window already exists. Do you want to replace it?|The stored "
              "window labelled “Draft” will be replaced with the active window."_s);
}

TEST_F(ControllerTest, CommandsThatCannotRunSayWhy) {
    EXPECT_EQ(perform("Nope").refusal, u"unknown"_s);
    for (const QString& why : {u"Nothing is stored"_s, u"“org.none”"_s}) {
        EXPECT_TRUE(perform("RNam", {{u"Application"_s, u"org.none"_s}}).refusal.contains(why));
        perform("SApp");
    }
    desktop.world().permission = {false, {u"No window manager."_s}};
    for (const char* code : {"RAll", "RApp", "SApp", "SWin", "SAll"})
        EXPECT_EQ(perform(code, Overwrite).refusal, u"No window manager."_s) << code;
    desktop.world().permission = {true, {}};
    EXPECT_TRUE(perform("RAll").isDone);
    EXPECT_EQ(userInterface.calls, (QStringList{u"missing: No window manager."_s, u"missing: "_s}))
        << "the user is told once";
}

TEST_F(ControllerTest, ADesktopThatGoesAwayOnTheWayTakesNothingFromTheStore) {
    perform("SAll");
    const LMObjectContext& context = store.managedObjectContext();
    const auto stored = context.objects<LMStoredWindow>();
    for (const bool returns : {false, true}) {
        int steps = 0;
        userInterface.duringProgress = [&] {
            desktop.world().permission = {++steps > 1 && returns, {u"No window manager."_s}};
        };
        EXPECT_TRUE(perform("SAll", Overwrite).refusal.contains(u"No window manager.")) << returns;
        EXPECT_EQ(context.objects<LMStoredWindow>(), stored) << returns;
        desktop.world().permission = {true, {}};
    }
    userInterface.duringProgress = [&] { desktop.setScreens({{0, 0, 800, 600}}); };
    EXPECT_TRUE(perform("SAll", Overwrite).refusal.contains(u"displays have changed"));
    EXPECT_EQ(context.objects<LMStoredWindow>(), stored);
    desktop.setScreens({{0, 0, 1440, 900}});
    userInterface.duringProgress = [&] {
        desktop.world().permission = {false, {u"No window manager."_s}};
    };
    EXPECT_EQ(perform("RAll").refusal, u"No window manager."_s);
}

TEST_F(ControllerTest, WithoutAnyActiveApplicationScriptsGetNoAnswer) {
    desktop.focus({});
    for (const char* code : {"RApp", "SApp", "SWin"})
        EXPECT_EQ(perform(code, Overwrite).refusal, u"unknown"_s) << code;
    EXPECT_TRUE(perform("SAll").isDone && perform("RAll").isDone) << "they need none";
}

TEST_F(ControllerTest, OwnWindowsInFrontKeepTheRecordedApplication) {
    perform("RApp"); // Records the editor.
    desktop.focus(launch(u"org.rook.Rook"_s)[0]);
    ASSERT_TRUE(perform("SApp").isDone);
    const LMWorkspace* workspace = store.managedObjectContext().objects<LMWorkspace>().front();
    EXPECT_TRUE(workspace->storesApplication(u"org.editor"_s));
    EXPECT_FALSE(workspace->storesApplication(u"org.rook.Rook"_s));
    ASSERT_TRUE(perform("SWin", Overwrite).isDone);
    EXPECT_EQ(store.managedObjectContext().objects<LMStoredWindow>().size(), 2U);
}

} // namespace
