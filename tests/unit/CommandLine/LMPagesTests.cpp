// SPDX-License-Identifier: MIT
#include "CommandLine/LMCommandLineDescription.h"
#include "CommandLine/LMManualPage.h"
#include "CommandLine/LMShellCompletion.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace {

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
