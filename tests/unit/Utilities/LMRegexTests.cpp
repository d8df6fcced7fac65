// SPDX-License-Identifier: MIT
#include "Utilities/LMStringAdditions.h"

#include "Support.h"

#include <ctime>

namespace {

TEST(LMRegex, MatchesAnywhereInTheText) {
    const std::tuple<QString, QString, bool> cases[] = {
        {u"Doc 12 - Editor"_qs, u"\\d+"_qs, true},
        {u"a\nb"_qs, u"a.b"_qs, false},
        {u"Grüße"_qs, u"^\\p{L}+$"_qs, true},
        {u"\U0001F426 bird"_qs, u"^. bird$"_qs, true},
        {QString(QChar(0xd800)) + u'x', u"x$"_qs, true},
        {u""_qs, u"^$"_qs, true},
        {QString(), u".*"_qs, false},
        {u"text"_qs, u""_qs, false},
    };
    LMRegexCache cache;
    for (const auto& [text, pattern, isMatch] : cases) {
        EXPECT_EQ(isMatchedByRegexString(text, pattern), isMatch) << text.toStdString();
        EXPECT_EQ(cache.isMatched(text, pattern), isMatch) << text.toStdString();
    }
    for (int i = 0; i < 5000; ++i) // More than the cache keeps.
        ASSERT_TRUE(cache.isMatched(u'x' + QString::number(i), QString::number(i) + u'$'));
}

TEST(LMRegex, RefusesInvalidPatterns) {
    for (const QString& pattern : {u""_qs, u"a{2,1}"_qs, u"\\p{NoSuch}"_qs, u"(?<n>a)\\k<m>"_qs,
                                   QString(100000, u'('), QString(100000, u'[')})
        EXPECT_FALSE(isRegexValid(pattern)) << pattern.left(80).toStdString();
}

// The texts that make each pattern backtrack without end, or search in quadratic time.
TEST(LMRegex, BoundsCatastrophicPatterns) {
    const QString longTitle = QString(100000, u'a') + u'!';
    for (const QString& pattern :
         {QString(5000, u'a') + u'b', u"(a+)+$"_qs, u"(a|aa)+$"_qs, u"(.*)*x"_qs, u"(?>[^x]*)y"_qs,
          u"^(?:(?=[^x]*+y)b|a)*$"_qs, u".*.*.*x"_qs}) {
        const LMRegex regex(pattern);
        ASSERT_TRUE(regex.isValid());
        const std::clock_t start = std::clock();
        EXPECT_FALSE(regex.isMatched(longTitle));
        EXPECT_LT(std::clock() - start, CLOCKS_PER_SEC * 3 / 10);
        EXPECT_TRUE(regex.ranOut()) << pattern.left(40).toStdString();
    }
}

} // namespace
