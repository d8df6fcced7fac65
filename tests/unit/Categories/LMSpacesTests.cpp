// SPDX-License-Identifier: MIT
#include "Categories/LMSpaces.h"

#include "unit/Categories/CategoriesTest.h"

using Spaces = CategoriesTest;

TEST_F(Spaces, AreInUseWhenAMonitorHasSeveral) {
    const QString one = u"1"_qs, two = u"2"_qs, dashboard = u"dashboard"_qs;
    // clang-format off
    const std::pair<QList<QStringList>, bool> cases[] = {{{}, false}, {{{}}, false}, {{{one}, {two}}, false}, {{{one, dashboard}}, false}, {{{dashboard, one, two}}, true}, {{{one}, {one, two}}, true}};
    // clang-format on
    for (const auto& [spaces, areInUse] : cases) {
        desktop.world().spaces = spaces;
        EXPECT_EQ(LMSpacesInUse(environment), areInUse);
    }
    desktop.world().spaces = {};
    userDefaults.setObject(u"EnableSpacesSupport"_qs, true);
    EXPECT_TRUE(LMSpacesInUse(environment));
    userDefaults.setObject(u"DisableSpacesSupport"_qs, true);
    desktop.world().spaces = {{u"1"_qs, u"2"_qs}};
    EXPECT_FALSE(LMSpacesInUse(environment));
}
