// SPDX-License-Identifier: MIT
#include "contract/LMContractTest.h"

#include <QImage>

#include <algorithm>

LM_CONTRACT_SUITE(DesktopContract);

TEST_P(DesktopContract, SaysWhatItIsAndCanDo) {
    EXPECT_FALSE(desktop().backendName().isEmpty());
    EXPECT_FALSE(desktop().windowManagerName().isEmpty());
    const LMPermission permission = desktop().checkPermission();
    EXPECT_TRUE(permission.isTrusted) << permission.missing.join(u'\n').toStdString();
    EXPECT_TRUE(permission.missing.isEmpty());
    const auto capabilities = desktop().capabilities();
    ASSERT_EQ(capabilities.size(), 2);
    EXPECT_EQ(capabilities[0].name, u"arrangeDisplays"_qs);
    EXPECT_EQ(capabilities[0].isSupported, desktop().screens().canArrangeDisplays());
    EXPECT_EQ(capabilities[1].name, u"hotKeys"_qs);
    EXPECT_EQ(capabilities[1].isSupported, desktop().hotKeys().isAvailable());
}

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

    backend->setState(back, LMContractState::Above);
    ASSERT_TRUE(LMWaitUntil([&] { return isInFront(back); }));
    EXPECT_GT(described(back).layer, 0);
    EXPECT_EQ(QSizeF(server.imageOfWindow(number).size()), described(back).bounds.size());

    backend->minimize(back);
    EXPECT_TRUE(LMWaitUntil([&] { return described(back).number == 0 && isInFront(front); }));
    backend->closeWindow(back);
    EXPECT_TRUE(LMWaitUntil([&] { return server.imageOfWindow(number).isNull(); }));
    EXPECT_TRUE(server.imageOfWindow(0).isNull());
}

TEST_P(DesktopContract, SurvivesTheLossOfItsConnection) {
    const LMElement window = open();
    const qint64 owner = process();
    QStringList losses;
    QObject::connect(&desktop(), &LMDesktop::connectionLost, &desktop(),
                     [&](const QString& reason) { losses.append(reason); });
    backend->breakConnection();
    ASSERT_TRUE(LMWaitUntil([&] { return !losses.isEmpty(); }));

    const LMReadingScope scope(accessibility(), {window});
    EXPECT_NE(readError(window, LMAttribute::Title), std::nullopt);
    EXPECT_FALSE(isSettable(window, LMAttribute::Size));
    EXPECT_NE(setError(window, LMAttribute::Position, QPointF(1, 1)), std::nullopt);
    EXPECT_TRUE(desktop().applications().runningApplications().isEmpty());
    EXPECT_FALSE(desktop().applications().activate(owner) || desktop().applications().hide(owner));
    EXPECT_TRUE(desktop().windowServer().onScreenWindowDescriptions().isEmpty());
    EXPECT_TRUE(desktop().windowServer().imageOfWindow(1).isNull());
    EXPECT_TRUE(desktop().screens().screens().isEmpty());
    EXPECT_EQ(desktop().screens().beginDisplayConfiguration(), nullptr);
    EXPECT_FALSE(desktop().checkPermission().isTrusted);
    EXPECT_TRUE(desktop().windowManagerName().isEmpty());
    ASSERT_EQ(losses.size(), 1);
    EXPECT_FALSE(losses[0].isEmpty());
}
