// SPDX-License-Identifier: MIT
#include "contract/LMContractTest.h"

#include <QStringList>

using Kind = LMContractWindow::Kind;

namespace {

const QString first = u"first"_qs;
const QString second = u"second"_qs;

} // namespace

LM_CONTRACT_SUITE(ApplicationsContract);

TEST_P(ApplicationsContract, RunningApplicationsAreListedInTheOrderOfTheirLaunch) {
    open({.application = second, .kind = Kind::Utility});
    open({.title = u"1"_qs});
    open({.title = u"2"_qs});
    QStringList identifiers;
    for (const auto& application : desktop().applications().runningApplications()) {
        identifiers.append(application.bundleIdentifier);
        EXPECT_FALSE(application.localizedName.isEmpty());
        EXPECT_GT(application.processIdentifier, 0);
    }
    EXPECT_EQ(identifiers, QStringList({second, first}));
    EXPECT_NE(process(first), process(second));
    EXPECT_EQ(running(first).activationPolicy, LMActivationPolicy::Regular);
    EXPECT_EQ(running(second).activationPolicy, LMActivationPolicy::Accessory);
}

TEST_P(ApplicationsContract, ActivationGivesTheFocusToTheLatestWindow) {
    const LMElement older = open({.title = u"1"_qs});
    const LMElement latest = open({.title = u"2"_qs});
    const LMElement application = *accessibility().createApplication(process(first));
    backend->raise(latest);
    ASSERT_TRUE(LMWaitUntil([&] {
        return running(first).isActive &&
               read<LMElement>(application, LMAttribute::FocusedWindow) == latest;
    })) << "a busy manager may give the focus on at once, and nobody would have had it";
    backend->raise(open({.application = second}));
    ASSERT_TRUE(LMWaitUntil([&] { return running(second).isActive; }));
    EXPECT_FALSE(running(first).isActive);
    EXPECT_EQ(read<LMElement>(application, LMAttribute::FocusedWindow), latest);

    EXPECT_TRUE(inTime(desktop().applications().activate(process(first))));
    EXPECT_TRUE(LMWaitUntil([&] { return running(first).isActive; }));
    EXPECT_FALSE(running(second).isActive);
    EXPECT_EQ(read<LMElement>(application, LMAttribute::FocusedWindow), latest);
    EXPECT_TRUE(LMWaitUntil([&] { return windows() == QList({latest, older}); }));
    EXPECT_TRUE(LMWaitUntil([&] {
        const auto onScreen = desktop().windowServer().onScreenWindowDescriptions();
        return !onScreen.isEmpty() && onScreen.first().ownerProcessIdentifier == process(first);
    }));
}

TEST_P(ApplicationsContract, HidingMinimizesAndShowingBringsBackOnlyWhatHidingTook) {
    const LMElement shown = open({.title = u"shown"_qs});
    const LMElement minimized = open({.title = u"minimized"_qs});
    open({.application = second});
    backend->minimize(minimized);
    EXPECT_FALSE(running().isHidden);
    const QRectF before = frame(shown);

    LMApplications& applications = desktop().applications();
    for (int round = 0; round < 2; ++round) {
        EXPECT_TRUE(inTime(applications.hide(process())));
        ASSERT_TRUE(LMWaitUntil([&] { return running().isHidden; }));
        EXPECT_TRUE(backend->isMinimized(shown));
        EXPECT_FALSE(running(second).isHidden);
        EXPECT_TRUE(inTime(applications.hide(process()))); // Hiding again must not forget.

        EXPECT_TRUE(inTime(applications.unhide(process())));
        ASSERT_TRUE(LMWaitUntil([&] { return !running().isHidden; }));
        EXPECT_TRUE(LMWaitUntil([&] { return !backend->isMinimized(shown); }));
        EXPECT_TRUE(backend->isMinimized(minimized));
        EXPECT_TRUE(LMWaitUntil([&] { return frame(shown) == before; }));
    }
}

TEST_P(ApplicationsContract, OnlyTheFirstWindowIsALaunchAndTheLastOneTheEnd) {
    const LMElement window = open();
    ASSERT_TRUE(LMWaitUntil([&] { return launches == QStringList({first}); }));
    const qint64 gone = process();
    const LMElement another = open({.title = u"another"_qs});
    backend->closeWindow(window);
    backend->closeWindow(another);
    ASSERT_TRUE(LMWaitUntil([&] { return process() == 0; }));
    LMApplications& applications = desktop().applications();
    EXPECT_FALSE(applications.activate(gone) || applications.hide(gone) ||
                 applications.unhide(gone));
    EXPECT_TRUE(applications.iconForApplication(u"org.nobody.nothing"_qs, 16).isNull());
    open({.application = second});
    EXPECT_TRUE(LMWaitUntil([&] { return launches == QStringList({first, second}); }));
    open();
    EXPECT_TRUE(LMWaitUntil([&] { return launches == QStringList({first, second, first}); }));
}
