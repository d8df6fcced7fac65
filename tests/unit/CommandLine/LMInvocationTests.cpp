// SPDX-License-Identifier: MIT
#include "CommandLine/LMInvocation.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

using Kind = LMInvocation::Kind;

LMInvocation parse(std::vector<const char*> arguments) {
    arguments.insert(arguments.begin(), "rook");
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    LMInvocation invocation = LMParseCommandLine(int(arguments.size()), arguments.data());
    testing::internal::GetCapturedStdout();
    testing::internal::GetCapturedStderr();
    return invocation;
}

TEST(Invocation, NamesTheMethodAndItsArguments) {
    struct Row {
        std::vector<const char*> arguments;
        Kind kind;
        const char* method;
        QVariantList values;
    };
    const Row rows[] = {
        {{"restore-all"}, Kind::Command, "RestoreAll", {}},
        {{"restore-app"}, Kind::Command, "RestoreActiveApplication", {}},
        {{"restore-app", "xterm"}, Kind::Command, "RestoreApplication", {QStringLiteral("xterm")}},
        {{"restore-app", "--", "-odd"},
         Kind::Command,
         "RestoreApplication",
         {QStringLiteral("-odd")}},
        {{"restore-app", ""}, Kind::Command, "RestoreApplication", {QString()}},
        {{"store-all"}, Kind::Command, "StoreAll", {false}},
        {{"store-all", "--overwrite"}, Kind::Command, "StoreAll", {true}},
        {{"store-app", "--overwrite"}, Kind::Command, "StoreActiveApplication", {true}},
        {{"store-window"}, Kind::Command, "StoreActiveWindow", {false}},
        {{"status"}, Kind::Report, "Status", {}},
        {{"plan"}, Kind::Report, "Plan", {QString()}},
        {{"plan", "--json", "gedit"}, Kind::Report, "Plan", {QStringLiteral("gedit")}},
        {{"quit"}, Kind::Quit, "Quit", {}},
    };
    for (const Row& row : rows) {
        const LMInvocation invocation = parse(row.arguments);
        EXPECT_EQ(invocation.kind, row.kind) << row.method;
        EXPECT_EQ(invocation.method, QLatin1String(row.method));
        EXPECT_EQ(invocation.arguments, row.values) << row.method;
    }
    EXPECT_TRUE(parse({"plan", "--json"}).wantsJson);
    EXPECT_TRUE(parse({"list", "--json"}).wantsJson);
    EXPECT_FALSE(parse({"list"}).wantsJson);
}

TEST(Invocation, StartsTheResidentProcessWithoutCommand) {
    EXPECT_EQ(parse({}).kind, Kind::Resident);
    EXPECT_FALSE(parse({}).isHeadless);
    EXPECT_TRUE(parse({"--headless"}).isHeadless);
    EXPECT_TRUE(parse({"--verbose"}).isVerbose);
}

TEST(Invocation, RefusesWhatMakesNoSense) {
    const std::vector<std::vector<const char*>> wrong = {{"restore"},
                                                         {"restore-all", "--overwrite"},
                                                         {"store-all", "xterm"},
                                                         {"status", "--yaml"},
                                                         {"restore-app", "a", "b"},
                                                         {"--jsn"},
                                                         {"restore-all", "store-all"}};
    for (const auto& arguments : wrong) {
        const LMInvocation invocation = parse(arguments);
        EXPECT_EQ(invocation.kind, Kind::Exit) << arguments.front();
        EXPECT_EQ(invocation.exitCode, LMExitCode::Usage) << arguments.front();
    }
    for (const char* harmless : {"--help", "--version"}) {
        EXPECT_EQ(parse({harmless}).kind, Kind::Exit);
        EXPECT_EQ(parse({harmless}).exitCode, LMExitCode::Done);
    }
}

} // namespace
