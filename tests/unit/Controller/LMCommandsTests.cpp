// SPDX-License-Identifier: MIT
#include "unit/Controller/ControllerTest.h"

#include "Model/LMApplication.h"
#include "Model/LMStoredWindow.h"
#include "Model/LMWorkspace.h"
#include "Model/Store/LMObjectContext.h"
#include "Utilities/LMUserDefaultsKeys.h"

namespace {

const QVariantMap Overwrite{{QStringLiteral("Overwrite"), true}};

TEST_F(ControllerTest, StoredWindowsAreRestored) {
    ASSERT_TRUE(perform("SAll").isDone);
    desktop.window(draft).frame = {500, 400, 800, 600};
    ASSERT_TRUE(perform("RAll").isDone);
    EXPECT_EQ(desktop.window(draft).frame, QRectF(10, 20, 300, 200));
    EXPECT_EQ(userInterface.labels,
              (QStringList{QStringLiteral("Storing Windows for All Applications…"),
                           QStringLiteral("Restoring Windows…")}));
    EXPECT_EQ(userInterface.maxValue, 4); // Two applications, two passes.
    EXPECT_EQ(userInterface.shown, 0);
}

TEST_F(ControllerTest, NothingIsReplacedSilently) {
    struct Row {
        const char code[5];
        const char* asks;
    };
    const Row rows[] = {{"SAll", "Stored windows already exist. Do you want"},
                        {"SApp", "Stored windows already exist for “Editor”."},
                        {"SWin", "An identical stored window already exists."}};
    ASSERT_TRUE(perform("SAll").isDone);
    for (const Row& row : rows) {
        const LMCommandResult refused = perform(row.code);
        EXPECT_FALSE(refused.isDone) << row.code;
        EXPECT_TRUE(refused.refusal.contains(QString::fromUtf8(row.asks))) << row.code;
        EXPECT_TRUE(perform(row.code, Overwrite).isDone) << row.code;
    }
    EXPECT_TRUE(userInterface.alerts.isEmpty()) << "a script must never be asked or told";
    const auto workspaces = store.managedObjectContext().objects<LMWorkspace>();
    ASSERT_EQ(workspaces.size(), 1U);
    const LMApplication* application =
        workspaces.front()->applicationForBundleIdentifier(QStringLiteral("org.editor"));
    EXPECT_EQ(application->windows().size(), 2U) << "the active window was replaced, not doubled";
}

TEST_F(ControllerTest, QuestionsDecide) {
    LMStoreCommands commands(delegate.commandParts());
    perform("SAll");
    EXPECT_FALSE(commands.storeAllWindows(false, true).isDone);
    userInterface.answer = {};
    EXPECT_TRUE(commands.storeAllWindows(false, true).isDone);
    EXPECT_TRUE(commands.storeActiveApplicationWindows(false, true).isDone);
    EXPECT_TRUE(commands.storeActiveWindow(false, true).isDone);
    ASSERT_EQ(userInterface.alerts.size(), 7); // Four questions, three messages.
    EXPECT_EQ(userInterface.alerts[5],
              QStringLiteral("An identical stored window already exists. Do you want to replace "
                             "it?|The stored window labelled “Draft” will be replaced with the "
                             "active window."));
    EXPECT_EQ(
        userInterface.alerts[4],
        QStringLiteral("Store Windows Succeeded|Rook has successfully stored windows for Editor."));
}

TEST_F(ControllerTest, TickingTheBoxAndCancellingSuppressesTheQuestionFromThenOn) {
    LMStoreCommands commands(delegate.commandParts());
    perform("SAll");
    int announced = 0;
    test.notificationCenter.addObserver(LMNotification::SupressedAlertsChanged, &delegate,
                                        [&] { ++announced; });
    userInterface.answer.isSuppressionTicked = true;
    EXPECT_FALSE(commands.storeActiveWindow(false, true).isDone);
    EXPECT_EQ(announced, 1);
    EXPECT_TRUE(test.userDefaults.boolForKey(LMUserDefaultsKeys::SuppressStoreActiveWindowAlert));
    EXPECT_TRUE(commands.storeActiveWindow(false, true).isDone);
    EXPECT_TRUE(commands.storeActiveWindow(false, true).isDone);
    EXPECT_EQ(userInterface.alerts.size(), 2) << "one question, one message";
}

TEST_F(ControllerTest, CommandsThatCannotRunSayWhy) {
    EXPECT_TRUE(perform("RAll").refusal.contains(u"Nothing is stored"));
    EXPECT_TRUE(perform("RNam", {{QStringLiteral("Application"), QStringLiteral("org.none")}})
                    .refusal.contains(u"Nothing is stored"));
    EXPECT_EQ(perform("Nope").refusal, QStringLiteral("unknown"));
    perform("SApp");
    EXPECT_TRUE(perform("RNam", {{QStringLiteral("Application"), QStringLiteral("org.none")}})
                    .refusal.contains(u"“org.none”"));
    EXPECT_TRUE(
        perform("RNam", {{QStringLiteral("Application"), QStringLiteral("org.editor")}}).isDone);
    desktop.world().permission = {false, {QStringLiteral("No window manager.")}};
    for (const char* code : {"RAll", "RApp", "SApp", "SWin", "SAll"}) {
        const char name[5] = {code[0], code[1], code[2], code[3], 0};
        EXPECT_EQ(perform(name, Overwrite).refusal, QStringLiteral("No window manager.")) << code;
    }
}

TEST_F(ControllerTest, TheUsersApplicationIsActiveAgainAndLiveRecordsAreGone) {
    perform("SAll");
    const auto objects = [this] {
        return store.managedObjectContext().objects<LMStoredWindow>().size();
    };
    const std::size_t before = objects();
    for (int round = 0; round < 20; ++round) {
        perform("RAll");
        perform("SAll");
    }
    EXPECT_EQ(objects(), before);
    EXPECT_EQ(desktop.applications().runningApplications().front().isActive, true);
}

TEST_F(ControllerTest, OwnWindowsInFrontKeepTheRecordedApplication) {
    perform("RApp"); // Records the editor.
    desktop.addApplication(QStringLiteral("org.rook.Rook"));
    desktop.focus(
        desktop.addWindow(QStringLiteral("org.rook.Rook"), {.title = QStringLiteral("List")}));
    ASSERT_TRUE(perform("SApp").isDone);
    const auto workspaces = store.managedObjectContext().objects<LMWorkspace>();
    EXPECT_TRUE(workspaces.front()->storesApplication(QStringLiteral("org.editor")));
    EXPECT_FALSE(workspaces.front()->storesApplication(QStringLiteral("org.rook.Rook")));
}

} // namespace
