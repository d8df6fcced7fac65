// SPDX-License-Identifier: MIT
#include "Utilities/LMStringAdditions.h"

#include <QList>
#include <QStringView>

#include <algorithm>
#include <compare>
#include <vector>

namespace {

/// What both texts begin or end with costs nothing and need not be compared cell by cell.
void removeCommonEnds(QStringView& s, QStringView& t) {
    while (!s.isEmpty() && !t.isEmpty() && s.front() == t.front()) {
        s = s.sliced(1);
        t = t.sliced(1);
    }
    while (!s.isEmpty() && !t.isEmpty() && s.back() == t.back()) {
        s.chop(1);
        t.chop(1);
    }
}

/// rows[j] is the distance to the first j units of t; three rows are alive at a time.
std::size_t alignmentDistance(QStringView s, QStringView t) {
    const auto n = static_cast<std::size_t>(t.size());
    std::vector<std::size_t> beforePrevious(n + 1), previous(n + 1), current(n + 1);
    for (std::size_t j = 0; j <= n; ++j)
        current[j] = j;
    for (qsizetype i = 0; i < s.size(); ++i) {
        std::swap(beforePrevious, previous);
        std::swap(previous, current);
        current[0] = static_cast<std::size_t>(i) + 1;
        for (std::size_t j = 0; j < n; ++j) {
            const auto column = static_cast<qsizetype>(j);
            const bool differs = s[i] != t[column];
            current[j + 1] =
                std::min({previous[j + 1] + 1, current[j] + 1, previous[j] + (differs ? 1U : 0U)});
            const bool isTransposed =
                differs && i > 0 && j > 0 && s[i] == t[column - 1] && s[i - 1] == t[column];
            if (isTransposed)
                current[j + 1] = std::min(current[j + 1], beforePrevious[j - 1] + 1);
        }
    }
    return current[n];
}

LMOrdering ordering(int comparison) {
    return comparison < 0   ? LMOrdering::Ascending
           : comparison > 0 ? LMOrdering::Descending
                            : LMOrdering::Same;
}

struct VersionParts {
    QStringView base;
    char letter = 'z'; ///< Orders a release after its betas and alphas.
    QStringView suffix{};
};

VersionParts versionParts(QStringView version) {
    for (const char letter : {'a', 'b'}) {
        const auto pieces = version.split(QLatin1Char(letter));
        if (pieces.size() == 2)
            return {pieces[0], letter, pieces[1]};
    }
    return {version};
}

} // namespace

std::size_t editDistanceToString(const QString& s, const QString& t) {
    if (s.isNull())
        return 0;
    QStringView from(s);
    QStringView to(t);
    removeCommonEnds(from, to);
    if (from.isEmpty() || to.isEmpty())
        return static_cast<std::size_t>(from.size() + to.size());
    return alignmentDistance(from, to);
}

LMOrdering versionNumberCompare(const QString& a, const QString& b) {
    const VersionParts left = versionParts(a);
    const VersionParts right = versionParts(b);
    if (const int comparison = left.base.compare(right.base))
        return ordering(comparison);
    if (left.letter != right.letter)
        return ordering(left.letter - right.letter);
    return ordering(left.suffix.compare(right.suffix));
}
