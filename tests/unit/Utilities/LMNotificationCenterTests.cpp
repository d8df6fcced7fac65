// SPDX-License-Identifier: MIT
#include "Utilities/LMNotificationCenter.h"

#include "Support.h"

namespace {

TEST(LMNotificationCenter, DeliversByNameWhileTheContextLives) {
    LMNotificationCenter center;
    QObject controller;
    QStringList calls;
    auto window = std::make_unique<QObject>();
    center.addObserver(LMNotification::SaveWindows, &controller, [&] { calls << u"save"_qs; });
    center.addObserver(LMNotification::SaveWindows, window.get(), [&] {
        calls << u"window"_qs;
        window.reset(); // An observer may end its own life.
    });

    center.postNotification(LMNotification::SaveWindows);
    EXPECT_EQ(calls, QStringList({u"save"_qs, u"window"_qs}));
    center.postNotification(LMNotification::SaveWindows);
    center.postNotification(LMNotification::SupressedAlertsChanged);
    EXPECT_EQ(calls.mid(2), QStringList(u"save"_qs));
}

} // namespace
