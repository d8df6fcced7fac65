// SPDX-License-Identifier: MIT
#include "unit/Utilities/Support.h"
#include "UserInterface/LMPresentableText.h"

#include <gtest/gtest.h>

TEST(PresentableText, TakesOutWhatBreaksALayout) {
    const std::tuple<const char*, QString, QString> rows[] = {
        {"plain", u"Draft <b>1</b> & more"_qs, u"Draft <b>1</b> & more"_qs},
        {"direction overrides", u"a\u202Eb\u2067c\u2069d"_qs, u"abcd"_qs},
        {"marks of one place stay", u"a\u200Fb"_qs, u"a\u200Fb"_qs},
        {"controls", u"a\tb\u0007c\r"_qs, u"a b c "_qs},
        {"no-break spaces stay", u"«\u00A0a\u202F?\u00A0»"_qs, u"«\u00A0a\u202F?\u00A0»"_qs},
        {"two lines at most", u"a\nb\nc\u2029d"_qs, u"a\nb c d"_qs},
        {"long words may break", QString(45, u'x'),
         QString(20, u'x') + QChar(0x200B) + QString(20, u'x') + QChar(0x200B) + QString(5, u'x')},
        {"cut in the middle", u"begin "_qs + u"word "_qs.repeated(100) + u"end"_qs,
         u"begin "_qs + u"word "_qs.repeated(5) + u"… d "_qs + u"word "_qs.repeated(5) + u"end"_qs},
    };
    for (const auto& [why, text, expected] : rows)
        EXPECT_EQ(LMPresentableText(text, 60, 2), expected) << why;
    // A pair of surrogates is never torn, wherever the cut falls.
    for (const qsizetype most : {40, 41, 42, 43}) {
        const QString result = LMPresentableText(u"\U0001F600"_qs.repeated(50), most, 2);
        EXPECT_TRUE(result.isValidUtf16()) << most;
        EXPECT_LE(result.size(), most + 8);
    }
    EXPECT_EQ(LMPresentableLine(u" a\n\nb "_qs + QString(30, u'x')),
              u"a b "_qs + QString(30, u'x'));
}

TEST(PresentableText, NamesControlsWithoutTheirMnemonics) {
    const std::pair<QString, QString> rows[] = {
        {u"Display &Menu"_qs, u"Display Menu"_qs},
        {u"名前を変更(&R)"_qs, u"名前を変更"_qs},
        {u"حذف (&D)…"_qs, u"حذف…"_qs},
        {u"Open (&with)"_qs, u"Open (with)"_qs},
        {u"(&"_qs, u"("_qs},
    };
    for (const auto& [text, expected] : rows)
        EXPECT_EQ(LMWithoutMnemonic(text), expected);
}
