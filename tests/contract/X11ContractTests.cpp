// SPDX-License-Identifier: MIT
// What X11 and its window managers make difficult: states in which they ignore geometry, windows
// they hold on the screen, sizes they round, identities that come late, managers that come and go.
#include "contract/LMContractTest.h"
#include "Platform/LMDesktopEntries.h"
#include "Platform/X11/LMX11ApplicationIndex.h"
#include "Platform/X11/LMX11Connection.h"
#include "Platform/X11/LMX11Desktop.h"
#include "Utilities/LMLogger.h"

#include <QElapsedTimer>
#include <QRegularExpression>

using Kind = LMContractWindow::Kind;

namespace {

struct State {
    const char* sign;  ///< What xprop shows of it.
    const char* enter; ///< For wmctrl; null: by minimising and raising the window.
    const char* leave;
    bool isKept = true; ///< The window takes a frame without leaving the state.
};

constexpr State normal{"", "-t 0", "-t 0"};
constexpr State maximized{"MAXIMIZED_VERT", "-b add,maximized_vert,maximized_horz",
                          "-b remove,maximized_vert,maximized_horz", false};
constexpr State halfMaximized{"MAXIMIZED_VERT", "-b add,maximized_vert", "-b remove,maximized_vert",
                              false};
constexpr State minimized{"HIDDEN", nullptr, nullptr};
constexpr State onAnotherDesktop{"= 2", "-t 2", "-t 0"};
constexpr State shaded{"SHADED", "-b add,shaded", "-b remove,shaded"};

QString run(const char* command, const LMElement& window, const char* argument = "") {
    return LMRunTool(
        QString::fromLatin1(command).arg(window.identifier).arg(QLatin1String(argument)));
}

bool isIn(const LMElement& window, const State& state) {
    static const QRegularExpression signs(u"MAXIMIZED_VERT|SHADED|HIDDEN|= 2"_qs);
    QString text = run("xprop -id %1 _NET_WM_STATE %2", window, "_NET_WM_DESKTOP");
    if (text.contains(u"SHADED"_qs)) // To some managers a shaded window is a hidden one.
        text.remove(u"HIDDEN"_qs);
    QString found;
    for (auto sign = signs.globalMatch(text); sign.hasNext();)
        found += sign.next().captured();
    return found == QLatin1String(state.sign);
}

} // namespace

class X11Contract : public LMContractTest {
protected:
    void enter(const LMElement& window, const State& state) {
        state.enter ? void(run("wmctrl -i -r %1 %2", window, state.enter))
                    : backend->minimize(window);
        ASSERT_TRUE(LMWaitUntil([&] { return isIn(window, state); })) << state.sign;
        settledFrame(window);
    }
    void leave(const LMElement& window, const State& state) {
        state.leave ? void(run("wmctrl -i -r %1 %2", window, state.leave)) : backend->raise(window);
        ASSERT_TRUE(LMWaitUntil([&] { return isIn(window, normal); })) << state.sign;
    }
    /// The first request may come too early for a manager that composites in software.
    void restore(const LMElement& window, const QRectF& stored) {
        EXPECT_TRUE(setFrame(window, stored) || setFrame(window, stored));
    }
    /// Waits until the window stands still: managers and clients still draw when states change.
    QRectF settledFrame(const LMElement& window) {
        QRectF last;
        QElapsedTimer quiet;
        EXPECT_TRUE(LMWaitUntil([&] {
            const QRectF now = backend->visibleFrame(window);
            if (std::exchange(last, now) != now)
                quiet.start();
            return quiet.elapsed() > 60;
        }));
        return last;
    }
    bool waitForWindows(const QString& identifier, qsizetype count) {
        return LMWaitUntil([&] { return windows(identifier).size() == count; });
    }

    LMLogger logger = LMLogger::withCallback([](auto&&...) {});
    QString reason;
};

INSTANTIATE_TEST_SUITE_P(On, X11Contract, testing::Values(LMContractBackends().back()),
                         LMBackendName);

TEST_P(X11Contract, WindowsGoToTheirFramesFromEveryState) {
    const QRectF stored(150, 120, 640, 480);
    const QStringList roles{u"AXCloseButton"_qs, u"AXMinimizeButton"_qs, u"AXZoomButton"_qs};
    // The window with the focus and the virtual desktop that is shown.
    const auto place = [] {
        return LMRunTool(u"xprop -root _NET_ACTIVE_WINDOW _NET_CURRENT_DESKTOP"_qs);
    };
    const LMElement other = open({.application = u"second"_qs});
    for (const Kind kind : {Kind::Standard, Kind::ClientDecorated}) {
        const LMElement window = open({.kind = kind});
        for (const State& state :
             {normal, maximized, halfMaximized, minimized, onAnotherDesktop, shaded}) {
            if (kind == Kind::ClientDecorated && qstrcmp(state.sign, shaded.sign) == 0)
                continue; // There is no title bar to shade it to.
            SCOPED_TRACE(testing::Message() << "kind " << int(kind) << ' ' << state.sign);
            // A window that was only just mapped may take the focus after the first one has it.
            ASSERT_TRUE(LMWaitUntil([&] {
                backend->raise(other);
                return place().contains(u" 0x%1"_qs.arg(other.identifier, 0, 16));
            }));
            restore(window, stored);
            ASSERT_EQ(settledFrame(window), stored);
            restore(window, QRectF(420, 260, 500, 390));
            enter(window, state);
            const QString before = place();

            // Matching compares structures, which must not depend on the state.
            QStringList found;
            for (const auto& child : read<QList<LMElement>>(window, LMAttribute::Children))
                found.append(text(child, LMAttribute::Role));
            EXPECT_EQ(found, roles);
            EXPECT_TRUE(read<bool>(window, LMAttribute::GrowArea));
            EXPECT_EQ(text(window, LMAttribute::Subrole), u"AXStandardWindow"_qs);

            restore(window, stored);
            EXPECT_EQ(place(), before);
            EXPECT_TRUE(isIn(window, state.isKept ? state : normal));
            leave(window, state);
            EXPECT_EQ(settledFrame(window), stored);
            EXPECT_EQ(frame(window), stored);
        }
    }
}

// Who maximises a window at once after moving it leaves no time to find out where it was.
TEST_P(X11Contract, ANormalFrameThatIsOutdatedIsForgotten) {
    const LMElement window = open();
    const QRectF stored(150, 120, 500, 400);
    for (const char* move : {"-e 0,300,250,-1,-1", "-e 0,-1,-1,444,333"}) {
        restore(window, stored);
        run("wmctrl -i -r %1 %2", window, move);
        enter(window, maximized);
        const auto state = desktop().windowStates().stateOfWindow(window).valueOr({});
        leave(window, maximized);
        const QRectF normal = settledFrame(window);
        EXPECT_NE(normal, stored);
        EXPECT_EQ(state.normalFrame.value_or(normal), normal) << move;
    }
}

// Some managers hold large windows on the screen: such a window gets to its place with its size.
TEST_P(X11Contract, WindowsGetToAndBeyondTheCorner) {
    const LMElement window = open();
    const QRectF monitor = desktop().screens().screens().first().displayBounds;
    restore(window, monitor.adjusted(10, 10, -100, -100));
    QRectF stored(0, 0, 400, 300);
    stored.moveBottomRight(monitor.bottomRight() - QPointF(5, 5));
    restore(window, stored);
    EXPECT_TRUE(isAt(window, stored));

    stored.translate(100, 100);
    restore(window, stored);
    if (frame(window) != stored)
        GTEST_SKIP() << "this window manager holds windows on the screen";
    stored.setSize(QSizeF(900, 700));
    restore(window, stored);
    EXPECT_TRUE(isAt(window, stored));
}

// The announcement does the work; each window is set after it all the same, and that tells.
TEST_P(X11Contract, ManyWindowsAreSetTogether) {
    const QList<LMElement> plain{open(), open({.kind = Kind::ClientDecorated}),
                                 open({.kind = Kind::Dialog}), open({.gravity = 10})};
    const LMElement large = open(), fixed = open({.isResizable = false}), gone = open();
    enter(large, maximized);
    backend->closeWindow(gone);
    QList<QRectF> wanted;
    QList<LMElementValue> positions{{plain[0], QPointF(500, 400)}}; // The last word counts.
    QList<LMElementValue> sizes;
    for (const LMElement& window : plain + QList{large, fixed, gone}) {
        const auto step = double(wanted.size());
        wanted.append({90 + 40 * step, 70 + 30 * step, 440 + 10 * step, 330 + 10 * step});
        positions.append({window, wanted.last().topLeft()});
        sizes.append({window, wanted.last().size()});
    }
    {
        const LMSettingScope scope(accessibility(), LMAttribute::Position, positions);
        for (qsizetype index = 0; index < plain.size(); ++index)
            EXPECT_EQ(backend->visibleFrame(plain[index]).topLeft(), wanted[index].topLeft());
        run("wmctrl -i -r %1 %2", plain[1], "-e 0,600,500,-1,-1");
        const auto isMoved = [&] {
            return backend->visibleFrame(plain[1]).topLeft() != wanted[1].topLeft();
        };
        ASSERT_TRUE(LMWaitUntil(isMoved));
        EXPECT_TRUE(set(plain[1], LMAttribute::Position, wanted[1].topLeft()));
        EXPECT_TRUE(isMoved()) << "it was done already";
        for (const auto& [window, value] : positions)
            EXPECT_EQ(set(window, LMAttribute::Position, value), window != gone);
    }
    {
        const LMSettingScope scope(accessibility(), LMAttribute::Size, sizes);
        for (qsizetype index = 0; index < plain.size(); ++index)
            EXPECT_TRUE(isAt(plain[index], wanted[index])) << index;
        for (const auto& [window, value] : sizes)
            EXPECT_EQ(set(window, LMAttribute::Size, value), window != gone && window != fixed);
        EXPECT_EQ(setError(gone, LMAttribute::Size, QSizeF()), LMPlatformError::InvalidElement);
    }
    EXPECT_TRUE(isAt(large, wanted[4]));
    EXPECT_EQ(frame(fixed).topLeft(), wanted[5].topLeft());
}

TEST_P(X11Contract, ATerminalComesBackToItsMaximizedFrame) {
    const LMElement window = open({.increment = QSize(7, 13)});
    restore(window, QRectF(40, 40, 500, 400));
    enter(window, maximized);
    const QRectF stored = settledFrame(window);
    leave(window, maximized);
    ASSERT_TRUE(LMWaitUntil([&] { return settledFrame(window) != stored; }));
    restore(window, stored);
    EXPECT_EQ(settledFrame(window), stored);
}

TEST_P(X11Contract, ASecondLookCostsOneRoundTrip) {
    LMWindowClient client;
    client.create("count=60 class=many,many");
    ASSERT_TRUE(waitForWindows(u"many"_qs, 60));
    const auto connection = LMX11Connection::open(QString(), logger, &reason);
    LMDesktopEntries entries;
    quint64 before = connection->roundTrips();
    LMX11ApplicationIndex index(*connection, entries);
    EXPECT_LE(connection->roundTrips() - before, 6U) << "depends on the number of windows";
    EXPECT_EQ(index.windowsOfApplication(client.process()).size(), 60);
    EXPECT_TRUE(LMWaitUntil([&] {
        before = connection->roundTrips();
        index.refresh();
        return connection->roundTrips() == before + 1;
    })) << "once all is at rest";
}

TEST_P(X11Contract, AnIdentityThatArrivesLateIsWaitedFor) {
    LMWindowClient client;
    const QString window = client.create("class=,").value(0);
    const auto setClass = [&](const char* name, const QStringList& expected) {
        LMRunTool(
            u"xprop -id %1 -f WM_CLASS 8s -set WM_CLASS %2"_qs.arg(window, QLatin1String(name)));
        EXPECT_TRUE(LMWaitUntil([&] { return launches == expected; })) << name;
    };
    ASSERT_TRUE(LMWaitUntil(
        [&] { return !desktop().windowServer().onScreenWindowDescriptions().isEmpty(); }));
    setClass("Late", {u"late"_qs});
    setClass("../../etc/x", {u"late"_qs, u"etc-x"_qs});
    EXPECT_EQ(process(u"late"_qs), 0);

    // One that never comes gives way to the program's name.
    client.create("class=,");
    EXPECT_TRUE(LMWaitUntil([&] { return launches.value(2) == u"window-spawner"_qs; }));
}

TEST_P(X11Contract, OneProcessMayBeTwoApplications) {
    LMWindowClient client;
    const QString window = client.create("class=first,first").value(0);
    ASSERT_TRUE(waitForWindows(u"first"_qs, 1));
    client.create("count=2 class=second,second");
    ASSERT_TRUE(waitForWindows(u"second"_qs, 2));
    EXPECT_EQ(process(), client.process());
    const qint64 number = process(u"second"_qs);
    EXPECT_GT(number, qint64(1) << 32);
    EXPECT_TRUE(desktop().applications().hide(number));
    EXPECT_TRUE(running(u"second"_qs).isHidden);
    EXPECT_FALSE(running().isHidden);

    client.ask("destroy " + window.toLatin1());
    ASSERT_TRUE(waitForWindows(u"first"_qs, 0));
    EXPECT_EQ(process(u"second"_qs), client.process());
    EXPECT_TRUE(desktop().applications().unhide(number)) << "the old number is forgotten";
}

TEST_P(X11Contract, NewWindowsWithOldIdentifiersAreNotTakenForTheOld) {
    QString used;
    for (int round = 0; round < 20; ++round) {
        // marco loses a window when it meets its predecessor's end later than its mapping.
        ASSERT_TRUE(LMWaitUntilNoWindowIsListed());
        const QString name = u"round%1"_qs.arg(round);
        LMWindowClient client;
        const QString window = client.create("class=x," + name.toLatin1()).value(0);
        ASSERT_TRUE(waitForWindows(name, 1)) << round;
        EXPECT_TRUE(LMWaitUntil([&] { return process(name) == client.process(); }));
        if (std::exchange(used, window) == window)
            return;
    }
    GTEST_SKIP() << "the server gave no identifier twice";
}

TEST_P(X11Contract, AnotherWindowManagerIsNoLaunch) {
    if (!desktop().windowManagerName().startsWith(u"Openbox"_qs))
        GTEST_SKIP() << "only openbox is replaced by openbox";
    const QString stays = u"first"_qs;
    LMWindowClient client;
    client.create("count=3 class=first,first");
    ASSERT_TRUE(waitForWindows(stays, 3));
    ASSERT_TRUE(LMWaitUntil([&] { return launches.size() == 1; }));
    const qint64 before = process();
    // openbox overlooks windows that are mapped while it takes over.
    const auto canMove = [&](const QPointF& place) {
        return windows().size() == 3 && !setError(windows()[0], LMAttribute::Position, place);
    };
    const auto mark = [] { return LMRunTool(u"xprop -root _NET_SUPPORTING_WM_CHECK"_qs); };
    const QString markBefore = mark();
    QProcess replacement;
    replacement.start(u"openbox"_qs, {u"--replace"_qs});
    ASSERT_TRUE(LMWaitUntil([&] { return mark() != markBefore && canMove({100, 100}); }));
    EXPECT_EQ(process(), before);
    client.create("class=second,second");
    EXPECT_TRUE(LMWaitUntil([&] { return launches == QStringList({stays, u"second"_qs}); }));
    replacement.kill();
    replacement.waitForFinished();

    // What a manager takes over that comes after us was there before.
    const auto late = LMX11Backend().create(logger, &reason);
    QStringList lateLaunches;
    QObject::connect(&late->applications(), &LMApplications::applicationLaunched,
                     [&](const QString& name) { lateLaunches.append(name); });
    QProcess::startDetached(u"openbox"_qs, {}); // It stays for the tests that follow.
    ASSERT_TRUE(LMWaitUntil([&] { return canMove({200, 200}); }));
    client.create("class=third,third");
    EXPECT_TRUE(LMWaitUntil([&] { return lateLaunches == QStringList({u"third"_qs}); }));
}
