// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/LMActivity.h"
#include "Platform/LMApplications.h"
#include "Utilities/LMStringAdditions.h"

#include <QList>
#include <QStringList>

#include <optional>

class LMClock;
class LMDesktop;
class LMFolders;
class LMKnownApplications;
class LMLogger;
class LMNotificationCenter;
class LMScriptHost;
class LMUpdater;
class LMUserDefaults;

/// Which applications were hidden or shown on the way, so that it can be undone. Nothing is kept
/// across launches.
struct LMHidingState {
    std::optional<QList<LMRunningApplication>> storedHiddenApplications;
    std::optional<QList<LMRunningApplication>> storedUnhiddenApplications;
    bool fileManagerHiddenStatus = false;
    std::optional<QString> temporarilyUnhiddenApplication; ///< Bundle identifier.
};

/// Everything the model and the controller reach that is not their own: built once in main or in a
/// test, owned there, and outliving whoever holds a reference to it. Two environments can live in
/// one process.
struct LMEnvironment {
    LMDesktop& desktop;
    LMUserDefaults& userDefaults;
    LMFolders& folders;
    LMClock& clock;
    LMLogger& logger;
    LMNotificationCenter& notificationCenter;
    const LMKnownApplications& knownApplications;

    /// Path of the property list with the identifiers of applications that are never handled.
    QString blockedApplicationsPath = QStringLiteral(":/rook/Blocked Applications.plist");
    /// The identifier under which this program's own windows appear.
    QString ownBundleIdentifier = QStringLiteral("org.rook.Rook");

    // Kept for the life of the process.
    LMHidingState hiding{};
    std::optional<QStringList> blockedApplications{}; ///< Built on first use.
    double floatingWindowActivationDelay = -1.0;      ///< Microseconds; -1 until read.
    LMRegexCache regexCache{};
    LMActivity activity{};

    /// Where there is none, no script counts as one that compiles.
    LMScriptHost* scriptHost = nullptr;
    /// Where there is none, nobody can tell whether there is a newer version.
    LMUpdater* updater = nullptr;
};
