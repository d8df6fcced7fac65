// SPDX-License-Identifier: MIT
#include "Utilities/LMStringAdditions.h"

#include "Support.h"

#include "Utilities/LMFormat.h"

namespace {

TEST(LMStringAdditions, EditDistance) {
    const std::tuple<QString, QString, std::size_t> cases[] = {
        {u"badcfe"_qs, u"abcdef"_qs, 3}, {u"ab"_qs, u"bxa"_qs, 3},  {u"ca"_qs, u"abc"_qs, 3},
        {u"abc"_qs, u"acb"_qs, 1},       {QString(), u"abc"_qs, 0}, {u"abc"_qs, QString(), 3},
        {u"\U0001F426"_qs, u"x"_qs, 2},  {u""_qs, u"abc"_qs, 3},
    };
    for (const auto& [s, t, distance] : cases)
        EXPECT_EQ(editDistanceToString(s, t), distance) << s.toStdString();
}

TEST(LMStringAdditions, VersionOrder) {
    // Each version stands before the next one.
    const char* const ascending[] = {"1.0",   "1.10",  "1.9",   "10",  "2.0a1", "2.0a10",
                                     "2.0a2", "2.0b1", "2.0b3", "2.0", "2.0.1"};
    constexpr int count = std::size(ascending);
    for (int i = 0; i < count; ++i) {
        for (int j = 0; j < count; ++j) {
            const auto expected = static_cast<LMOrdering>((i > j) - (i < j));
            const QLatin1String a(ascending[i]), b(ascending[j]);
            EXPECT_EQ(versionNumberCompare(a, b), expected) << a.data() << " to " << b.data();
        }
    }
    // More than two pieces at the letter make the whole text the base.
    EXPECT_EQ(versionNumberCompare(u"1a2a3"_qs, u"1"_qs), LMOrdering::Descending);
    EXPECT_EQ(versionNumberCompare(QString(), u""_qs), LMOrdering::Same);
}

TEST(LMFormat, FillsPlaceholders) {
    const std::tuple<const char*, QStringList, const char*> cases[] = {
        {"%lu Display%@", {u"2"_qs, u"s"_qs}, "2 Displays"},
        {"%@ MATCHED %@", {u"%@ %%"_qs, u"b"_qs}, "%@ %% MATCHED b"},
        {"%2$@ of %1$lu", {u"a"_qs, u"b"_qs}, "b of a"},
        {"%3$@ %0$@ %1$ %s 100%", {u"a"_qs}, "%3$@ %0$@ %1$ %s 100%"},
        {"100%% %%@", {u"x"_qs}, "100% %@"},
    };
    for (const auto& [format, arguments, result] : cases)
        EXPECT_EQ(LMFormat(QLatin1String(format), arguments), QLatin1String(result));
}

} // namespace
