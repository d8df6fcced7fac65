// SPDX-License-Identifier: MIT
#include "Utilities/LMRectangle.h"

#include "Support.h"

#include <limits>

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();

TEST(LMRectangle, PrintsShortestNumbers) {
    const std::pair<QRectF, const char*> cases[] = {
        {{0.1, 1.0 / 3, 1e-7 / 3, 1e9 / 7},
         "{{0.1, 0.3333333333333333}, {3.3333333333333334e-08, 142857142.85714287}}"},
        {{100000, 1000000, 1e16, 1e17}, "{{100000, 1000000}, {10000000000000000, 1e+17}}"},
        {{0.0001, 0.00001, -0.0, 1.5e300}, "{{0.0001, 1e-05}, {0, 1.5e+300}}"},
        {{infinity, -infinity, std::nan(""), 1}, "{{0, 0}, {0, 1}}"},
    };
    for (const auto& [rect, text] : cases) {
        EXPECT_EQ(LMStringFromRect(rect), QLatin1String(text));
        EXPECT_EQ(LMStringFromRect(LMRectFromString(QLatin1String(text))), QLatin1String(text));
    }
}

TEST(LMRectangle, ReadsLeniently) {
    const std::pair<QString, QRectF> cases[] = {
        {u"10 20 300 400 500"_qs, {10, 20, 300, 400}},
        {u"x=-1.5e2;y=+.5;w=7.;h=--8"_qs, {-150, 0.5, 7, -8}},
        {u"{{nan, inf}, {5, 1e999}}"_qs, {5, 0, 0, 0}},
        {u"{{1-2}, {3e}"_qs, {1, -2, 3, 0}},
        {u"no numbers - at . all"_qs, {}},
        {QString(1000000, u'9'), {}},
    };
    for (const auto& [text, rect] : cases)
        EXPECT_TRUE(LMRectsEqual(LMRectFromString(text), rect)) << text.left(80).toStdString();
}

} // namespace
