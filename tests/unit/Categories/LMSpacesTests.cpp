// SPDX-License-Identifier: MIT
#include "Categories/LMSpaces.h"

#include "unit/DesktopTest.h"

TEST_F(DesktopTest, SpacesAreInUseWhenAMonitorHasSeveral) {
    const QStringList one{u"1"_s}, other{u"2"_s}, two{u"1"_s, u"2"_s};
    const QStringList oneAndDashboard{u"1"_s, u"dashboard"_s};
    const auto areInUse = [&](const QList<QStringList>& spaces) {
        desktop.world().spaces = spaces;
        return LMSpacesInUse(environment);
    };
    for (const auto& spaces : QList<QList<QStringList>>{{}, {{}}, {one, other}, {oneAndDashboard}})
        EXPECT_FALSE(areInUse(spaces));
    EXPECT_TRUE(areInUse({one, two}));
    EXPECT_TRUE(areInUse({two + oneAndDashboard}));
    defaults.setObject(Keys::EnableSpacesSupport, true);
    EXPECT_TRUE(areInUse({}));
    defaults.setObject(Keys::DisableSpacesSupport, true);
    EXPECT_FALSE(areInUse({two})) << "disabling wins";
}
