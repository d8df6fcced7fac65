// SPDX-License-Identifier: MIT
#include "Model/LMDefaultTitlePatterns.h"
#include "Model/LMRestorePlan.h"

#include "EngineTest.h"

#include <ctime>
#include <functional>

namespace {

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

    LMStoredWindow* storedWindow(const QString& title, const QString& pattern = {}) {
        LMStoredWindow* record = LMStoredWindow::storedWindowWithWindow(&window(title));
        record->setTitleRegularExpression(pattern);
        return record;
    }

    LMStoredWindow* storedPattern(const QString& pattern) {
        auto* record = context.insertObject<LMStoredWindow>();
        record->setTitleRegularExpression(pattern);
        return record;
    }

    LMApplication& application = *context.insertObject<LMApplication>();
};

TEST_F(MatchingTest, ScoresLikenessOfTwoWindows) {
    using W = LMWindow;
    const QStringList otherOrder{u"AXZoomButton"_s, u"AXCloseButton"_s};
    const struct {
        const char* name;
        std::function<void(W&)> change;
        unsigned score;     ///< When the second window is changed.
        unsigned bothScore; ///< When both are.
    } rows[] = {
        {"nothing", [](W&) {}, 5, 5},
        {"position", [](W& w) { w.setFrame(QRectF(0, 0, 640, 480)); }, 5, 5},
        {"half a pixel", [](W& w) { w.setFrame(QRectF(10, 20, 640.5, 480)); }, 4, 5},
        {"subrole", [](W& w) { w.setSubrole(u"AXDialog"_s); }, 4, 5},
        {"no subrole", [](W& w) { w.setSubrole(QString()); }, 4, 4},
        {"title", [](W& w) { w.setTitle(u"doc"_s); }, 3, 5},
        {"empty title", [](W& w) { w.setTitle(u""_s); }, 3, 5},
        {"no title", [](W& w) { w.setTitle(QString()); }, 3, 3},
        {"toolbar", [](W& w) { w.setHasToolbarButton(true); }, 0, 5},
        {"grow area", [](W& w) { w.setHasGrowArea(false); }, 0, 5},
        {"document", [](W& w) { w.setHasDocument(true); }, 0, 5},
        {"child order", [&](W& w) { w.setChildren(otherOrder); }, 0, 5},
        {"no children", [](W& w) { w.setChildren(std::nullopt); }, 0, 0},
    };
    for (const auto& row : rows) {
        LMWindow& a = window();
        LMWindow& b = window();
        row.change(b);
        EXPECT_EQ(a.windowMatchScore(b), row.score) << row.name;
        EXPECT_EQ(a.isIdenticalToWindow(b), row.score > 3) << row.name;
        row.change(a);
        EXPECT_EQ(a.windowMatchScore(b), row.bothScore) << row.name;
    }
    LMWindow& otherwise = window();
    otherwise.setSubrole(u""_s);
    otherwise.setFrame({10, 20, 1, 1});
    EXPECT_EQ(window().windowMatchScore(otherwise), 3U) << "equal titles alone are no identity";
}

TEST_F(MatchingTest, ScoresStoredWindows) {
    LMWindow& live = window(u"Doc 1"_s);
    const struct {
        LMStoredWindow* stored;
        unsigned score;
        quint64 distance;
    } rows[] = {
        {storedWindow(u"Doc 1"_s), 5, 0},
        {storedWindow(u"Doc 2"_s), 3, 4294967295},
        {storedWindow(QString()), 3, 0},
        {storedWindow(u"Doc 2"_s, u"^Doc \\d$"_s), 9, 4294967295},
        {storedWindow(u"Doc 1"_s, u"oc"_s), 11, 0},
        {storedWindow(u"Doc 1"_s, u"(oc"_s), 5, 0},
        {storedPattern(u".*"_s), 6, 4294967295},
        {storedPattern(QString()), 0, 4294967295},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(row.stored->windowMatchScore(live), row.score)
            << row.stored->title().toStdString();
        EXPECT_EQ(row.stored->titleStringEditDistance(live), row.distance);
    }
}

TEST_F(MatchingTest, TakesTheBestCandidateAndMovesItToTheEnd) {
    LMWindow& live = window(u"Doc"_s);
    LMStoredWindow* const a = storedWindow(u"A"_s);
    LMStoredWindow* const b = storedWindow(u"B"_s);
    LMStoredWindow* const c = storedWindow(u"C"_s);
    LMStoredWindow* const unlike = storedPattern(u"^other"_s);
    std::vector<LMStoredWindow*> candidates{unlike, a, b, c};
    for (LMStoredWindow* expected : {a, b, c, a})
        EXPECT_EQ(application.bestMatchForWindow(live, candidates), expected);
    EXPECT_EQ(candidates, (std::vector<LMStoredWindow*>{unlike, b, c, a}));

    // An equal score: an exact title wins wherever it stands, an absent one counts as exact.
    LMStoredWindow* const untitled = storedWindow(QString());
    candidates = {a, untitled, b};
    EXPECT_EQ(application.bestMatchForWindow(live, candidates), untitled);
    candidates = {unlike};
    EXPECT_EQ(application.bestMatchForWindow(live, candidates), nullptr);
    EXPECT_EQ(candidates, std::vector<LMStoredWindow*>{unlike});
}

TEST_F(MatchingTest, SaysWhatDecided) {
    LMWindow& live = window(u"Doc"_s);
    const auto decide = [&](const std::vector<LMStoredWindow*>& candidates) {
        return LMWindowMatcher(candidates, environment.regexCache).bestMatchForWindow(live);
    };
    LMStoredWindow* const exact = storedWindow(u"Doc"_s);
    LMStoredWindow* const other = storedWindow(u"Other"_s);
    EXPECT_EQ(decide({other, exact}).tieBreak, LMTieBreak::None);
    EXPECT_EQ(decide({exact, exact}).tieBreak, LMTieBreak::Order);
    EXPECT_EQ(decide({other, storedWindow(QString()), other}).tieBreak, LMTieBreak::Title);
    const LMWindowMatch match = decide({exact, storedWindow(u"Other"_s, u"D"_s)});
    EXPECT_EQ(match.score, 9U);
    EXPECT_TRUE(match.pattern && match.likeness.structure && match.likeness.size);
    EXPECT_FALSE(match.likeness.title);
    EXPECT_EQ(decide({}).storedWindow, nullptr);
}

TEST_F(MatchingTest, GivesEachDocumentItsOwnFrameWhateverTheirOrder) {
    LMStoredWindow* const one = storedWindow(u"One"_s);
    LMStoredWindow* const two = storedWindow(u"Two"_s);
    LMStoredWindow* const three = storedWindow(u"Three"_s);
    LMWindow& first = window(u"Two"_s);
    LMWindow& second = window(u"One"_s);
    const LMRestorePlan plan =
        LMPlanRestore({&first, &second}, {one, two, three}, environment.regexCache);
    ASSERT_EQ(plan.assignments.size(), 2U);
    EXPECT_EQ(plan.assignments[0].match.storedWindow, two);
    EXPECT_EQ(plan.assignments[1].match.storedWindow, one);
    EXPECT_EQ(plan.unmatchedStoredWindows, std::vector<LMStoredWindow*>{three});
}

TEST_F(MatchingTest, PaysForACatastrophicPatternOnce) {
    std::vector<LMWindow*> live;
    for (int index = 0; index < 300; ++index)
        live.push_back(&window(QString(2000, u'a') + u'!' + QString::number(index)));
    std::vector<LMStoredWindow*> candidates;
    for (int index = 0; index < 30; ++index)
        candidates.push_back(storedPattern(u"(a+)+$"_s));
    candidates.push_back(storedPattern(u"!7$"_s));
    const std::clock_t start = std::clock();
    const LMRestorePlan plan = LMPlanRestore(live, candidates, environment.regexCache);
    EXPECT_LT(std::clock() - start, CLOCKS_PER_SEC / 2);
    EXPECT_EQ(plan.assignments[7].match.storedWindow, candidates.back());
    EXPECT_EQ(plan.assignments[8].match.storedWindow, nullptr);
}

TEST(LMDefaultTitlePatterns, FollowTheTable) {
    const auto known = LMKnownApplications::fromPropertyList(u":/rook/Known Applications.plist"_s);
    const QString none;
    // clang-format off
    const struct {
        QString identifier;
        QStringList titles;
        QStringList patterns;
    } rows[] = {
        {u"firefox-esr"_s, {u"Page"_s}, {u".*"_s}},
        {u"org.mozilla.firefox"_s, {u"A"_s, u"B"_s}, {none, none}},
        {u"com.apple.iTunes"_s, {u"iTunes"_s, u"Song"_s, u"MiniPlayer"_s, u"iTunes"_s}, {u"iTunes"_s, none, u"MiniPlayer"_s, u"iTunes"_s}},
        {u"com.apple.iChat"_s, {u"Chat"_s, u"Messages"_s, u"Messages"_s}, {none, u"Messages"_s, none}},
        {u"com.apple.reminders"_s, {u"Reminders"_s}, {u"Reminders"_s}},
        {u"com.apple.reminders"_s, {u"Reminders"_s, u"Reminders"_s}, {none, none}},
        {u"com.tapbots.TweetbotMac"_s, {u"Main Window"_s, u"Main Window"_s}, {u"Main Window"_s, none}},
        {u"com.apple.Terminal"_s, {u"bash — \u23181"_s, u"bash"_s, u"\u2318"_s, u"\u231812"_s}, {u"\u23181"_s, none, none, none}},
        {u"com.googlecode.iterm2"_s, {u"12. bash"_s, u"123. bash"_s, u"ab. x"_s, u"x1"_s, u"7"_s, u"1x"_s, u" 7.a"_s, u"-. x"_s, none}, {u"^12\\."_s, none, none, none, none, u"^1x\\."_s, u"^ 7\\."_s, none, none}},
        {u"org.example.Editor"_s, {u"Reminders"_s}, {none}},
    };
    // clang-format on
    for (const auto& row : rows) {
        QStringList patterns;
        for (const auto& pattern : LMDefaultTitlePatterns(known, row.identifier, row.titles))
            patterns.append(pattern.value_or(none));
        EXPECT_EQ(patterns, row.patterns) << row.identifier.toStdString();
    }
}

TEST_F(MatchingTest, WritesDefaultPatternsUnlessDisabledAndPutsAWindowFirst) {
    application.setBundleIdentifier(u"com.google.Chrome"_s);
    application.addWindowsObject(storedWindow(u"Page"_s, u"mine"_s));
    LMStoredWindow* const only = application.orderedWindows()[0];
    defaults.setObject(LMUserDefaultsKeys::DisableAutomaticTitleMatchPatternGeneration, true);
    application.addDefaultTitleMatchPatterns();
    EXPECT_EQ(only->titleRegularExpression(), u"mine"_s);
    defaults.setObject(LMUserDefaultsKeys::DisableAutomaticTitleMatchPatternGeneration, false);
    application.addDefaultTitleMatchPatterns();
    EXPECT_EQ(only->titleRegularExpression(), u".*"_s);
    application.addWindowsObject(storedWindow(u"Second"_s));
    application.prioritiseStoredWindow(*application.orderedWindows()[1]);
    EXPECT_EQ(titles(application.orderedWindows()), u"Second, Page"_s);
}

} // namespace
