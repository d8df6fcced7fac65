// SPDX-License-Identifier: MIT
// Monitors of a real X server, arranged by xrandr and by us, each checked by the other.
#include "Model/LMDisplay.h"
#include "Model/LMRookModel.h"
#include "Model/LMWorkspace.h"
#include "Model/Store/LMObjectContext.h"
#include "Model/Store/LMObjectModel.h"
#include "Platform/X11/LMX11Desktop.h"
#include "Platform/X11/LMX11Screens.h"
#include "support/LMDesktopTools.h"
#include "support/LMTestEnvironment.h"
#include "Utilities/LMLogger.h"

#include <QRegularExpression>

#include <gtest/gtest.h>

namespace {

/// Standard output; a grabbed server would let the call run into the deadline.
QString xrandr(const QString& arguments) {
    return LMRunTool(u"xrandr "_qs + arguments);
}

/// "DUMMY0 1920x1080 0,0 | DUMMY1 1440x900 1920,0", by name.
QString describe(const std::map<QString, QRectF>& monitors) {
    QStringList result;
    for (const auto& [name, rect] : monitors)
        result.append(u"%1 %2x%3 %4,%5"_qs.arg(name)
                          .arg(rect.width())
                          .arg(rect.height())
                          .arg(rect.x())
                          .arg(rect.y()));
    return result.join(u" | "_qs);
}

/// What "xrandr --listmonitors" says, root coordinates.
QString monitorsOfServer() {
    static const QRegularExpression pattern(
        u": \\+?\\*?(\\S+) (\\d+)/\\d+x(\\d+)/\\d+([+-]\\d+)([+-]\\d+)"_qs);
    std::map<QString, QRectF> monitors;
    const QString text = xrandr(u"--listmonitors"_qs);
    for (auto match = pattern.globalMatch(text); match.hasNext();) {
        const auto each = match.next();
        const auto number = [&each](int group) { return each.captured(group).toDouble(); };
        monitors[each.captured(1)] = {number(4), number(5), number(2), number(3)};
    }
    return describe(monitors);
}

/// All that "xrandr --verbose" says, but for the times of the last changes.
QString stateOfServer() {
    static const QRegularExpression times(u"\\n\\s*Timestamp:[^\\n]*"_qs);
    return xrandr(u"--verbose"_qs).remove(times);
}

/// Begins and ends each test with two monitors, DUMMY1 to the right of DUMMY0, the primary one.
class LMX11ScreensDesktop : public testing::Test {
protected:
    LMX11ScreensDesktop() {
        if (!xrandr(u"--current"_qs).contains(u" 1200x1920 "_qs)) {
            xrandr(u"--newmode 1200x1920 154 1200 1248 1280 1360 1920 1923 1929 1950"_qs);
            xrandr(u"--addmode DUMMY2 1200x1920"_qs);
        }
        xrandr(usual);
        QString reason;
        connection = LMX11Connection::open(QString(), logger, &reason);
        screens = std::make_unique<LMX11Screens>(*connection);
        QObject::connect(screens.get(), &LMScreens::screenParametersChanged, screens.get(),
                         [this] { ++reports; });
        side = idOf(u"DUMMY1"_qs);
    }
    ~LMX11ScreensDesktop() override { xrandr(usual); }

    bool waitForReports(int count) {
        return LMWaitUntil([&] { return reports >= count; }) && reports == count;
    }
    QString described() {
        std::map<QString, QRectF> monitors;
        for (const LMScreen& screen : screens->screens())
            monitors[screen.connectorName] = screen.displayBounds;
        return describe(monitors);
    }
    quint32 idOf(const QString& name) {
        for (const LMScreen& screen : screens->screens()) {
            if (screen.connectorName == name)
                return screen.displayID;
        }
        return 0;
    }
    LMPlatformStatus move(const QList<std::pair<quint32, QPoint>>& origins) {
        const auto configuration = screens->beginDisplayConfiguration();
        for (const auto& [displayID, origin] : origins) {
            if (auto status =
                    configuration->configureDisplayOrigin(displayID, origin.x(), origin.y());
                !status)
                return status;
        }
        return configuration->completePermanently();
    }

    const QString usual = u"--output DUMMY0 --mode 1920x1080 --pos 0x0 --primary "
                          "--output DUMMY1 --mode 1440x900 --pos 1920x0 --output DUMMY2 --off"_qs;
    QStringList messages;
    LMLogger logger = LMLogger::withCallback(
        [this](LMLogLevel level, const QString& message, const std::source_location&) {
            if (level >= LMLogLevel::Warning)
                messages.append(message);
        });
    std::unique_ptr<LMX11Connection> connection;
    std::unique_ptr<LMX11Screens> screens;
    int reports = 0;
    quint32 side = 0;
};

TEST_F(LMX11ScreensDesktop, FollowsTheMonitorsAndReportsEachChangeOnce) {
    const std::pair<QStringList, const char*> steps[] = {
        {{u"--output DUMMY1 --left-of DUMMY0"_qs},
         "DUMMY0 1920x1080 0,0 | DUMMY1 1440x900 -1440,0"},
        {{u"--output DUMMY0 --pos 0x900 --output DUMMY1 --pos 1440x0"_qs},
         "DUMMY0 1920x1080 0,0 | DUMMY1 1440x900 1440,-900"},
        {{u"--output DUMMY2 --mode 1200x1920 --pos 2880x0 --primary"_qs},
         "DUMMY0 1920x1080 -2880,900 | DUMMY1 1440x900 -1440,0 | DUMMY2 1200x1920 0,0"},
        {{u"--output DUMMY2 --off --output DUMMY1 --same-as DUMMY0 --primary"_qs},
         "DUMMY0 1920x1080 0,0"},
        {{u"--output DUMMY1 --mode 1440x900 --right-of DUMMY0"_qs, u"--output DUMMY1 --off"_qs,
          usual},
         "DUMMY0 1920x1080 0,0 | DUMMY1 1440x900 1920,0"},
        {{u"--setmonitor half 960/250x1080/280+0+0 DUMMY0"_qs,
          u"--setmonitor rest 960/250x1080/280+960+0 none"_qs},
         "DUMMY0 960x1080 0,0 | DUMMY1 1440x900 1920,0 | rest 960x1080 960,0"},
        {{u"--delmonitor half"_qs, u"--delmonitor rest"_qs},
         "DUMMY0 1920x1080 0,0 | DUMMY1 1440x900 1920,0"},
    };
    int expected = 0;
    for (const auto& [changes, monitors] : steps) {
        for (const QString& change : changes)
            xrandr(change);
        EXPECT_TRUE(waitForReports(++expected)) << changes[0].toStdString() << ": " << reports;
        EXPECT_EQ(described(), QLatin1String(monitors)) << changes[0].toStdString();
    }
    EXPECT_EQ(idOf(u"DUMMY1"_qs), side);
}

TEST_F(LMX11ScreensDesktop, ArrangesDisplaysAndTakesTheUsersMonitorsAlong) {
    const std::pair<QPoint, const char*> steps[] = {
        // Root coordinates.
        {{-1440, 0}, "DUMMY0 1920x1080 1440,0 | DUMMY1 1440x900 0,0"},
        {{240, -900}, "DUMMY0 1920x1080 0,900 | DUMMY1 1440x900 240,0"},
        {{2000, -20}, "DUMMY0 1920x1080 0,20 | DUMMY1 1440x900 2000,0"},
        {{100, 100}, "DUMMY0 1920x1080 0,0 | DUMMY1 1440x900 100,100"},
        {{0, 1080}, "DUMMY0 1920x1080 0,0 | DUMMY1 1440x900 0,1080"},
    };
    int expected = 0;
    for (const auto& [origin, monitors] : steps) {
        EXPECT_TRUE(move({{side, origin}}));
        EXPECT_EQ(monitorsOfServer(), QLatin1String(monitors));
        EXPECT_EQ(described(), describe({{u"DUMMY0"_qs, {0, 0, 1920, 1080}},
                                         {u"DUMMY1"_qs, QRectF(origin, QSizeF(1440, 900))}}));
        EXPECT_TRUE(waitForReports(++expected)) << reports;
    }
    EXPECT_TRUE(move({{side, {0, 1080}}})); // Nothing to do, nothing to report.
    EXPECT_TRUE(move({{side, {1920, 0}}, {idOf(u"DUMMY0"_qs), {0, 0}}}));
    EXPECT_TRUE(waitForReports(++expected)) << reports;
    EXPECT_EQ(messages, QStringList());

    xrandr(u"--setmonitor half 960/250x1080/280+0+0 DUMMY0"_qs);
    xrandr(u"--setmonitor rest 960/250x1080/280+960+0 none"_qs);
    xrandr(u"--setmonitor side 1440/300x900/200+1920+0 DUMMY1"_qs);
    EXPECT_TRUE(move({{idOf(u"DUMMY1"_qs), {-1440, -20}}}));
    EXPECT_EQ(monitorsOfServer(),
              u"half 960x1080 1440,20 | rest 960x1080 2400,20 | side 1440x900 0,0"_qs);
    EXPECT_FALSE(move({{idOf(u"rest"_qs), {0, 0}}}));
    for (const auto& name : {u"half"_qs, u"rest"_qs, u"side"_qs})
        xrandr(u"--delmonitor "_qs + name);
}

TEST_F(LMX11ScreensDesktop, LeavesTheArrangementAloneWhenAskedTooMuch) {
    const struct {
        const char* what;
        quint32 displayID;
        QPoint origin;
        LMPlatformError error;
        qsizetype messages;
    } cases[] = {
        {"larger than the server's limit", side, {32000, 0}, LMPlatformError::Failure, 1},
        {"unknown", 4711, {0, 0}, LMPlatformError::InvalidElement, 1},
        // The driver has memory for 65 million pixels, which RandR does not know.
        {"refused at the first step", side, {9000, 9000}, LMPlatformError::Failure, 2},
        {"refused when one is dark already", side, {700, 31867}, LMPlatformError::Failure, 2},
    };
    const QString before = stateOfServer();
    for (const auto& row : cases) {
        messages.clear();
        const LMPlatformStatus status = move({{row.displayID, row.origin}});
        ASSERT_FALSE(status) << row.what;
        EXPECT_EQ(status.error(), row.error) << row.what;
        EXPECT_EQ(messages.size(), row.messages) << messages.join(u'\n').toStdString();
        EXPECT_EQ(stateOfServer(), before) << row.what;
    }
}

TEST_F(LMX11ScreensDesktop, AWorkspaceBecomesCurrentAndARefusalLeavesEverything) {
    QString reason;
    const auto desktop = LMX11Desktop::open(logger, &reason);
    LMTestEnvironment test(*desktop);
    const auto model = LMRookModel();
    LMObjectContext context(*model, test.environment);
    auto* workspace = context.insertObject<LMWorkspace>();
    EXPECT_TRUE(workspace->isCurrentWorkspace());
    EXPECT_FALSE(workspace->canBecomeCurrentWorkspace());

    xrandr(u"--output DUMMY1 --pos 0x0 --output DUMMY0 --pos 1440x0"_qs);
    EXPECT_FALSE(workspace->isCurrentWorkspace());
    ASSERT_TRUE(workspace->canBecomeCurrentWorkspace());
    workspace->makeCurrentWorkspace();
    EXPECT_TRUE(workspace->isCurrentWorkspace());
    EXPECT_EQ(monitorsOfServer(), u"DUMMY0 1920x1080 0,0 | DUMMY1 1440x900 1920,0"_qs);

    for (LMDisplay* display : workspace->displays()) // More than the driver's memory holds.
        if (display->displayBounds().startsWith(u"{{1920"_qs))
            display->setDisplayBounds(u"{{700, 31867}, {1440, 900}}"_qs);
    const QString before = stateOfServer();
    ASSERT_TRUE(workspace->canBecomeCurrentWorkspace());
    workspace->makeCurrentWorkspace();
    EXPECT_EQ(stateOfServer(), before);
}

} // namespace

int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
