// SPDX-License-Identifier: MIT
#include "Utilities/LMStringAdditions.h"

#include <QStringView>

#include <unicode/regex.h>

#include <algorithm>
#include <ctime>
#include <limits>
#include <optional>

namespace {

// Processor time, not wall time: a busy machine must not change what matches.
constexpr std::clock_t firstTimeLimit = CLOCKS_PER_SEC / 1000 * 50;
constexpr std::clock_t lastTimeLimit = CLOCKS_PER_SEC / 1000;
constexpr std::int32_t stackLimit = 8'000'000; // bytes
constexpr qsizetype longestPattern = 10'000;
constexpr qsizetype alwaysTriedLength = 1000;
constexpr std::size_t mostPatternsCached = 1024;
// A search may look at this many characters between two looks at the clock.
constexpr std::int64_t charactersPerClockCheck = 1'000'000;

} // namespace

struct LMRegex::Private {
    explicit Private(const QString& text) : pattern(text) { compile(); }

    void compile();
    bool matches(const QString& text);
    bool mayContinue();
    bool mayContinueSearch();

    QString pattern;
    std::unique_ptr<icu::RegexMatcher> matcher;
    bool isValid = false;
    bool ranOut = false;
    std::clock_t timeLimit = firstTimeLimit;
    qsizetype longestText = std::numeric_limits<std::int32_t>::max();

    // State of one match.
    icu::UnicodeString alias; ///< Refers to the text being matched without a copy.
    std::optional<std::clock_t> deadline;
    std::int64_t positionsPerClockCheck = 1;
    std::int64_t positionsUntilClockCheck = 1;
};

void LMRegex::Private::compile() {
    if (pattern.isEmpty() || pattern.size() > longestPattern)
        return;
    UErrorCode status = U_ZERO_ERROR;
    const QStringView units(pattern);
    const icu::UnicodeString source(false, units.utf16(), static_cast<std::int32_t>(units.size()));
    matcher = std::make_unique<icu::RegexMatcher>(source, 0, status);
    static constexpr auto privateOf = [](const void* context) -> Private& {
        return *static_cast<Private*>(const_cast<void*>(context));
    };
    // ICU asks about the match every 10,000 backtracking states, and about the search at every
    // position where it starts another match.
    matcher->setMatchCallback(
        [](const void* context, std::int32_t) -> UBool {
            return privateOf(context).mayContinue() ? 1 : 0;
        },
        this, status);
    matcher->setFindProgressCallback(
        [](const void* context, std::int64_t) -> UBool {
            return privateOf(context).mayContinueSearch() ? 1 : 0;
        },
        this, status);
    matcher->setStackLimit(stackLimit, status);
    isValid = U_SUCCESS(status);
    if (!isValid)
        matcher.reset();
}

bool LMRegex::Private::mayContinue() {
    const std::clock_t now = std::clock();
    if (!deadline)
        deadline = now + timeLimit;
    return now < *deadline;
}

bool LMRegex::Private::mayContinueSearch() {
    if (--positionsUntilClockCheck > 0)
        return true;
    positionsUntilClockCheck = positionsPerClockCheck;
    return mayContinue();
}

bool LMRegex::Private::matches(const QString& text) {
    const QStringView units(text);
    ranOut = isValid && units.size() > longestText;
    if (!isValid || ranOut || text.isNull())
        return false;
    if (!matcher)
        compile();

    alias.setTo(false, units.utf16(), static_cast<std::int32_t>(units.size()));
    deadline.reset();
    positionsPerClockCheck = 1 + charactersPerClockCheck / (1 + units.size());
    positionsUntilClockCheck = positionsPerClockCheck;
    UErrorCode status = U_ZERO_ERROR;
    matcher->reset(alias);
    const bool isMatch = matcher->find(status);
    if (U_SUCCESS(status))
        return isMatch;

    ranOut = true;
    timeLimit = std::max(timeLimit / 2, lastTimeLimit);
    longestText = std::max(units.size() / 2, alwaysTriedLength);
    matcher.reset(); // It keeps the memory its backtracking took.
    return false;
}

LMRegex::LMRegex(const QString& pattern) : d(std::make_unique<Private>(pattern)) {}
LMRegex::LMRegex(LMRegex&&) noexcept = default;
LMRegex& LMRegex::operator=(LMRegex&&) noexcept = default;
LMRegex::~LMRegex() = default;

bool LMRegex::isValid() const {
    return d && d->isValid;
}
bool LMRegex::isMatched(const QString& text) const {
    return d && d->matches(text);
}
bool LMRegex::ranOut() const {
    return d && d->ranOut;
}

const LMRegex& LMRegexCache::regex(const QString& pattern) {
    const auto known = m_patterns.find(pattern);
    if (known != m_patterns.end())
        return known->second;
    if (m_patterns.size() >= mostPatternsCached)
        m_patterns.clear();
    return m_patterns.try_emplace(pattern, pattern).first->second;
}

bool isRegexValid(const QString& pattern) {
    return LMRegex(pattern).isValid();
}

bool isMatchedByRegexString(const QString& text, const QString& pattern) {
    return LMRegex(pattern).isMatched(text);
}
