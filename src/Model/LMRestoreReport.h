// SPDX-License-Identifier: MIT
#pragma once

#include "Model/LMStoredState.h"
#include "Model/LMWindowMatcher.h"

#include <QRectF>
#include <QString>

#include <optional>
#include <vector>

class LMWorkspace;

/// Where a live window would go and why; plain values that outlive the records.
struct LMPlannedMove {
    QString label; ///< The stored window's label, else its title.
    QRectF frame;  ///< Global pixels, y down.
    unsigned score = 0;
    LMWindowLikeness likeness;
    bool pattern = false;
    LMTieBreak tieBreak = LMTieBreak::None;
    /// The state it gets; none where the frame is all there is to restore.
    std::optional<LMStoredState> state;
    /// What of the state cannot be had now: names of states, "desktop".
    QStringList notRestored;
};

struct LMPlannedWindow {
    QString title;
    QRectF frame;                         ///< Where it is now; global pixels, y down.
    std::optional<LMPlannedMove> move;    ///< None when no stored window fits: it stays.
    std::optional<LMStoredState> state{}; ///< As it is now.
};

/// A stored window that no live window takes.
struct LMUnusedStoredWindow {
    QString label;
    QRectF frame;
};

struct LMApplicationReport {
    QString bundleIdentifier;
    QString name;
    bool isLaunched = false;
    bool isStored = false; ///< The workspace has a record of it.
    std::vector<LMPlannedWindow> windows;
    std::vector<LMUnusedStoredWindow> unusedStoredWindows;
};

/// What a restore of the workspace would do, decided by the rule that restoring uses; nothing is
/// moved, shown, hidden or recorded. First the workspace's applications in its order, then those
/// that run without being stored in it, whose windows stay. With an identifier, only that
/// application; nothing when it neither runs nor is stored.
///
/// The live records that serve the comparison stay in the context until its transient objects are
/// discarded.
std::vector<LMApplicationReport> LMReportRestore(LMWorkspace& workspace,
                                                 const QString& bundleIdentifier = {});
