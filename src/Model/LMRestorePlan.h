// SPDX-License-Identifier: MIT
#pragma once

#include "Model/LMWindowMatcher.h"

#include <vector>

class LMRegexCache;
class LMStoredWindow;
class LMWindow;

/// A live window and the stored window whose frame it takes.
struct LMWindowAssignment {
    LMWindow* window = nullptr;
    LMWindowMatch match; ///< Without a stored window, the live window stays where it is.
};

/// What a restore of one application does with its windows. The pointers are those it was made of.
struct LMRestorePlan {
    std::vector<LMWindowAssignment> assignments;         ///< One per live window, in their order.
    std::vector<LMStoredWindow*> unmatchedStoredWindows; ///< In the order the pass left them in.
};

/// Decides for each live window in turn. One stored window may serve several live windows. Changes
/// nothing: restoring applies the answer, a dry run shows it.
LMRestorePlan LMPlanRestore(const std::vector<LMWindow*>& liveWindows,
                            const std::vector<LMStoredWindow*>& orderedStoredWindows,
                            LMRegexCache& regexCache);
