// SPDX-License-Identifier: MIT
#include "CommandLine/LMInvocation.h"

#include <gtest/gtest.h>

#include <vector>

using namespace Qt::Literals::StringLiterals;

namespace {

using Kind = LMInvocation::Kind;
using Arguments = std::vector<const char*>;

LMInvocation parse(Arguments arguments) {
    arguments.insert(arguments.begin(), "rook");
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    LMInvocation invocation = LMParseCommandLine(int(arguments.size()), arguments.data());
    testing::internal::GetCapturedStdout();
    testing::internal::GetCapturedStderr();
    return invocation;
}

TEST(Invocation, NamesTheMethodAndItsArguments) {
    const std::tuple<Arguments, Kind, const char*, QVariantList> rows[] = {
        {{"restore-all"}, Kind::Command, "RestoreAll", {}},
        {{"restore-app"}, Kind::Command, "RestoreActiveApplication", {}},
        {{"restore-app", "xterm"}, Kind::Command, "RestoreApplication", {u"xterm"_s}},
        {{"restore-app", "--", "-odd"}, Kind::Command, "RestoreApplication", {u"-odd"_s}},
        {{"restore-app", ""}, Kind::Command, "RestoreApplication", {QString()}},
        {{"store-all"}, Kind::Command, "StoreAll", {false}},
        {{"store-all", "--overwrite"}, Kind::Command, "StoreAll", {true}},
        {{"store-all", "--ask"}, Kind::Command, "AskToStoreAll", {}},
        {{"store-app", "--overwrite"}, Kind::Command, "StoreActiveApplication", {true}},
        {{"store-window"}, Kind::Command, "StoreActiveWindow", {false}},
        {{"status"}, Kind::Report, "Status", {}},
        {{"plan"}, Kind::Report, "Plan", {QString()}},
        {{"plan", "--json", "gedit"}, Kind::Report, "Plan", {u"gedit"_s}},
        {{"quit"}, Kind::Quit, "Quit", {}},
    };
    for (const auto& [arguments, kind, method, values] : rows) {
        const LMInvocation invocation = parse(arguments);
        EXPECT_EQ(invocation.kind, kind) << method;
        EXPECT_EQ(invocation.method, QLatin1String(method));
        EXPECT_EQ(invocation.arguments, values) << method;
        EXPECT_EQ(invocation.wantsJson, arguments.size() == 3 && QLatin1String(method) == "Plan"_L1)
            << method;
    }
}

TEST(Invocation, StartsTheResidentProcessWithoutCommand) {
    EXPECT_EQ(parse({}).kind, Kind::Resident);
    EXPECT_FALSE(parse({}).isHeadless);
    EXPECT_TRUE(parse({"--headless"}).isHeadless);
    EXPECT_TRUE(parse({"--verbose"}).isVerbose);
}

TEST(Invocation, RefusesWhatMakesNoSense) {
    const std::pair<Arguments, int> rows[] = {
        {{"restore"}, LMExitCode::Usage},
        {{"restore-all", "--overwrite"}, LMExitCode::Usage},
        {{"store-all", "xterm"}, LMExitCode::Usage},
        {{"store-all", "--ask", "--overwrite"}, LMExitCode::Usage},
        {{"status", "--yaml"}, LMExitCode::Usage},
        {{"restore-app", "a", "b"}, LMExitCode::Usage},
        {{"--jsn"}, LMExitCode::Usage},
        {{"restore-all", "store-all"}, LMExitCode::Usage},
        {{"--help"}, LMExitCode::Done},
        {{"--version"}, LMExitCode::Done},
    };
    for (const auto& [arguments, exitCode] : rows) {
        EXPECT_EQ(parse(arguments).kind, Kind::Exit) << arguments.front();
        EXPECT_EQ(parse(arguments).exitCode, exitCode) << arguments.front();
    }
}

} // namespace
