// SPDX-License-Identifier: MIT
#include "contract/LMContractTest.h"

#include <QImage>

#include <algorithm>

LM_CONTRACT_SUITE(DesktopContract);

TEST_P(DesktopContract, DescribesTheWindowsOnScreenFrontToBack) {
    const LMElement back = open({.title = u"back"_qs});
    const LMElement front = open({.application = u"second"_qs});
    LMWindowServer& server = desktop().windowServer();
    backend->raise(front);
    const auto described = [&](const LMElement& window) {
        const qint64 owner = process(window == front ? u"second"_qs : u"first"_qs);
        const auto all = server.onScreenWindowDescriptions();
        const auto found = std::ranges::find_if(all, [&](const LMWindowDescription& each) {
            return each.bounds == backend->visibleFrame(window) &&
                   each.ownerProcessIdentifier == owner;
        });
        return found != all.end() ? *found : LMWindowDescription();
    };
    const auto isInFront = [&](const LMElement& window) {
        const auto all = server.onScreenWindowDescriptions();
        return !all.isEmpty() && all.first().number == described(window).number;
    };
    EXPECT_TRUE(LMWaitUntil([&] { return isInFront(front); }));
    const quint32 number = described(back).number;
    ASSERT_NE(number, 0U);
    EXPECT_EQ(described(back).layer, 0);

    backend->setState(back, {.isKeptAbove = true, .desktop = 0});
    ASSERT_TRUE(LMWaitUntil([&] { return isInFront(back); }));
    EXPECT_GT(described(back).layer, 0);
    EXPECT_EQ(QSizeF(server.imageOfWindow(number).size()), described(back).bounds.size());

    backend->minimize(back);
    EXPECT_TRUE(LMWaitUntil([&] { return described(back).number == 0 && isInFront(front); }));
    backend->closeWindow(back);
    EXPECT_TRUE(LMWaitUntil([&] { return server.imageOfWindow(number).isNull(); }));
    EXPECT_TRUE(server.imageOfWindow(0).isNull());
}
