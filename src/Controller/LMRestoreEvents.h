// SPDX-License-Identifier: MIT
#pragma once

#include "Controller/LMCommandFrame.h"
#include "Model/Store/LMObjectID.h"

#include <QList>
#include <QObject>
#include <QStringList>
#include <QTimer>

#include <chrono>

class LMRestoreCommands;

/// Puts windows back without being asked: when an application launches, and when the displays
/// change.
///
/// What arrives while a command runs or an alert waits for its answer is done after that.
class LMRestoreEvents : public QObject {
    Q_OBJECT
public:
    /// Both outlive this object.
    LMRestoreEvents(const LMCommandParts& parts, LMRestoreCommands& restoreCommands);

    /// From here on the desktop's signals are followed.
    void registerForNotifications();

    /// The bounds of the displays that were attached when they were last looked at, as texts. Plain
    /// values: records would be let go as belonging to nothing.
    const QStringList& previousDisplayConfiguration() const {
        return m_previousDisplayConfiguration;
    }
    void recordDisplayConfiguration();

    /// Restores the application's windows in the workspace that is current now, after the delay
    /// that the user defaults ask for.
    void userLaunchedApplication(const QString& bundleIdentifier);

    /// Restores all windows when the configuration differs from the one last seen.
    void applicationDidChangeDisplayParameters();

    /// How long to wait after a launch; seconds that make no sense become the nearest that do.
    static std::chrono::milliseconds launchRestoreDelay(double seconds);

private:
    /// The workspace by its identifier: it may be deleted before the time comes.
    struct Launch {
        LMObjectID workspace;
        QString bundleIdentifier;

        bool operator==(const Launch&) const = default;
    };

    void restore(const Launch& launch);
    void handleDisplayChange();
    void handleWaiting();

    const LMCommandParts& m_parts;
    LMRestoreCommands& m_restoreCommands;
    QStringList m_previousDisplayConfiguration;

    QList<Launch> m_waitingLaunches;
    bool m_hasWaitingDisplayChange = false;
    QTimer m_retry; ///< Runs only while something waits.
};
