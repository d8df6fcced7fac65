// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/LMEnvironment.h"
#include "Platform/LMKnownApplications.h"
#include "support/LMFakeClock.h"
#include "support/LMPrinting.h"
#include "Utilities/LMFolders.h"
#include "Utilities/LMLogger.h"
#include "Utilities/LMNotificationCenter.h"
#include "Utilities/LMUserDefaults.h"

#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <algorithm>

/// Everything an environment is made of, for one test: folders and user defaults in a directory
/// that goes with it, a clock that stands still, and the messages logged.
struct LMTestEnvironment {
    /// The desktop, and the log that the clock writes its sleeps to, must outlive this.
    explicit LMTestEnvironment(LMDesktop& desktopIn, QStringList* log = nullptr)
        : desktop(desktopIn), clock(log) {}

    QString path(const QString& name) const { return directory.filePath(name); }

    bool hasLogged(const QString& part) const {
        return std::any_of(messages.begin(), messages.end(),
                           [&](const QString& message) { return message.contains(part); });
    }

    QTemporaryDir directory;
    QStringList messages;
    LMLogger logger = LMLogger::withCallback(
        [this](LMLogLevel, const QString& message, const auto&) { messages.append(message); });
    LMDesktop& desktop;
    LMFakeClock clock;
    LMUserDefaults userDefaults{directory.filePath(QStringLiteral("settings.ini")), logger};
    LMFolders folders{directory.path(), logger};
    LMNotificationCenter notificationCenter;
    LMKnownApplications knownApplications;
    LMEnvironment environment{desktop, userDefaults,       folders,          clock,
                              logger,  notificationCenter, knownApplications};
};
