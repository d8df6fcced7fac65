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

TEST_P(ScreensContract, AnArrangementTakesEffectOnlyWhenItIsCompleted) {
    LMScreens& service = desktop().screens();
    const QList<LMScreen> before = service.screens();
    if (!service.canArrangeDisplays() || before.size() < 2)
        GTEST_SKIP() << "displays cannot be arranged";
    int changes = 0;
    QObject::connect(&service, &LMScreens::screenParametersChanged, &desktop(), [&] { ++changes; });
    const QPointF origin = before.last().displayBounds.topLeft();
    const QPointF moved = before.first().displayBounds.topRight() + QPointF(0, 40);
    int expected = 0;
    for (const auto& [wanted, completes] :
         {std::pair(moved, false), {moved, true}, {origin, true}}) {
        const auto configuration = service.beginDisplayConfiguration();
        ASSERT_NE(configuration, nullptr);
        EXPECT_FALSE(configuration->configureDisplayOrigin(0x7ffffff0, 0, 0));
        EXPECT_TRUE(configuration->configureDisplayOrigin(before.last().displayID, int(wanted.x()),
                                                          int(wanted.y())));
        EXPECT_TRUE(!completes || configuration->completePermanently());
        const QRectF now = service.screens().last().displayBounds;
        EXPECT_EQ(now.topLeft(), completes ? wanted : origin);
        EXPECT_TRUE(backend->monitors().contains(now));
        expected += completes ? 1 : 0;
        EXPECT_TRUE(LMWaitUntil([&] { return changes >= expected; })); // mutter adds its own.
    }
    EXPECT_TRUE(LMWaitUntil([&] { return service.screens() == before; })); // And work areas.
}
