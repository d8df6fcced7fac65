// SPDX-License-Identifier: MIT
#include "Categories/LMSpaces.h"

#include "unit/DesktopTest.h"

TEST_F(DesktopTest, SpacesAreInUseWhenAMonitorHasSeveral) {
    const QString one = u"1"_s, two = u"2"_s, dashboard = u"dashboard"_s;
    const std::pair<QList<QStringList>, bool> cases[] = {
        {{}, false},
        {{{}}, false},
        {{{one}, {two}}, false},
        {{{one, dashboard}}, false},
        {{{dashboard, one, two}}, true},
        {{{one}, {one, two}}, true},
    };
    for (const auto& [spaces, areInUse] : cases) {
        desktop.world().spaces = spaces;
        EXPECT_EQ(LMSpacesInUse(environment), areInUse);
    }
    defaults.setObject(Keys::DisableSpacesSupport, true);
    EXPECT_FALSE(LMSpacesInUse(environment));
    defaults.setObject(Keys::EnableSpacesSupport, true);
    EXPECT_FALSE(LMSpacesInUse(environment)) << "disabling wins";
    defaults.setObject(Keys::DisableSpacesSupport, false);
    desktop.world().spaces = {};
    EXPECT_TRUE(LMSpacesInUse(environment));
}
