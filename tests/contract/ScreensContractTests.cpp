// SPDX-License-Identifier: MIT
#include "contract/LMContractTest.h"

#include <QSet>

LM_CONTRACT_SUITE(ScreensContract);

TEST_P(ScreensContract, BothCoordinateFormsDescribeTheSameMonitors) {
    const QList<LMScreen> screens = desktop().screens().screens();
    const QList<QRectF> monitors = backend->monitors();
    ASSERT_EQ(screens.size(), monitors.size());
    const QRectF main = screens.first().displayBounds;
    EXPECT_EQ(main.topLeft(), QPointF(0, 0));
    QSet<quint32> identifiers{0};
    for (const LMScreen& screen : screens) {
        const QRectF& bounds = screen.displayBounds;
        EXPECT_TRUE(monitors.contains(bounds));
        EXPECT_EQ(screen.frame,
                  QRectF(QPointF(bounds.x(), main.height() - bounds.bottom()), bounds.size()));
        EXPECT_FALSE(screen.visibleFrame.isEmpty());
        EXPECT_TRUE(bounds.contains(screen.visibleFrame));
        identifiers.insert(screen.displayID);
    }
    EXPECT_EQ(identifiers.size(), screens.size() + 1);
    EXPECT_EQ(desktop().screens().screens(), screens);
    EXPECT_EQ(desktop().screens().spacesByMonitor().size(), screens.size());
}
