// SPDX-License-Identifier: MIT
// Monitors of a real X server, arranged by xrandr and by us, each checked by the other.
#include "contract/LMContractTest.h"

#include <QRegularExpression>

namespace {

const QString usual = u"--output DUMMY0 --mode 1920x1080 --pos 0x0 --primary "
                      "--output DUMMY1 --mode 1440x900 --pos 1920x0 --output DUMMY2 --off"_qs;

const QString layoutOfOthers = u"--output DUMMY1 --pos 0x0 --output DUMMY0 --pos 1440x0"_qs;

/// Standard output; a grabbed server would let the call run into the deadline.
QString xrandr(const QString& arguments) {
    return LMRunTool(u"xrandr "_qs + arguments);
}

/// "0 1920x1080 0,0 | 1 1440x900 1920,0", by name without "DUMMY".
QString describe(const std::map<QString, QRectF>& monitors) {
    QStringList result;
    for (const auto& [name, rect] : monitors) {
        result.append(u"%1 %2x%3 %4,%5"_qs.arg(QString(name).remove(u"DUMMY"_qs))
                          .arg(rect.width())
                          .arg(rect.height()));
        result.last() = result.last().arg(rect.x()).arg(rect.y());
    }
    return result.join(u" | "_qs);
}

/// Root coordinates.
QString monitorsOfServer() {
    std::map<QString, QRectF> monitors;
    for (const LMListedMonitor& monitor : LMListMonitors())
        monitors[monitor.name] = monitor.frame;
    return describe(monitors);
}

/// All that "xrandr --verbose" says, but for the times of the last changes.
QString stateOfServer() {
    static const QRegularExpression times(u"\\n\\s*Timestamp:[^\\n]*"_qs);
    return xrandr(u"--verbose"_qs).remove(times);
}

} // namespace

/// Begins each test with two monitors, DUMMY1 to the right of DUMMY0, the primary one.
class X11ScreensContract : public LMContractTest {
protected:
    void SetUp() override {
        if (!xrandr(u"--current"_qs).contains(u" 1200x1920 "_qs)) {
            xrandr(u"--newmode 1200x1920 154 1200 1248 1280 1360 1920 1923 1929 1950"_qs);
            xrandr(u"--addmode DUMMY2 1200x1920"_qs);
        }
        xrandr(usual);
        LMContractTest::SetUp();
        QObject::connect(&desktop().screens(), &LMScreens::screenParametersChanged, &desktop(),
                         [this] { ++reports; });
        side = idOf(u"DUMMY1"_qs);
    }
    void TearDown() override { xrandr(layoutOfOthers); }
    bool waitForReports(int count) {
        return LMWaitUntil([&] { return reports >= count; }) && reports == count;
    }
    QString described() {
        std::map<QString, QRectF> monitors;
        for (const LMScreen& screen : desktop().screens().screens())
            monitors[screen.connectorName] = screen.displayBounds;
        return describe(monitors);
    }
    quint32 idOf(const QString& name) {
        const auto screens = desktop().screens().screens();
        const auto found = std::ranges::find(screens, name, &LMScreen::connectorName);
        return found != screens.end() ? found->displayID : 0;
    }
    std::optional<LMPlatformError> move(quint32 displayID, const QPoint& origin) {
        const auto configuration = desktop().screens().beginDisplayConfiguration();
        const auto status =
            configuration->configureDisplayOrigin(displayID, origin.x(), origin.y());
        return LMErrorOf(status ? configuration->completePermanently() : status);
    }

    int reports = 0;
    quint32 side = 0;
};

INSTANTIATE_TEST_SUITE_P(On, X11ScreensContract, testing::Values(LMContractBackends().back()),
                         LMBackendName);

TEST_P(X11ScreensContract, FollowsTheMonitorsAndReportsEachChangeOnce) {
    const std::pair<QStringList, const char*> steps[] = {
        {{u"--output DUMMY1 --left-of DUMMY0"_qs}, "0 1920x1080 0,0 | 1 1440x900 -1440,0"},
        {{u"--output DUMMY0 --pos 0x900 --output DUMMY1 --pos 1440x0"_qs},
         "0 1920x1080 0,0 | 1 1440x900 1440,-900"},
        {{u"--output DUMMY2 --mode 1200x1920 --pos 2880x0 --primary"_qs},
         "0 1920x1080 -2880,900 | 1 1440x900 -1440,0 | 2 1200x1920 0,0"},
        {{u"--output DUMMY2 --off --output DUMMY1 --same-as DUMMY0 --primary"_qs},
         "0 1920x1080 0,0"},
        {{u"--output DUMMY1 --mode 1440x900 --right-of DUMMY0"_qs, u"--output DUMMY1 --off"_qs,
          usual},
         "0 1920x1080 0,0 | 1 1440x900 1920,0"},
        {{u"--setmonitor half 960/250x1080/280+0+0 DUMMY0"_qs,
          u"--setmonitor rest 960/250x1080/280+960+0 none"_qs},
         "0 960x1080 0,0 | 1 1440x900 1920,0 | rest 960x1080 960,0"},
        {{u"--delmonitor half"_qs, u"--delmonitor rest"_qs}, "0 1920x1080 0,0 | 1 1440x900 1920,0"},
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

TEST_P(X11ScreensContract, ArrangesDisplaysAndTakesTheUsersMonitorsAlong) {
    const std::pair<QPoint, const char*> steps[] = {
        // Root coordinates.
        {{-1440, 0}, "0 1920x1080 1440,0 | 1 1440x900 0,0"},
        {{240, -900}, "0 1920x1080 0,900 | 1 1440x900 240,0"},
        {{2000, -20}, "0 1920x1080 0,20 | 1 1440x900 2000,0"},
        {{100, 100}, "0 1920x1080 0,0 | 1 1440x900 100,100"},
        {{0, 1080}, "0 1920x1080 0,0 | 1 1440x900 0,1080"},
    };
    int expected = 0;
    for (const auto& [origin, monitors] : steps) {
        EXPECT_EQ(move(side, origin), std::nullopt);
        EXPECT_EQ(monitorsOfServer(), QLatin1String(monitors));
        EXPECT_EQ(described(), describe({{u"DUMMY0"_qs, {0, 0, 1920, 1080}},
                                         {u"DUMMY1"_qs, QRectF(origin, QSizeF(1440, 900))}}));
        EXPECT_TRUE(waitForReports(++expected)) << reports;
    }
    EXPECT_EQ(move(side, {0, 1080}), std::nullopt); // Nothing to do, nothing to report.
    EXPECT_EQ(move(side, {1920, 0}), std::nullopt);
    EXPECT_TRUE(waitForReports(++expected)) << reports;

    xrandr(u"--setmonitor half 960/250x1080/280+0+0 DUMMY0"_qs);
    xrandr(u"--setmonitor rest 960/250x1080/280+960+0 none"_qs);
    xrandr(u"--setmonitor side 1440/300x900/200+1920+0 DUMMY1"_qs);
    EXPECT_EQ(move(idOf(u"DUMMY1"_qs), {-1440, -20}), std::nullopt);
    EXPECT_EQ(monitorsOfServer(),
              u"half 960x1080 1440,20 | rest 960x1080 2400,20 | side 1440x900 0,0"_qs);
    EXPECT_NE(move(idOf(u"rest"_qs), {0, 0}), std::nullopt);
    for (const auto& name : {u"half"_qs, u"rest"_qs, u"side"_qs})
        xrandr(u"--delmonitor "_qs + name);
}

TEST_P(X11ScreensContract, LeavesTheArrangementAloneWhenAskedTooMuch) {
    const struct {
        const char* what;
        quint32 displayID;
        QPoint origin;
        LMPlatformError error;
    } cases[] = {
        {"larger than the server's limit", side, {32000, 0}, LMPlatformError::Failure},
        {"unknown", 4711, {0, 0}, LMPlatformError::InvalidElement},
        // The driver has memory for 65 million pixels, which RandR does not know.
        {"refused at the first step", side, {9000, 9000}, LMPlatformError::Failure},
        {"refused when one is dark already", side, {700, 31867}, LMPlatformError::Failure},
    };
    const QString before = stateOfServer();
    const auto given = desktop().screens().beginDisplayConfiguration();
    EXPECT_TRUE(bool(given->configureDisplayOrigin(side, 0, 1080)));
    EXPECT_EQ(stateOfServer(), before) << "it was not completed";
    for (const auto& row : cases) {
        EXPECT_EQ(move(row.displayID, row.origin), row.error) << row.what;
        EXPECT_EQ(stateOfServer(), before) << row.what;
    }
}
