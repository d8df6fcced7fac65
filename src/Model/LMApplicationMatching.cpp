// SPDX-License-Identifier: MIT
#include "Model/LMApplication.h"
#include "Model/LMDefaultTitlePatterns.h"
#include "Model/LMStoredWindow.h"
#include "Model/LMWindowMatcher.h"
#include "Platform/LMEnvironment.h"
#include "Utilities/LMUserDefaults.h"
#include "Utilities/LMUserDefaultsKeys.h"

#include <algorithm>

LMStoredWindow* LMApplication::bestMatchForWindow(const LMWindow& live,
                                                  std::vector<LMStoredWindow*>& fromWindows) {
    LMWindowMatcher matcher(fromWindows, environment().regexCache);
    const LMWindowMatch match = matcher.bestMatchForWindow(live);
    fromWindows = matcher.candidates();
    return match.storedWindow;
}

void LMApplication::prioritiseStoredWindow(const LMStoredWindow& storedWindow) {
    const QString uri = storedWindow.uriRepresentation();
    QStringList ordering = m_windowsOrdering;
    ordering.removeAll(uri);
    ordering.prepend(uri);
    setWindowsOrdering(ordering);
}

LMStoredWindow* LMApplication::identicalStoredWindow(const LMWindow& live) {
    const auto found =
        std::find_if(m_windows.begin(), m_windows.end(), [&](const LMStoredWindow* window) {
            return window->identicalMatchingWindow(live);
        });
    return found == m_windows.end() ? nullptr : *found;
}

void LMApplication::addDefaultTitleMatchPatterns() {
    if (environment().userDefaults.boolForKey(
            LMUserDefaultsKeys::DisableAutomaticTitleMatchPatternGeneration))
        return;
    QStringList titles;
    for (LMStoredWindow* window : m_windows)
        titles.append(window->title());
    const std::vector<std::optional<QString>> patterns =
        LMDefaultTitlePatterns(environment().knownApplications, m_bundleIdentifier, titles);
    for (std::size_t index = 0; index < patterns.size(); ++index) {
        if (patterns[index])
            m_windows[index]->setTitleRegularExpression(*patterns[index]);
    }
}
