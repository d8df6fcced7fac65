// SPDX-License-Identifier: MIT
#include "Categories/LMScreenAdditions.h"

#include "unit/DesktopTest.h"

TEST_F(DesktopTest, AScreenContainsOnlyWholeFrames) {
    desktop.setScreens({QRectF(0, 0, 1440, 900), QRectF(1440, -300, 1920, 1080)});
    const QList<LMScreen> screens = desktop.screens().screens();
    const std::pair<QRectF, int> cases[] = {
        {{0, 0, 1440, 900}, 1},   {{1440, -300, 1920, 1080}, 2}, {{1400, 0, 100, 100}, 0},
        {{1500, 700, 1, 100}, 0}, {{0, 0, 1440, 900.5}, 0},      {{-0.5, 0, 10, 10}, 0},
    };
    for (const auto& [frame, expected] : cases) {
        const auto screen = LMScreenAdditions::screenContainingFrame(screens, frame);
        EXPECT_EQ(screen ? int(screen->displayID) : 0, expected);
    }
}
