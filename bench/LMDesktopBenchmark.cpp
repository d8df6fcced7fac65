// SPDX-License-Identifier: MIT
// Windows of a real X server under a real window manager: reading 200, moving and resizing 100
// beside a wmctrl loop over the same windows. Needs a desktop (tools/with-desktop) and the
// scriptable X client named by ROOK_WINDOW_SPAWNER.
#include "Model/LMApplication.h"
#include "Model/LMRookModel.h"
#include "Model/LMStoredWindow.h"
#include "Model/LMWindow.h"
#include "Model/LMWorkspace.h"
#include "Model/Store/LMObjectContext.h"
#include "Model/Store/LMObjectModel.h"
#include "Platform/X11/LMX11Connection.h"
#include "Platform/X11/LMX11Desktop.h"
#include "Platform/X11/LMX11Properties.h"
#include "Platform/X11/LMX11WindowReader.h"
#include "support/LMTestEnvironment.h"
#include "Utilities/LMRectangle.h"

#include <benchmark/benchmark.h>

#include <QCoreApplication>
#include <QProcess>

#include <algorithm>
#include <stdexcept>
#include <thread>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace {

using Clock = std::chrono::steady_clock;

double secondsSince(Clock::time_point start) {
    return std::chrono::duration<double>(Clock::now() - start).count();
}

/// One application with a number of windows, seen through a second connection that is not the one
/// to be measured.
class Client {
public:
    explicit Client(int count) {
        m_process.start(qEnvironmentVariable("ROOK_WINDOW_SPAWNER"), QStringList());
        m_process.setReadChannel(QProcess::StandardOutput);
        m_process.write("create title=Document class=bench,Bench geometry=300x200+40+40 count=" +
                        QByteArray::number(count) + '\n');
        while (!m_process.canReadLine())
            if (!m_process.waitForReadyRead(30000))
                throw std::runtime_error("no windows from ROOK_WINDOW_SPAWNER");
        for (const QByteArray& word : m_process.readLine().trimmed().split(' ').mid(1))
            windows.append(word.toUInt(nullptr, 16));
        m_connection = LMX11Connection::open(QString(), m_logger, &m_reason);
        // Managed means decorated, here.
        waitUntil([this](const LMX11Window& window, qsizetype) {
            return window.geometry.frame().height() > 200;
        });
    }
    /// Returns when the manager has seen the windows go: the server gives their numbers to those of
    /// the next client, which the manager would take for the old ones.
    ~Client() {
        m_process.closeWriteChannel();
        m_process.waitForFinished();
        const auto start = Clock::now();
        while (isAnyManaged() && secondsSince(start) < 20)
            std::this_thread::sleep_for(1ms);
    }

    LMX11Reading read() { return LMX11WindowReader(*m_connection).readFrames(windows); }
    /// Of a complete reading.
    quint64 countRoundTrips() {
        const quint64 before = m_connection->roundTrips();
        LMX11WindowReader(*m_connection).read(windows);
        return m_connection->roundTrips() - before;
    }

    template <class Condition>
    void waitUntil(Condition condition) {
        const auto start = Clock::now();
        for (;; std::this_thread::sleep_for(1ms)) {
            const LMX11Reading reading = read();
            qsizetype reached = 0;
            while (reached < windows.size() && condition(reading.windows[reached], reached))
                ++reached;
            if (reached == windows.size())
                return;
            if (secondsSince(start) > 20)
                throw std::runtime_error("a window does not get where it belongs: " +
                                         describe(reading.windows[reached], reached));
        }
    }

    QList<xcb_window_t> windows;

private:
    bool isAnyManaged() {
        const LMX11PropertyRequest list(*m_connection, m_connection->root(),
                                        m_connection->ewmhAtoms()._NET_CLIENT_LIST);
        const LMX11Property managed = list.receive(*m_connection);
        return std::ranges::any_of(windows, [&](auto it) { return managed.containsWord(it); });
    }
    static std::string describe(const LMX11Window& window, qsizetype index) {
        const QRect frame = window.geometry.frame();
        return std::to_string(index) + " at " + LMStringFromRect(QRectF(frame)).toStdString();
    }

    LMLogger m_logger = LMLogger::withCallback([](LMLogLevel, const QString&, const auto&) {});
    QString m_reason;
    QProcess m_process;
    std::unique_ptr<LMX11Connection> m_connection;
};

/// The client's application as the engine knows it.
class Engine {
public:
    Engine() {
        for (const LMRunningApplication& running : m_desktop->applications().runningApplications())
            if (running.bundleIdentifier == u"bench")
                application = LMApplication::applicationWithRunningApplication(m_context, running);
        if (!application)
            throw std::runtime_error("the client is no application");
        // What belongs to a workspace is kept when a command's leftovers are discarded.
        m_context.insertObject<LMWorkspace>()->addApplicationsObject(application);
    }
    void discard() { m_context.discardTransientObjects(); }

private:
    QString m_reason;
    LMLogger m_logger = LMLogger::withCallback([](LMLogLevel, const QString&, const auto&) {});
    std::unique_ptr<LMDesktop> m_desktop = LMX11Backend().create(m_logger, &m_reason);
    LMTestEnvironment m_test{*m_desktop};
    std::unique_ptr<LMObjectModel> m_model = LMRookModel();
    LMObjectContext m_context{*m_model, m_test.environment};

public:
    LMApplication* application = nullptr;
};

void readWindows(benchmark::State& state) {
    Client client(int(state.range(0)));
    Engine engine;
    for (auto _ : state) {
        const std::size_t count = engine.application->currentWindows().size();
        if (count != std::size_t(state.range(0)))
            state.SkipWithError("not all windows were read");
        state.PauseTiming();
        engine.discard();
        state.ResumeTiming();
    }
    state.counters["round_trips_per_batch"] = double(client.countRoundTrips());
}
BENCHMARK(readWindows)->Arg(20)->Arg(200)->Unit(benchmark::kMillisecond)->UseRealTime();

/// Two places for each window, spread over both monitors (1920 and 1440 pixels wide) but never
/// across their edges, where marco leaves no window. About two windows lie over each other at any
/// spot; each crosses over to the other half of the rows.
QRect place(qsizetype index, bool isSecond) {
    const int number = isSecond ? 99 - int(index) : int(index);
    const int column = number % 10;
    const QPoint corner(column * 300 + (column < 6 ? 15 : 135), 25 + number / 10 * 70);
    const QSize size(280 + 2 * (number / 10), 150 + column);
    return isSecond ? QRect(corner + QPoint(40, 11), size + QSize(31, 23)) : QRect(corner, size);
}

/// One process per window, as a script does it; wmctrl wants the size inside the decorations.
double moveWithWmctrl(Client& client, bool isSecond) {
    const LMX11Reading reading = client.read();
    QString script;
    for (qsizetype index = 0; index < client.windows.size(); ++index) {
        const LMX11Geometry& geometry = reading.windows[index].geometry;
        const QSize decorations = geometry.frame().size() - geometry.client.size();
        const QRect frame = place(index, isSecond);
        script += u"wmctrl -i -r %1 -e 0,%2,%3,%4,%5\n"_s.arg(client.windows[index])
                      .arg(frame.x())
                      .arg(frame.y())
                      .arg(frame.width() - decorations.width())
                      .arg(frame.height() - decorations.height());
    }
    const auto start = Clock::now();
    QProcess::execute(u"sh"_s, {u"-c"_s, script});
    client.waitUntil([isSecond](const LMX11Window& window, qsizetype index) {
        return window.geometry.frame() == place(index, isSecond);
    });
    return secondsSince(start);
}

/// The two passes of a restore; the clock skips the pauses in and between them.
double moveWithRook(Client& client, Engine& engine, bool isSecond) {
    const auto start = Clock::now();
    engine.application->restoreWindowPositions();
    engine.application->restoreWindowSizes();
    client.waitUntil([isSecond](const LMX11Window& window, qsizetype index) {
        return window.geometry.frame() == place(index, isSecond);
    });
    return secondsSince(start);
}

/// Both in turns, so that the machine's other work burdens both.
void moveWindows(benchmark::State& state) {
    Client client(100);
    Engine engine;
    for (LMWindow* window : engine.application->currentWindows())
        engine.application->addWindowsObject(LMStoredWindow::storedWindowWithWindow(window));
    double withWmctrl = 0;
    double withRook = 0;
    for (auto _ : state) {
        withWmctrl += moveWithWmctrl(client, false);
        for (LMStoredWindow* stored : engine.application->orderedWindows()) {
            const QString number = stored->title().section(u' ', -1);
            stored->setFrame(place(number.toInt() - 1, true));
        }
        const double seconds = moveWithRook(client, engine, true);
        withRook += seconds;
        state.SetIterationTime(seconds);
        engine.discard();
    }
    state.counters["wmctrl_ms"] =
        benchmark::Counter(1000 * withWmctrl, benchmark::Counter::kAvgIterations);
    state.counters["share_of_wmctrl"] = withRook / withWmctrl;
}
BENCHMARK(moveWindows)->Unit(benchmark::kMillisecond)->UseManualTime()->Iterations(5);

} // namespace

int main(int argc, char* argv[]) {
    const QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
