// SPDX-License-Identifier: MIT
#include "CommandLine/LMInvocation.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <vector>

using namespace Qt::Literals::StringLiterals;

namespace {

using Kind = LMInvocation::Kind;
using Arguments = std::vector<const char*>;

LMInvocation parse(Arguments arguments) {
    arguments.insert(arguments.begin(), "rook");
    return LMParseCommandLine(int(arguments.size()), arguments.data());
}

struct Explanation {
    int exitCode;
    std::string output;
    std::string errors;
};

Explanation explain(Arguments arguments) {
    arguments.insert(arguments.begin(), "rook");
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    const int exitCode = LMExplainCommandLine(int(arguments.size()), arguments.data());
    return {exitCode, testing::internal::GetCapturedStdout(),
            testing::internal::GetCapturedStderr()};
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

TEST(Invocation, ExplainsWhatMakesNoSense) {
    const std::tuple<Arguments, int, const char*> rows[] = {
        {{"restore"}, LMExitCode::Usage, "rook: not expected: restore\n"},
        {{"restore-all", "--overwrite"}, LMExitCode::Usage, "not expected: --overwrite\n"},
        {{"store-all", "xterm"}, LMExitCode::Usage, "not expected: xterm\n"},
        {{"store-all", "--ask", "--overwrite"},
         LMExitCode::Usage,
         "not both: --overwrite, --ask\n"},
        {{"status", "--yaml"}, LMExitCode::Usage, "not expected: --yaml\n"},
        {{"restore-app", "a", "b"}, LMExitCode::Usage, "not expected: b\n"},
        {{"--jsn"}, LMExitCode::Usage, "not expected: --jsn\n"},
        {{"restore-all", "store-all"}, LMExitCode::Usage, "not expected: store-all\n"},
        {{"--help"}, LMExitCode::Done, "restore-all "},
        {{"plan", "--help"}, LMExitCode::Done, "--json "},
        {{"--version"}, LMExitCode::Done, "rook "},
    };
    for (const auto& [arguments, exitCode, text] : rows) {
        EXPECT_EQ(parse(arguments).kind, Kind::Explain) << text;
        const Explanation explanation = explain(arguments);
        EXPECT_EQ(explanation.exitCode, exitCode) << text;
        const bool isHelp = exitCode == LMExitCode::Done;
        EXPECT_THAT(isHelp ? explanation.output : explanation.errors, testing::HasSubstr(text));
        EXPECT_EQ(isHelp ? explanation.errors : explanation.output, "") << text;
    }
}

} // namespace
