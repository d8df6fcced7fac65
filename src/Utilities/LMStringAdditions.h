// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QString>

#include <cstddef>
#include <memory>
#include <unordered_map>

/// How two values stand to each other.
enum class LMOrdering { Ascending = -1, Same = 0, Descending = 1 };

/// Optimal string alignment distance over UTF-16 code units, case-sensitive: insertion, deletion,
/// substitution and transposition of two adjacent units cost 1 each, and no substring is edited
/// twice. An absent (null) s gives 0; an absent t counts as empty.
///
/// Takes time in proportion to the product of both lengths. Who only wants to know whether the
/// distance is 0 compares the strings.
std::size_t editDistanceToString(const QString& s, const QString& t);

/// True when the pattern compiles as a regular expression of ICU syntax. Absent and empty patterns
/// are not valid.
bool isRegexValid(const QString& pattern);

/// True when the pattern is valid and matches somewhere in the text (an unanchored search without
/// options); false for an absent text. Bounded as LMRegex::isMatched is.
bool isMatchedByRegexString(const QString& text, const QString& pattern);

/// Compares version strings: the part before an "a" or "b" literally (so "1.10" stands before
/// "1.9"), then alpha before beta before release, then what follows the letter literally.
LMOrdering versionNumberCompare(const QString& a, const QString& b);

/// A compiled regular expression of ICU syntax, to be matched against many texts.
///
/// For use on one thread. An object that was moved from is not valid.
class LMRegex {
public:
    explicit LMRegex(const QString& pattern);
    LMRegex(LMRegex&&) noexcept;
    LMRegex& operator=(LMRegex&&) noexcept;
    ~LMRegex();

    /// False when the pattern does not compile; such a pattern matches nothing.
    bool isValid() const;

    /// True when the pattern matches somewhere in the text; an absent text never matches.
    ///
    /// A pattern that backtracks without end is stopped after 50 ms of processor time or 8 MB of
    /// memory and counts as no match. From then on it gets half the time, and texts more than half
    /// as long (above 1,000 code units) are not tried, so that one bad pattern cannot hold up a
    /// pass over hundreds of windows.
    bool isMatched(const QString& text) const;

    /// True when the latest isMatched() was stopped at its limit of time or memory.
    bool ranOut() const;

private:
    struct Private;
    std::unique_ptr<Private> d;
};

/// Keeps compiled patterns between matches. Belongs to whoever matches; for use on one thread.
class LMRegexCache {
public:
    /// Valid until the next call of a non-const function.
    const LMRegex& regex(const QString& pattern);

    /// isRegexValid() and isMatchedByRegexString() with a compiled pattern.
    bool isValid(const QString& pattern) { return regex(pattern).isValid(); }
    bool isMatched(const QString& text, const QString& pattern) {
        return regex(pattern).isMatched(text);
    }

private:
    std::unordered_map<QString, LMRegex> m_patterns;
};
