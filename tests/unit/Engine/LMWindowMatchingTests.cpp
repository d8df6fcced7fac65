// SPDX-License-Identifier: MIT
#include "Model/LMDefaultTitlePatterns.h"
#include "Model/LMRestorePlan.h"

#include "EngineTest.h"

#include <ctime>
#include <functional>

namespace {

using testing::ElementsAre;

class MatchingTest : public EngineTest {
protected:
    LMWindow& window(const QString& title = u"Doc"_s) {
        auto* record = context.insertObject<LMWindow>();
        record->setTitle(title);
        record->setSubrole(u"AXStandardWindow"_s);
        record->setFrame({10, 20, 640, 480});
        record->setHasGrowArea(true);
        record->setChildren(QStringList{u"AXCloseButton"_s, u"AXZoomButton"_s});
        return *record;
    }
    LMStoredWindow* storedPattern(const QString& pattern, LMWindow* snapshot = nullptr) {
        auto* record = context.insertObject<LMStoredWindow>();
        record->setTitleRegularExpression(pattern);
        record->addMatchingWindows({snapshot});
        return record;
    }
    LMStoredWindow* storedWindow(const QString& title, const QString& pattern = {}) {
        return storedPattern(pattern, &window(title));
    }

    LMApplication& application = *context.insertObject<LMApplication>();
};

TEST_F(MatchingTest, ScoresLikenessOfTwoWindows) {
    using W = LMWindow;
    const QStringList otherOrder{u"AXZoomButton"_s, u"AXCloseButton"_s};
    // The score when only one of the windows is changed, and when both are.
    const std::tuple<const char*, std::function<void(W&)>, unsigned, unsigned> rows[] = {
        {"position", [](W& w) { w.setFrame(QRectF(0, 0, 640, 480)); }, 5, 5},
        {"half a pixel", [](W& w) { w.setFrame(QRectF(10, 20, 640.5, 480)); }, 4, 5},
        {"no subrole", [](W& w) { w.setSubrole(QString()); }, 4, 4},
        {"empty title", [](W& w) { w.setTitle(u""_s); }, 3, 5},
        {"no title", [](W& w) { w.setTitle(QString()); }, 3, 3},
        {"title alone", [](W& w) { w.setSubrole({}), w.setFrame(QRectF(1, 1, 1, 1)); }, 3, 4},
        {"toolbar", [](W& w) { w.setHasToolbarButton(true); }, 0, 5},
        {"grow area", [](W& w) { w.setHasGrowArea(false); }, 0, 5},
        {"document", [](W& w) { w.setHasDocument(true); }, 0, 5},
        {"child order", [&](W& w) { w.setChildren(otherOrder); }, 0, 5},
        {"no children", [](W& w) { w.setChildren(std::nullopt); }, 0, 0},
    };
    for (const auto& [name, change, score, bothScore] : rows) {
        LMWindow &a = window(), &b = window();
        change(b);
        EXPECT_EQ(a.windowMatchScore(b), score) << name;
        change(a);
        EXPECT_EQ(a.windowMatchScore(b), bothScore) << name;
    }
}

TEST_F(MatchingTest, TakesTheBestCandidateAndMovesItToTheEnd) {
    LMWindow& live = window();
    auto *a = storedWindow(u"A"_s), *b = storedWindow(u"B"_s), *c = storedWindow(u"C"_s);
    LMStoredWindow* const unlike = storedPattern(u"^other"_s);
    std::vector<LMStoredWindow*> candidates{unlike, a, b, c};
    for (LMStoredWindow* expected : {a, b, c, a})
        EXPECT_EQ(application.bestMatchForWindow(live, candidates), expected);
    EXPECT_THAT(candidates, ElementsAre(unlike, b, c, a));
}

TEST_F(MatchingTest, ScoresStoredWindowsAndSaysWhatDecided) {
    LMWindow& live = window();
    auto *exact = storedWindow(u"Doc"_s), *other = storedWindow(u"Other"_s);
    // An absent title counts as exact, wherever it stands.
    auto *untitled = storedWindow(QString()), *pattern = storedWindow(u"Other"_s, u"D"_s);
    auto *both = storedWindow(u"Doc"_s, u"^Do"_s), *broken = storedWindow(u"Doc"_s, u"(oc"_s);
    auto *any = storedPattern(u".*"_s), *unlike = storedPattern(u"^other"_s);
    using Candidates = std::vector<LMStoredWindow*>;
    const std::tuple<Candidates, LMStoredWindow*, unsigned, LMTieBreak> rows[] = {
        {{other, exact}, exact, 5, LMTieBreak::None},
        {{exact, exact}, exact, 5, LMTieBreak::Order},
        {{other, untitled, other}, untitled, 3, LMTieBreak::Title},
        {{exact, any}, any, 6, LMTieBreak::None},
        {{any, pattern}, pattern, 9, LMTieBreak::None},
        {{pattern, both}, both, 11, LMTieBreak::None},
        {{broken}, broken, 5, LMTieBreak::None},
        {{unlike}, nullptr, 0, LMTieBreak::None},
    };
    for (const auto& [candidates, best, score, tieBreak] : rows) {
        const auto match =
            LMWindowMatcher(candidates, environment.regexCache).bestMatchForWindow(live);
        EXPECT_EQ(match.storedWindow, best);
        EXPECT_EQ(match.score, score);
        EXPECT_EQ(best ? best->windowMatchScore(live) : 0, score);
        EXPECT_EQ(match.tieBreak, tieBreak);
        EXPECT_EQ(match.pattern, score >= LMPatternScore);
        EXPECT_EQ(match.likeness.title, best && best->title() == live.title());
    }
}

TEST_F(MatchingTest, PaysForACatastrophicPatternOnce) {
    std::vector<LMWindow*> live;
    for (int index = 0; index < 300; ++index)
        live.push_back(&window(QString(2000, u'a') + u'!' + QString::number(index)));
    std::vector<LMStoredWindow*> candidates(30, storedPattern(u"(a+)+$"_s));
    candidates.push_back(storedPattern(u"!7$"_s));
    const std::clock_t start = std::clock();
    const LMRestorePlan plan = LMPlanRestore(live, candidates, environment.regexCache);
    EXPECT_LT(std::clock() - start, CLOCKS_PER_SEC / 2);
    EXPECT_EQ(plan.assignments[7].match.storedWindow, candidates.back());
    EXPECT_EQ(plan.assignments[8].match.storedWindow, nullptr);
}

// Titles that get a pattern stand before it, after "->"; the others stand alone.
TEST_F(MatchingTest, DefaultPatternsFollowTheTable) {
    const std::pair<const char*, QStringList> rows[] = {
        {"firefox-esr", {u"Page -> .*"_s}},
        {"org.mozilla.firefox", {u"A"_s, u"B"_s}},
        {"com.apple.iTunes",
         {u"iTunes -> iTunes"_s, u"Song"_s, u"MiniPlayer -> MiniPlayer"_s, u"iTunes -> iTunes"_s}},
        {"com.apple.iChat", {u"Chat"_s, u"Messages -> Messages"_s, u"Messages"_s}},
        {"com.apple.reminders", {u"Reminders -> Reminders"_s}},
        {"com.apple.reminders", {u"Reminders"_s, u"Reminders"_s}},
        {"com.apple.Terminal", {u"sh \u23181 -> \u23181"_s, u"sh"_s, u"\u2318"_s, u"\u231812"_s}},
        {"com.googlecode.iterm2",
         {u"12. sh -> ^12\\."_s, u"123. sh"_s, u"ab. x"_s, u"7"_s, u"-. x"_s, QString()}},
        {"org.example.Editor", {u"Reminders"_s}},
    };
    for (const auto& [identifier, expected] : rows) {
        QStringList titles;
        for (const QString& row : expected)
            titles.append(row.section(u" -> "_s, 0, 0));
        const auto patterns = LMDefaultTitlePatterns(environment.knownApplications,
                                                     QLatin1String(identifier), titles);
        for (std::size_t index = 0; index < patterns.size(); ++index)
            titles[int(index)] += patterns[index] ? u" -> "_s + *patterns[index] : QString();
        EXPECT_EQ(titles, expected) << identifier;
    }
}

TEST_F(MatchingTest, WritesDefaultPatternsUnlessDisabled) {
    application.setBundleIdentifier(u"com.google.Chrome"_s);
    LMStoredWindow* const only = storedWindow(u"Page"_s, u"mine"_s);
    application.addWindowsObject(only);
    for (const auto& [isDisabled, pattern] : {std::pair(true, u"mine"_s), {false, u".*"_s}}) {
        defaults.setObject(Keys::DisableAutomaticTitleMatchPatternGeneration, isDisabled);
        application.addDefaultTitleMatchPatterns();
        EXPECT_EQ(only->titleRegularExpression(), pattern);
    }
}

} // namespace
