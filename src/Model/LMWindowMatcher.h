// SPDX-License-Identifier: MIT
#pragma once

#include "Model/LMWindowLikeness.h"

#include <QString>

#include <cstddef>
#include <memory>
#include <unordered_map>
#include <vector>

class LMRegexCache;
class LMStoredWindow;
class LMWindow;

/// What a stored window's score gains when its pattern matches: more than all likeness together.
inline constexpr unsigned LMPatternScore = 6;

/// What decided between stored windows of the same score.
enum class LMTieBreak {
    None,  ///< No other stored window had the score.
    Title, ///< The others knew the title less exactly.
    Order, ///< The others stood later in the list.
};

/// The stored window that a live window takes, and why.
struct LMWindowMatch {
    LMStoredWindow* storedWindow = nullptr; ///< None when nothing scored above 0.
    unsigned score = 0;                     ///< 0 to 11: that of the likeness, 6 for the pattern.
    LMWindowLikeness likeness;              ///< To the recorded window that is most like it.
    bool pattern = false;                   ///< The pattern matches the live title.
    LMTieBreak tieBreak = LMTieBreak::None;
};

/// Decides which stored window a live window takes: the one rule that restoring, planning and
/// LMApplication::bestMatchForWindow share.
///
/// Serves one pass over the live windows of an application. What the stored windows look like is
/// read once, in the constructor. A pattern that once ran out of its time counts as not matching
/// for the rest of the pass.
class LMWindowMatcher {
public:
    /// The candidates in priority order. They, and the cache, outlive the matcher.
    LMWindowMatcher(const std::vector<LMStoredWindow*>& candidates, LMRegexCache& regexCache);
    ~LMWindowMatcher();
    Q_DISABLE_COPY_MOVE(LMWindowMatcher)

    /// The candidate with the greatest score; of equal ones the one that knows the title exactly,
    /// then the earlier one. It goes to the end of the list, so that on a later tie the others come
    /// before it. A candidate with the score 0 is never taken.
    LMWindowMatch bestMatchForWindow(const LMWindow& live);

    /// The candidates as they are ordered now.
    std::vector<LMStoredWindow*> candidates() const;

private:
    struct Pattern;
    struct Candidate;

    Pattern* patternWithText(const QString& text);
    bool isMatched(Pattern& pattern, const QString& title);
    LMWindowMatch compare(const Candidate& candidate, const LMWindowTraits& live,
                          const QString& title, unsigned scoreToReach);

    LMRegexCache& m_regexCache;
    LMWindowTraitsTable m_traitsTable;
    std::unordered_map<QString, std::unique_ptr<Pattern>> m_patterns;
    std::vector<std::unique_ptr<Candidate>> m_candidates; ///< In their present order.
    std::size_t m_window = 0;                             ///< Counts the live windows of the pass.
};
