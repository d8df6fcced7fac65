// SPDX-License-Identifier: MIT
#include "Model/LMStoredWindow.h"
#include "Model/LMWindow.h"
#include "Model/LMWindowLikeness.h"
#include "Model/LMWindowMatcher.h"
#include "Platform/LMEnvironment.h"

#include <algorithm>

namespace {

// All ones in 32 bits: no recorded title is the live one. The true distance is of no use to anyone.
constexpr quint64 noExactTitle = 4294967295;

} // namespace

unsigned LMStoredWindow::windowMatchScore(const LMWindow& live) const {
    unsigned best = 0;
    for (const LMWindow* window : m_matchingWindows)
        best = std::max(best, live.windowMatchScore(*window));
    return best + (matchesRegularExpression(live) ? LMPatternScore : 0U);
}

bool LMStoredWindow::matchesRegularExpression(const LMWindow& live) const {
    return environment().regexCache.isMatched(live.title(), m_titleRegularExpression);
}

quint64 LMStoredWindow::titleStringEditDistance(const LMWindow& live) const {
    const bool isKnown = std::any_of(
        m_matchingWindows.begin(), m_matchingWindows.end(),
        [&](const LMWindow* window) { return LMTitleIsExact(window->title(), live.title()); });
    return isKnown ? 0 : noExactTitle;
}

LMWindow* LMStoredWindow::identicalMatchingWindow(const LMWindow& live) const {
    const auto found =
        std::find_if(m_matchingWindows.begin(), m_matchingWindows.end(),
                     [&](const LMWindow* window) { return window->isIdenticalToWindow(live); });
    return found == m_matchingWindows.end() ? nullptr : *found;
}

void LMStoredWindow::addMatchingWindow(LMWindow* live) {
    if (!identicalMatchingWindow(*live))
        addMatchingWindowsObject(live);
    live->restoreWithWindow(*this);
}
