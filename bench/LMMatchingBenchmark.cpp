// SPDX-License-Identifier: MIT
// One matching pass over the windows of one application: as many live windows as stored ones, all
// of the same structure, listed in the opposite order.
#include "Model/LMRestorePlan.h"
#include "Model/LMRookModel.h"
#include "Model/LMStoredWindow.h"
#include "Model/LMWindow.h"
#include "Model/Store/LMObjectContext.h"
#include "Model/Store/LMObjectModel.h"
#include "support/LMFakeDesktop.h"
#include "support/LMTestEnvironment.h"

#include <benchmark/benchmark.h>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

class Windows {
public:
    /// title and pattern answer for the window of a number; a null pattern is none.
    template <class Title, class Pattern>
    Windows(int count, Title title, Pattern pattern) {
        for (int number = 0; number < count; ++number) {
            live.push_back(window(title(number)));
            stored.push_back(LMStoredWindow::storedWindowWithWindow(window(title(number))));
            stored.back()->setTitleRegularExpression(pattern(number));
        }
        std::reverse(live.begin(), live.end());
    }

    /// How many live windows found the stored window made with them.
    std::size_t countPaired(const LMRestorePlan& plan) const {
        std::size_t paired = 0;
        for (std::size_t index = 0; index < live.size(); ++index)
            paired +=
                plan.assignments[index].match.storedWindow == stored[stored.size() - 1 - index];
        return paired;
    }

    std::vector<LMWindow*> live;
    std::vector<LMStoredWindow*> stored;
    LMFakeDesktop desktop;
    LMTestEnvironment test{desktop};
    std::unique_ptr<LMObjectModel> model = LMRookModel();
    LMObjectContext context{*model, test.environment};

private:
    LMWindow* window(const QString& title) {
        auto* record = context.insertObject<LMWindow>();
        record->setTitle(title);
        record->setSubrole(QString::fromLatin1("AXStandardWindow"));
        record->setFrame({100, 100, 640, 480});
        record->setHasGrowArea(true);
        // Not shared between records, as in those that were read or loaded.
        record->setChildren(QStringList{QString::fromLatin1("AXCloseButton"),
                                        QString::fromLatin1("AXMinimizeButton"),
                                        QString::fromLatin1("AXZoomButton")});
        return record;
    }
};

void matchAll(benchmark::State& state, Windows&& windows) {
    for (auto _ : state) {
        const LMRestorePlan plan =
            LMPlanRestore(windows.live, windows.stored, windows.test.environment.regexCache);
        if (windows.countPaired(plan) != windows.live.size())
            state.SkipWithError("a window found the wrong partner");
    }
}

QString documentTitle(int number) {
    return u"Chapter %1 of the long manuscript – Editor"_s.arg(number, 4);
}

/// Titles tell the windows apart; each tenth stored window has a pattern of its user's.
void documents(benchmark::State& state) {
    matchAll(state, Windows(int(state.range(0)), documentTitle, [](int number) {
                 return number % 10 == 0 ? u"Chapter +%1 .*Editor$"_s.arg(number) : QString();
             }));
}
BENCHMARK(documents)->Arg(200)->Arg(1000)->Unit(benchmark::kMillisecond);

/// Each stored window has a pattern of its own, as those of terminals have.
void terminals(benchmark::State& state) {
    matchAll(state, Windows(
                        int(state.range(0)),
                        [](int number) { return u"%1. user@host: ~/src"_s.arg(number); },
                        [](int number) { return u"^%1\\."_s.arg(number); }));
}
BENCHMARK(terminals)->Arg(200)->Arg(1000)->Unit(benchmark::kMillisecond);

/// A pattern that backtracks without end, in every stored window, on titles that make it do so.
void catastrophicPattern(benchmark::State& state) {
    matchAll(state, Windows(
                        int(state.range(0)),
                        [](int number) { return QString(2000, u'a') + QString::number(number); },
                        [](int) { return u"(a+)+$"_s; }));
}
BENCHMARK(catastrophicPattern)->Arg(200)->Arg(1000)->Unit(benchmark::kMillisecond);

} // namespace
