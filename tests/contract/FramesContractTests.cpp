// SPDX-License-Identifier: MIT
#include "contract/LMContractTest.h"

#include <QElapsedTimer>

using Kind = LMContractWindow::Kind;

LM_CONTRACT_SUITE(FramesContract);

// The next read sees a change, and so does everybody else; what is there already costs no waiting.
TEST_P(FramesContract, AChangeIsVisibleAtOnce) {
    const LMElement window = open();
    QRectF wanted(0, 0, 300, 200);
    for (const QRectF& monitor : backend->monitors()) {
        wanted = QRectF(monitor.topLeft() + QPointF(321, 210), wanted.size() + QSizeF(51, 42));
        ASSERT_TRUE(setFrame(window, wanted));
        EXPECT_TRUE(isAt(window, wanted));
    }
    QElapsedTimer timer;
    timer.start();
    for (int round = 0; round < 20; ++round)
        EXPECT_TRUE(setFrame(window, wanted));
    EXPECT_LT(timer.elapsed(), 1000); // A tenth of what waiting for the deadline would take.
    EXPECT_TRUE(isAt(window, wanted));
}

// Gravity decides which point of a window a request means, and each kind of decoration adds its own
// offset: storing and restoring must cancel out whatever they are.
TEST_P(FramesContract, FramesSurviveRoundTripsWithEveryGravityAndDecoration) {
    constexpr int northWest = 1, center = 5, southEast = 9, fixed = 10;
    const QRectF stored(250, 180, 520, 410);
    for (const Kind kind : {Kind::Standard, Kind::Dialog, Kind::ClientDecorated}) {
        for (const int gravity : {northWest, center, southEast, fixed}) {
            SCOPED_TRACE(testing::Message() << "kind " << int(kind) << ", gravity " << gravity);
            const LMElement window = open({.kind = kind, .gravity = gravity});
            for (int round = 0; round < 3; ++round) {
                ASSERT_TRUE(setFrame(window, stored));
                ASSERT_TRUE(isAt(window, stored));
                ASSERT_TRUE(set(window, LMAttribute::Size, QSizeF(350, 260)));
                ASSERT_TRUE(set(window, LMAttribute::Position, QPointF(700, 90)));
                ASSERT_EQ(frame(window), QRectF(700, 90, 350, 260));
            }
            backend->closeWindow(window);
        }
    }
}
