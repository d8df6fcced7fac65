// SPDX-License-Identifier: MIT
#include "Model/LMRestorePlan.h"

#include "Model/LMWindow.h"

#include <unordered_set>

LMRestorePlan LMPlanRestore(const std::vector<LMWindow*>& liveWindows,
                            const std::vector<LMStoredWindow*>& orderedStoredWindows,
                            LMRegexCache& regexCache) {
    LMWindowMatcher matcher(orderedStoredWindows, regexCache);
    LMRestorePlan plan;
    std::unordered_set<const LMStoredWindow*> used;
    for (LMWindow* window : liveWindows) {
        plan.assignments.push_back({window, matcher.bestMatchForWindow(*window)});
        used.insert(plan.assignments.back().match.storedWindow);
    }
    for (LMStoredWindow* storedWindow : matcher.candidates()) {
        if (!used.contains(storedWindow))
            plan.unmatchedStoredWindows.push_back(storedWindow);
    }
    return plan;
}
