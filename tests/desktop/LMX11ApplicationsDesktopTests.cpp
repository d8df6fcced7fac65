// SPDX-License-Identifier: MIT
// Applications on a real X server with a real window manager, upset by tools that are not ours.
#include "Platform/LMDesktopEntries.h"
#include "Platform/X11/LMX11ApplicationIndex.h"
#include "Platform/X11/LMX11Applications.h"
#include "Platform/X11/LMX11Connection.h"
#include "Platform/X11/LMX11WindowManager.h"
#include "support/LMDesktopTools.h"
#include "unit/Utilities/Support.h"
#include "Utilities/LMLogger.h"

using namespace std::chrono_literals;

namespace {

struct Client : LMWindowClient {
    Client() : LMWindowClient(QStringLiteral(ROOK_WINDOW_SPAWNER)) {}
};

class LMX11ApplicationsDesktop : public testing::Test {
protected:
    void SetUp() override {
        QString reason;
        connection = LMX11Connection::open(QString(), logger, &reason);
        ASSERT_TRUE(connection) << reason.toStdString();
        manager = std::make_unique<LMX11WindowManager>(*connection);
        ASSERT_TRUE(LMWaitUntil([this] { return manager->isRunning(); }));
        ASSERT_TRUE(
            LMWaitUntil([this] { // Windows of the test before may still be on their way out.
                return LMX11ApplicationIndex(*connection, entries).stackingOrder().isEmpty();
            }));
        index = std::make_unique<LMX11ApplicationIndex>(*connection, entries);
        applications = std::make_unique<LMX11Applications>(*connection, *index, entries, *manager);
        QObject::connect(applications.get(), &LMApplications::applicationLaunched,
                         applications.get(),
                         [this](const QString& name) { launched.append(name); });
    }
    LMRunningApplication running(const QString& identifier) {
        const auto all = applications->runningApplications();
        const auto found =
            std::ranges::find(all, identifier, &LMRunningApplication::bundleIdentifier);
        return found != all.end() ? *found : LMRunningApplication();
    }
    qint64 process(const QString& identifier) { return running(identifier).processIdentifier; }
    bool waitForWindows(const QString& identifier, qsizetype count) {
        return LMWaitUntil(
            [&] { return index->windowsOfApplication(process(identifier)).size() == count; });
    }
    static void setClass(const QString& window, const QString& name) {
        LMRunTool(u"xprop -id %1 -f WM_CLASS 8s -set WM_CLASS %2"_qs.arg(window, name));
    }

    LMLogger logger = LMLogger::withCallback([](auto&&...) {});
    LMDesktopEntries entries;
    std::unique_ptr<LMX11Connection> connection;
    std::unique_ptr<LMX11WindowManager> manager;
    std::unique_ptr<LMX11ApplicationIndex> index;
    std::unique_ptr<LMX11Applications> applications;
    QStringList launched;
};

TEST_F(LMX11ApplicationsDesktop, ASecondLookCostsOneRoundTrip) {
    Client client;
    client.create("count=60 class=many,Many");
    ASSERT_TRUE(waitForWindows(u"many"_qs, 60));
    const auto roundTripsOfRefresh = [this] {
        const quint64 before = connection->roundTrips();
        index->refresh();
        return connection->roundTrips() - before;
    };
    EXPECT_TRUE(LMWaitUntil([&] { return roundTripsOfRefresh() == 1; })) << "once all is at rest";
    const quint64 before = connection->roundTrips();
    const LMX11ApplicationIndex another(*connection, entries);
    EXPECT_LE(connection->roundTrips() - before, 6U) << "depends on the number of windows";
    EXPECT_EQ(another.windowsOfApplication(process(u"many"_qs)).size(), 60);
}

TEST_F(LMX11ApplicationsDesktop, AnIdentityThatArrivesLateIsWaitedFor) {
    Client client;
    const QString window = client.create("class=,").value(0);
    ASSERT_TRUE(LMWaitUntil([&] { return !index->stackingOrder().isEmpty(); }));
    EXPECT_EQ(launched, QStringList());
    setClass(window, u"Late"_qs);
    ASSERT_TRUE(LMWaitUntil([&] { return !launched.isEmpty(); }));
    setClass(window, u"../../etc/x"_qs);
    ASSERT_TRUE(LMWaitUntil([&] { return launched == QStringList({u"late"_qs, u"etc-x"_qs}); }));
    EXPECT_EQ(process(u"late"_qs), 0);

    // One that never comes gives way to the program's name.
    client.create("class=,");
    EXPECT_TRUE(LMWaitUntil([&] { return launched.value(2) == u"window-spawner"_qs; }));
}

TEST_F(LMX11ApplicationsDesktop, OneProcessMayBeTwoApplications) {
    Client client;
    const QString first = client.create("class=one,One").value(0);
    ASSERT_TRUE(waitForWindows(u"one"_qs, 1));
    client.create("count=2 class=two,Two");
    ASSERT_TRUE(waitForWindows(u"two"_qs, 2));
    EXPECT_EQ(process(u"one"_qs), client.process());
    const qint64 second = process(u"two"_qs);
    EXPECT_GT(second, qint64(1) << 32);
    EXPECT_TRUE(applications->hide(second));
    EXPECT_TRUE(running(u"two"_qs).isHidden);
    EXPECT_FALSE(running(u"one"_qs).isHidden);

    client.ask("destroy " + first.toLatin1());
    ASSERT_TRUE(waitForWindows(u"one"_qs, 0));
    EXPECT_EQ(process(u"two"_qs), client.process());
    EXPECT_EQ(index->windowsOfApplication(second).size(), 2) << "the old number is forgotten";
}

TEST_F(LMX11ApplicationsDesktop, NewWindowsWithOldIdentifiersAreNotTakenForTheOld) {
    QString used;
    for (int round = 0; round < 20; ++round) {
        const QString name = u"round%1"_qs.arg(round);
        Client client;
        const QString window = client.create("class=x," + name.toLatin1()).value(0);
        ASSERT_TRUE(waitForWindows(name, 1)) << round;
        EXPECT_EQ(process(name), client.process());
        if (std::exchange(used, window) == window)
            return;
    }
    GTEST_SKIP() << "the server gave no identifier twice";
}

// The last test, for it leaves no window manager behind.
TEST_F(LMX11ApplicationsDesktop, AnotherWindowManagerIsNoLaunch) {
    Client client;
    client.create("count=3 class=stays,Stays");
    ASSERT_TRUE(waitForWindows(u"stays"_qs, 3));
    ASSERT_TRUE(LMWaitUntil([&] { return launched.size() == 1; }));
    const qint64 before = process(u"stays"_qs);
    const QString mark = LMRunTool(u"xprop -root _NET_SUPPORTING_WM_CHECK"_qs);
    QProcess replacement;
    replacement.start(u"openbox"_qs, {u"--replace"_qs});
    ASSERT_TRUE(LMWaitUntil([&] {
        return LMRunTool(u"xprop -root _NET_SUPPORTING_WM_CHECK"_qs) != mark &&
               manager->isRunning() &&
               manager->waitUntilCaughtUp(std::chrono::steady_clock::now() + 1s);
    })); // openbox overlooks windows that are mapped while it takes over.
    ASSERT_TRUE(waitForWindows(u"stays"_qs, 3));
    EXPECT_EQ(process(u"stays"_qs), before);
    client.create("class=late,Late");
    ASSERT_TRUE(LMWaitUntil([&] { return launched.contains(u"late"_qs); }));
    EXPECT_EQ(launched, QStringList({u"stays"_qs, u"late"_qs}));
    replacement.kill();
    replacement.waitForFinished();

    // What a manager takes over that comes after us was there before.
    const LMX11ApplicationIndex withoutManager(*connection, entries);
    QStringList launches;
    QObject::connect(&withoutManager, &LMX11ApplicationIndex::applicationLaunched,
                     [&](const QString& name) { launches.append(name); });
    replacement.start(u"openbox"_qs, QStringList());
    ASSERT_TRUE(waitForWindows(u"stays"_qs, 3));
    client.create("class=later,Later");
    ASSERT_TRUE(LMWaitUntil([&] { return launches.contains(u"later"_qs); }));
    EXPECT_EQ(launches, QStringList({u"later"_qs}));
    replacement.terminate();
    replacement.waitForFinished();
}

} // namespace

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    const QCoreApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
