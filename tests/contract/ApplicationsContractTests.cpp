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
    EXPECT_EQ(identifiers.removeDuplicates(), 0);
    EXPECT_GT(identifiers.indexOf(backend->identifier(first)),
              identifiers.indexOf(backend->identifier(second)));
    EXPECT_TRUE(identifiers.contains(backend->identifier(second)));
    EXPECT_NE(process(first), process(second));
    EXPECT_EQ(running(first).activationPolicy, LMActivationPolicy::Regular);
    EXPECT_EQ(running(second).activationPolicy, LMActivationPolicy::Accessory);
}

TEST_P(ApplicationsContract, ManyProcessesAreOneApplicationOfTheOldest) {
    const LMElement older = open({.process = 0});
    const qint64 oldest = process();
    const LMElement newer = open({.process = 1});
    EXPECT_EQ(process(), oldest);
    EXPECT_EQ(windows().size(), 2);
    EXPECT_TRUE(windows().contains(older) && windows().contains(newer));
    backend->closeWindow(older);
    EXPECT_TRUE(LMWaitUntil([&] { return windows() == QList({newer}); }));
}

TEST_P(ApplicationsContract, ActivationGivesTheFocusToTheLatestWindow) {
    const LMElement older = open({.title = u"1"_qs});
    const LMElement latest = open({.title = u"2"_qs});
    backend->raise(latest);
    backend->raise(open({.application = second}));
    ASSERT_TRUE(LMWaitUntil([&] { return running(second).isActive; }));
    EXPECT_FALSE(running(first).isActive);
    const auto application = accessibility().createApplication(process(first));
    ASSERT_TRUE(application);
    EXPECT_EQ(read<LMElement>(*application, LMAttribute::FocusedWindow), latest);

    ASSERT_TRUE(desktop().applications().activate(process(first)));
    EXPECT_TRUE(LMWaitUntil([&] { return running(first).isActive; }));
    EXPECT_FALSE(running(second).isActive);
    EXPECT_EQ(read<LMElement>(*application, LMAttribute::FocusedWindow), latest);
    EXPECT_EQ(windows(), QList({latest, older}));
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
        ASSERT_TRUE(applications.hide(process()));
        ASSERT_TRUE(LMWaitUntil([&] { return running().isHidden; }));
        EXPECT_TRUE(backend->isMinimized(shown));
        EXPECT_FALSE(running(second).isHidden);
        ASSERT_TRUE(applications.hide(process())); // Hiding again must not forget.

        ASSERT_TRUE(applications.unhide(process()));
        ASSERT_TRUE(LMWaitUntil([&] { return !running().isHidden; }));
        EXPECT_TRUE(LMWaitUntil([&] { return !backend->isMinimized(shown); }));
        EXPECT_TRUE(backend->isMinimized(minimized));
        EXPECT_TRUE(LMWaitUntil([&] { return frame(shown) == before; }));
    }
}

TEST_P(ApplicationsContract, RequestsForAnApplicationThatIsGoneAreRefused) {
    LMApplications& applications = desktop().applications();
    constexpr qint64 noProcess = 0x7ffffff0;
    EXPECT_FALSE(applications.activate(noProcess));
    EXPECT_FALSE(applications.hide(noProcess));
    EXPECT_FALSE(applications.unhide(noProcess));
    EXPECT_TRUE(applications.iconForApplication(u"org.nobody.nothing"_qs, 16).isNull());
}

TEST_P(ApplicationsContract, OnlyTheFirstWindowIsALaunch) {
    QStringList launches;
    QObject::connect(&desktop().applications(), &LMApplications::applicationLaunched, &desktop(),
                     [&](const QString& identifier) { launches.append(identifier); });
    const QString identifier = backend->identifier(first);
    const LMElement window = open();
    ASSERT_TRUE(LMWaitUntil([&] { return launches.contains(identifier); }));
    const LMElement another = open({.title = u"another"_qs});
    backend->closeWindow(window);
    backend->closeWindow(another);
    ASSERT_TRUE(LMWaitUntil([&] { return process() == 0; }));
    open({.application = second});
    ASSERT_TRUE(LMWaitUntil([&] { return launches.contains(backend->identifier(second)); }));
    EXPECT_EQ(launches.count(identifier), 1);
    open();
    EXPECT_TRUE(LMWaitUntil([&] { return launches.count(identifier) == 2; }));
}
