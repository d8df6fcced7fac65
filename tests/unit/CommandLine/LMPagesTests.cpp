// SPDX-License-Identifier: MIT
#include "CommandLine/LMCommandLineDescription.h"
#include "CommandLine/LMManualPage.h"
#include "CommandLine/LMShellCompletion.h"

#include <QHash>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace {

TEST(Pages, EveryCommandIsDescribedWithWhatItTakes) {
    const LMCommandLineDescription described = LMDescribeCommandLine();
    QHash<QString, LMCommandDescription> commands;
    for (const LMCommandDescription& command : described.commands)
        commands.insert(command.name, command);
    EXPECT_EQ(commands.size(), 16);
    EXPECT_EQ(commands[u"plan"_s].argument, u"ID"_s);
    EXPECT_EQ(commands[u"plan"_s].options.last().names, QStringList{u"--json"_s});
    EXPECT_EQ(commands[u"store-all"_s].options.first().names, (QStringList{u"-h"_s, u"--help"_s}));
    EXPECT_EQ(described.exitCodes.size(), 4);
}

TEST(Pages, TextsOfAnyKindStayTexts) {
    LMCommandLineDescription odd;
    odd.commands.append(
        {u"do-it"_s, u".so it's a \\ $(trap)"_s, {{{u"--all"_s}, u"'all'"_s}}, {}, {}});
    const QString manual = LMManualPage(u"%COMMANDS%\n"_s, odd);
    EXPECT_TRUE(manual.contains(u"\n\\&.so it's a \\e $(trap).\n"_s)) << manual.toStdString();
    EXPECT_TRUE(manual.contains(u"\\fBdo\\-it\\fR [\\fB\\-\\-all\\fR]\n"_s));
    const QString inQuotes = uR"('.so it'\''s a \ $(trap)')"_s;
    EXPECT_TRUE(LMShellCompletion::fish(odd).contains(inQuotes));
    EXPECT_TRUE(LMShellCompletion::zsh(odd).contains(uR"('do-it:.so it'\''s a \ $(trap)')"_s));
}

} // namespace
