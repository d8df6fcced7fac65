// SPDX-License-Identifier: MIT
#include "Model/LMWindowMatcher.h"

#include "Model/LMStoredWindow.h"
#include "Model/LMWindow.h"
#include "Utilities/LMStringAdditions.h"

#include <algorithm>

/// A pattern, shared by all candidates that have it, and its verdict on the present live window.
struct LMWindowMatcher::Pattern {
    QString text;
    bool ranOut = false;
    bool isMatched = false;
    std::size_t window = 0; ///< The live window that isMatched is about.
};

struct LMWindowMatcher::Candidate {
    LMStoredWindow* storedWindow = nullptr;
    Pattern* pattern = nullptr; ///< None without one.
    std::vector<LMWindowTraits> recorded;

    LMWindowLikeness likenessToWindow(const LMWindowTraits& live) const;
    bool knowsTitle(const LMWindowTraits& live) const;
};

LMWindowLikeness LMWindowMatcher::Candidate::likenessToWindow(const LMWindowTraits& live) const {
    LMWindowLikeness best;
    for (const LMWindowTraits& window : recorded) {
        const LMWindowLikeness likeness = LMCompareWindows(live, window);
        if (likeness.score() > best.score())
            best = likeness;
    }
    return best;
}

bool LMWindowMatcher::Candidate::knowsTitle(const LMWindowTraits& live) const {
    return std::any_of(recorded.begin(), recorded.end(),
                       [&](const LMWindowTraits& window) { return LMTitleIsExact(window, live); });
}

LMWindowMatcher::LMWindowMatcher(const std::vector<LMStoredWindow*>& candidates,
                                 LMRegexCache& regexCache)
    : m_regexCache(regexCache) {
    m_candidates.reserve(candidates.size());
    for (LMStoredWindow* storedWindow : candidates) {
        auto candidate = std::make_unique<Candidate>();
        candidate->storedWindow = storedWindow;
        candidate->pattern = patternWithText(storedWindow->titleRegularExpression());
        for (const LMWindow* window : std::as_const(*storedWindow).matchingWindows())
            candidate->recorded.push_back(m_traitsTable.traitsOfWindow(*window));
        m_candidates.push_back(std::move(candidate));
    }
}

LMWindowMatcher::~LMWindowMatcher() = default;

LMWindowMatcher::Pattern* LMWindowMatcher::patternWithText(const QString& text) {
    if (!m_regexCache.isValid(text))
        return nullptr;
    std::unique_ptr<Pattern>& pattern = m_patterns[text];
    if (!pattern)
        pattern = std::make_unique<Pattern>(Pattern{text});
    return pattern.get();
}

bool LMWindowMatcher::isMatched(Pattern& pattern, const QString& title) {
    if (pattern.ranOut)
        return false;
    if (pattern.window == m_window)
        return pattern.isMatched;
    const LMRegex& regex = m_regexCache.regex(pattern.text);
    pattern.window = m_window;
    pattern.isMatched = regex.isMatched(title);
    pattern.ranOut = regex.ranOut();
    return pattern.isMatched;
}

LMWindowMatch LMWindowMatcher::compare(const Candidate& candidate, const LMWindowTraits& live,
                                       const QString& title, unsigned scoreToReach) {
    LMWindowMatch match;
    match.storedWindow = candidate.storedWindow;
    match.likeness = candidate.likenessToWindow(live);
    match.score = match.likeness.score();
    // The search is by far the costliest step: it is left out where it could not change a thing.
    if (candidate.pattern && match.score + LMPatternScore >= scoreToReach)
        match.pattern = isMatched(*candidate.pattern, title);
    if (match.pattern)
        match.score += LMPatternScore;
    return match;
}

LMWindowMatch LMWindowMatcher::bestMatchForWindow(const LMWindow& live) {
    ++m_window;
    const QString title = live.title();
    const LMWindowTraits traits = m_traitsTable.traitsOfWindow(live);
    LMWindowMatch best;
    bool bestKnowsTitle = false;
    auto bestCandidate = m_candidates.end();
    for (auto candidate = m_candidates.begin(); candidate != m_candidates.end(); ++candidate) {
        const LMWindowMatch match = compare(**candidate, traits, title, best.score);
        if (match.score == 0 || match.score < best.score)
            continue;
        const bool knowsTitle = (*candidate)->knowsTitle(traits);
        LMTieBreak tieBreak = LMTieBreak::None;
        if (match.score == best.score)
            tieBreak = knowsTitle == bestKnowsTitle ? LMTieBreak::Order : LMTieBreak::Title;
        if (match.score > best.score || (knowsTitle && !bestKnowsTitle)) {
            best = match;
            bestKnowsTitle = knowsTitle;
            bestCandidate = candidate;
        }
        best.tieBreak = std::max(best.tieBreak, tieBreak);
    }
    if (bestCandidate != m_candidates.end())
        std::rotate(bestCandidate, bestCandidate + 1, m_candidates.end());
    return best;
}

std::vector<LMStoredWindow*> LMWindowMatcher::candidates() const {
    std::vector<LMStoredWindow*> result;
    result.reserve(m_candidates.size());
    for (const auto& candidate : m_candidates)
        result.push_back(candidate->storedWindow);
    return result;
}
