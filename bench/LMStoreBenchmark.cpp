// SPDX-License-Identifier: MIT
#include "Model/LMApplication.h"
#include "Model/LMRookModel.h"
#include "Model/LMStoredWindow.h"
#include "Model/LMStoredWindowsStore.h"
#include "Model/LMWindow.h"
#include "Model/LMWorkspace.h"
#include "Model/Store/LMObjectContext.h"
#include "Model/Store/LMObjectModel.h"
#include "support/LMFakeDesktop.h"
#include "support/LMTestEnvironment.h"

#include <benchmark/benchmark.h>

namespace {

constexpr int applicationCount = 100;
constexpr int windowsPerApplication = 100;

QString text(const char* format, int number) {
    return QString::fromLatin1(format).arg(number);
}

/// A store of 10,000 stored windows with a snapshot each, as a year of use would leave it.
class LargeStore {
public:
    LargeStore() {
        LMStoredWindowsStore store(world.environment, QStringLiteral("1"));
        LMObjectContext& context = store.managedObjectContext();
        auto* workspace = context.insertObject<LMWorkspace>();
        for (int i = 0; i < applicationCount; ++i)
            addApplication(context, *workspace, i);
        store.saveWindows();
    }

    LMFakeDesktop desktop;
    LMTestEnvironment world{desktop};

private:
    static void addApplication(LMObjectContext& context, LMWorkspace& workspace, int number) {
        auto* application = context.insertObject<LMApplication>();
        application->setBundleIdentifier(text("org.example.Application%1", number));
        application->setName(text("Application %1", number));
        workspace.addApplicationsObject(application);
        for (int i = 0; i < windowsPerApplication; ++i)
            application->addWindowsObject(storedWindow(context, i));
    }

    static LMStoredWindow* storedWindow(LMObjectContext& context, int number) {
        auto* window = context.insertObject<LMWindow>();
        window->setTitle(text("Document number %1 \u2013 Editor of no renown", number));
        window->setSubrole(QStringLiteral("AXStandardWindow"));
        window->setFrame(QRectF(number, 20, 800, 600));
        window->setChildren(QStringList{QStringLiteral("AXCloseButton"),
                                        QStringLiteral("AXMinimizeButton"),
                                        QStringLiteral("AXZoomButton")});
        window->setScreenshotFilename(QStringLiteral("0a1b2c3d-0a1b-0a1b-0a1b-0a1b2c3d4e5f.png"));
        return LMStoredWindow::storedWindowWithWindow(window);
    }
};

void openStore(benchmark::State& state) {
    LargeStore large;
    for (auto _ : state) {
        auto store =
            std::make_unique<LMStoredWindowsStore>(large.world.environment, QStringLiteral("1"));
        if (!store->open())
            state.SkipWithError("the store does not open");
        state.PauseTiming();
        store.reset();
        state.ResumeTiming();
    }
}
BENCHMARK(openStore)->Unit(benchmark::kMillisecond);

void saveOneChange(benchmark::State& state) {
    LargeStore large;
    LMStoredWindowsStore store(large.world.environment, QStringLiteral("1"));
    LMStoredWindow* window = store.managedObjectContext().objects<LMStoredWindow>()[5000];
    int x = 0;
    for (auto _ : state) {
        window->setFrame(QRectF(++x, 0, 1, 1));
        store.saveWindows();
    }
}
BENCHMARK(saveOneChange)->Unit(benchmark::kMillisecond);

void saveNothing(benchmark::State& state) {
    LargeStore large;
    LMStoredWindowsStore store(large.world.environment, QStringLiteral("1"));
    (void)store.open();
    for (auto _ : state)
        store.saveWindows();
}
BENCHMARK(saveNothing)->Unit(benchmark::kMicrosecond);

} // namespace
