// SPDX-License-Identifier: MIT
// What X11 and its window managers make difficult: states in which they ignore geometry, windows
// they hold on the screen, sizes they round, identities that come late, managers that come and go.
#include "contract/LMContractTest.h"
#include "Platform/X11/LMX11Connection.h"
#include "Platform/X11/LMX11Desktop.h"
#include "Utilities/LMLogger.h"

#include <QElapsedTimer>

#include <sys/types.h>
#include <unistd.h>
#include <xcb/res.h>

using Kind = LMContractWindow::Kind;

namespace {

using S = LMWindowState;
const S normal{.desktop = 0};
const S maximized{.isMaximizedHorizontally = true, .isMaximizedVertically = true, .desktop = 0};

void move(const LMElement& window, const char* geometry) {
    LMRunTool(u"wmctrl -i -r %1 -e "_qs.arg(window.identifier) + QLatin1String(geometry));
}

/// Has the server drop all connections of this process but the one that asks for it.
void breakOtherConnections(LMX11Connection& connection) {
    xcb_connection_t* xcb = connection.xcb();
    const uint32_t ownBase = xcb_get_setup(xcb)->resource_id_base;
    const xcb_res_client_id_spec_t everyone{0, XCB_RES_CLIENT_ID_MASK_LOCAL_CLIENT_PID};
    const auto reply = connection.reply(xcb_res_query_client_ids_reply,
                                        xcb_res_query_client_ids(xcb, 1, &everyone));
    for (auto at = xcb_res_query_client_ids_ids_iterator(reply.get()); at.rem > 0;
         xcb_res_client_id_value_next(&at)) {
        const auto process = pid_t(*xcb_res_client_id_value_value(at.data));
        if (process == getpid() && at.data->spec.client != ownBase)
            xcb_kill_client(xcb, at.data->spec.client);
    }
    connection.flush();
}

} // namespace

class X11Contract : public LMContractTest {
protected:
    void enter(const LMElement& window, const S& state) {
        backend->setState(window, state);
        settledFrame(window);
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
    // Each with whether the window takes a frame without leaving it.
    const std::tuple<const char*, S, bool> states[] = {
        {"normal", normal, true},
        {"maximised", maximized, false},
        {"half maximised", {.isMaximizedVertically = true, .desktop = 0}, false},
        {"minimised", {.isMinimized = true, .desktop = 0}, true},
        {"on another desktop", {.desktop = 2}, true},
        {"shaded", {.isShaded = true, .desktop = 0}, true},
    };
    const QRectF stored(150, 120, 640, 480);
    const QStringList roles{u"AXCloseButton"_qs, u"AXMinimizeButton"_qs, u"AXZoomButton"_qs};
    const LMElement other = open({.application = u"second"_qs});
    for (const Kind kind : {Kind::Standard, Kind::ClientDecorated}) {
        const LMElement window = open({.kind = kind});
        for (const auto& [name, state, isKept] : states) {
            if (kind == Kind::ClientDecorated && state.isShaded)
                continue; // There is no title bar to shade it to.
            SCOPED_TRACE(testing::Message() << "kind " << int(kind) << ", " << name);
            // A window that was only just mapped may take the focus after the first one has it.
            ASSERT_TRUE(LMWaitUntil([&] {
                backend->raise(other);
                return backend->view().activeWindow == other;
            }));
            restore(window, stored);
            ASSERT_EQ(settledFrame(window), stored);
            restore(window, QRectF(420, 260, 500, 390));
            enter(window, state);
            const LMContractView before = backend->view();

            // Matching compares structures, which must not depend on the state.
            QStringList found;
            for (const auto& child : read<QList<LMElement>>(window, LMAttribute::Children))
                found.append(text(child, LMAttribute::Role));
            EXPECT_EQ(found, roles);
            EXPECT_TRUE(read<bool>(window, LMAttribute::GrowArea));
            EXPECT_EQ(text(window, LMAttribute::Subrole), u"AXStandardWindow"_qs);

            restore(window, stored);
            EXPECT_EQ(backend->view(), before);
            EXPECT_EQ(backend->visibleState(window), isKept ? state : normal);
            enter(window, normal);
            EXPECT_TRUE(isAt(window, stored));
        }
    }
}

// Who maximises a window at once after moving it leaves no time to find out where it was.
TEST_P(X11Contract, ANormalFrameThatIsOutdatedIsForgotten) {
    const LMElement window = open();
    const QRectF stored(150, 120, 500, 400);
    for (const char* geometry : {"0,300,250,-1,-1", "0,-1,-1,444,333"}) {
        restore(window, stored);
        move(window, geometry);
        enter(window, maximized);
        const auto state = desktop().windowStates().stateOfWindow(window).valueOr({});
        enter(window, normal);
        const QRectF moved = backend->visibleFrame(window);
        EXPECT_NE(moved, stored);
        EXPECT_EQ(state.normalFrame.value_or(moved), moved) << geometry;
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
    enter(window, normal);
    ASSERT_NE(backend->visibleFrame(window), stored);
    restore(window, stored);
    EXPECT_EQ(settledFrame(window), stored);
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

TEST_P(X11Contract, SurvivesTheLossOfItsConnection) {
    const LMElement window = open();
    const qint64 owner = process();
    QStringList losses;
    QObject::connect(&desktop(), &LMDesktop::connectionLost, &desktop(),
                     [&](const QString& why) { losses.append(why); });
    LMHotKeys& hotKeys = desktop().hotKeys();
    const auto onY = *LMShortcut::shortcutWithKeysym('y', LMModifier::Control);
    EXPECT_TRUE(bool(hotKeys.registerHotKey(u"a"_qs, onY)));
    const auto connection = LMX11Connection::open(QString(), logger, &reason);
    breakOtherConnections(*connection);
    ASSERT_TRUE(LMWaitUntil([&] { return !losses.isEmpty(); }));

    const LMReadingScope scope(accessibility(), {window});
    EXPECT_NE(readError(window, LMAttribute::Title), std::nullopt);
    EXPECT_NE(setError(window, LMAttribute::Position, QPointF(1, 1)), std::nullopt);
    EXPECT_TRUE(desktop().applications().runningApplications().isEmpty());
    EXPECT_FALSE(desktop().applications().activate(owner));
    EXPECT_TRUE(desktop().windowServer().onScreenWindowDescriptions().isEmpty());
    EXPECT_TRUE(desktop().windowServer().imageOfWindow(1).isNull());
    EXPECT_TRUE(desktop().screens().screens().isEmpty());
    EXPECT_EQ(desktop().screens().beginDisplayConfiguration(), nullptr);
    EXPECT_EQ(hotKeys.registerHotKey(u"b"_qs, onY).error(), LMHotKeyRefusal::NotAvailable);
    hotKeys.unregisterHotKey(u"a"_qs);
    EXPECT_FALSE(desktop().checkPermission().isTrusted);
    EXPECT_TRUE(desktop().windowManagerName().isEmpty());
    ASSERT_EQ(losses.size(), 1);
    EXPECT_FALSE(losses[0].isEmpty());
}
