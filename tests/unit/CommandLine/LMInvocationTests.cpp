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

TEST(Invocation, NamesTheMethodAndItsArguments) {
    const std::tuple<Arguments, Kind, const char*, QVariantList> rows[] = {
        {{"restore-app"}, Kind::Command, "RestoreActiveApplication", {}},
        {{"restore-app", "--", "-odd"}, Kind::Command, "RestoreApplication", {u"-odd"_s}},
        {{"restore-app", ""}, Kind::Command, "RestoreApplication", {QString()}},
        {{"store-all"}, Kind::Command, "StoreAll", {false}},
        {{"store-all", "--ask"}, Kind::Command, "AskToStoreAll", {}},
        {{"store-app", "--overwrite"}, Kind::Command, "StoreActiveApplication", {true}},
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
        {{"restore-all", "--overwrite"}, LMExitCode::Usage, "not expected: --overwrite\n"},
        {{"store-all", "xterm"}, LMExitCode::Usage, "not expected: xterm\n"},
        {{"store-all", "--ask", "--overwrite"},
         LMExitCode::Usage,
         "not both: --overwrite, --ask\n"},
        {{"restore-app", "a", "b"}, LMExitCode::Usage, "not expected: b\n"},
        {{"--jsn"}, LMExitCode::Usage, "not expected: --jsn\n"},
        {{"--help"}, LMExitCode::Done, "restore-all "},
        {{"plan", "--help"}, LMExitCode::Done, "--json "},
        {{"--version"}, LMExitCode::Done, "rook "},
    };
    for (auto [arguments, exitCode, text] : rows) {
        EXPECT_EQ(parse(arguments).kind, Kind::Explain) << text;
        arguments.insert(arguments.begin(), "rook");
        testing::internal::CaptureStdout();
        testing::internal::CaptureStderr();
        EXPECT_EQ(LMExplainCommandLine(int(arguments.size()), arguments.data()), exitCode) << text;
        std::string output = testing::internal::GetCapturedStdout();
        std::string errors = testing::internal::GetCapturedStderr();
        if (exitCode != LMExitCode::Done)
            std::swap(output, errors);
        EXPECT_THAT(output, testing::HasSubstr(text));
        EXPECT_EQ(errors, "") << text;
    }
}

} // namespace
