// SPDX-License-Identifier: MIT
#include "Model/LMApplication.h"
#include "Model/LMStoredWindow.h"
#include "Model/LMStoredWindowsStore.h"
#include "Model/LMWindow.h"
#include "Model/LMWorkspace.h"
#include "Model/Store/LMObjectContext.h"
#include "support/LMFakeDesktop.h"
#include "support/LMTestEnvironment.h"
#include "UserInterface/LMStoredWindowsList.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QTreeView>

namespace {

constexpr int workspaceCount = 50;
constexpr int applicationsEach = 10;
constexpr int windowsEach = 20;

/// 10,000 stored windows with a snapshot each, in 50 workspaces of two displays.
class ManyWorkspaces {
public:
    ManyWorkspaces() {
        LMObjectContext& context = store.managedObjectContext();
        for (int i = 0; i < workspaceCount; ++i) {
            desktop.setScreens({{0, 0, 1920, 1080}, {1920, double(i), 1440, 900}});
            auto* workspace = context.insertObject<LMWorkspace>();
            for (int k = 0; k < applicationsEach; ++k)
                addApplication(context, *workspace, k);
        }
        store.saveWindows();
    }

    LMFakeDesktop desktop;
    LMTestEnvironment world{desktop};
    LMStoredWindowsStore store{world.environment};

private:
    static void addApplication(LMObjectContext& context, LMWorkspace& workspace, int number) {
        auto* application = context.insertObject<LMApplication>();
        application->setName(QStringLiteral("Application %1").arg(number));
        workspace.addApplicationsObject(application);
        for (int i = 0; i < windowsEach; ++i)
            application->addWindowsObject(
                LMStoredWindow::storedWindowWithWindow(context.insertObject<LMWindow>()));
    }
};

/// Until the list has been painted.
void openList(benchmark::State& state) {
    ManyWorkspaces many;
    for (auto _ : state) {
        LMStoredWindowsList list(many.world.environment, many.store);
        list.showWindow();
        QCoreApplication::processEvents();
        benchmark::DoNotOptimize(list.window()->grab());
    }
}
BENCHMARK(openList)->Unit(benchmark::kMillisecond);

/// One step of the wheel, painted.
void scrollList(benchmark::State& state) {
    ManyWorkspaces many;
    LMStoredWindowsList list(many.world.environment, many.store);
    list.showWindow();
    auto* view = list.window()->findChild<QTreeView*>();
    int row = 0;
    for (auto _ : state) {
        row = (row + 3) % workspaceCount;
        view->scrollTo(view->model()->index(row, 0), QAbstractItemView::PositionAtTop);
        benchmark::DoNotOptimize(view->grab());
    }
}
BENCHMARK(scrollList)->Unit(benchmark::kMillisecond);

} // namespace

// Qt wants an application object; no display is needed.
int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
