// SPDX-License-Identifier: MIT
#include "Controller/LMRestoreEvents.h"

#include "Controller/LMRestoreCommands.h"
#include "Controller/LMUserInterface.h"
#include "Controller/LMWorkspaceList.h"
#include "Model/LMApplication.h"
#include "Model/LMDisplay.h"
#include "Model/LMStoredWindowsStore.h"
#include "Model/LMWorkspace.h"
#include "Platform/LMDesktop.h"
#include "Platform/LMEnvironment.h"
#include "Utilities/LMFormat.h"
#include "Utilities/LMLogger.h"
#include "Utilities/LMUserDefaults.h"
#include "Utilities/LMUserDefaultsKeys.h"

#include <algorithm>
#include <utility>

using namespace std::chrono_literals;
namespace Keys = LMUserDefaultsKeys;

LMRestoreEvents::LMRestoreEvents(const LMCommandParts& parts, LMRestoreCommands& restoreCommands)
    : m_parts(parts), m_restoreCommands(restoreCommands) {
    m_retry.setInterval(250ms);
    connect(&m_retry, &QTimer::timeout, this, &LMRestoreEvents::handleWaiting);
}

void LMRestoreEvents::registerForNotifications() {
    LMDesktop& desktop = m_parts.environment.desktop;
    connect(&desktop.applications(), &LMApplications::applicationLaunched, this,
            &LMRestoreEvents::userLaunchedApplication);
    connect(&desktop.screens(), &LMScreens::screenParametersChanged, this,
            &LMRestoreEvents::applicationDidChangeDisplayParameters);
    // The change to the other state and back reached us as one: what was seen last is that state.
    connect(&desktop.screens(), &LMScreens::screensFlickered, this,
            [this] { m_previousDisplayConfiguration.clear(); });
}

void LMRestoreEvents::recordDisplayConfiguration() {
    m_previousDisplayConfiguration = LMDisplay::currentBounds(m_parts.environment);
}

// --- launches -------------------------------------------------------------------------------

std::chrono::milliseconds LMRestoreEvents::launchRestoreDelay(double seconds) {
    constexpr double Longest = 3600; // Whoever waits longer has meant something else.
    // A comparison with what is not a number is false.
    const double sensible = seconds > 0 ? std::min(seconds, Longest) : 0;
    return std::chrono::milliseconds(std::llround(sensible * 1000));
}

void LMRestoreEvents::userLaunchedApplication(const QString& bundleIdentifier) {
    const LMUserDefaults& userDefaults = m_parts.environment.userDefaults;
    if (!userDefaults.boolForKey(Keys::RestoreWindowsAsApplicationsLaunch))
        return;
    const LMWorkspace* workspace = m_parts.workspaceList.currentWorkspace();
    if (!workspace)
        return;
    const Launch launch{workspace->objectID(), bundleIdentifier};
    const double delay = userDefaults.doubleForKey(Keys::ApplicationLaunchRestoreDelay);
    QTimer::singleShot(launchRestoreDelay(delay), this, [this, launch] { restore(launch); });
}

void LMRestoreEvents::restore(const Launch& launch) {
    if (LMIsOccupied(m_parts)) {
        if (!m_waitingLaunches.contains(launch))
            m_waitingLaunches.append(launch);
        m_retry.start();
        return;
    }
    LMObjectContext& context = m_parts.store.managedObjectContext();
    auto* workspace = static_cast<LMWorkspace*>(context.existingObjectWithID(launch.workspace));
    const LMApplication* application =
        workspace ? workspace->applicationForBundleIdentifier(launch.bundleIdentifier) : nullptr;
    if (!application)
        return;
    m_parts.environment.logger.info(QStringLiteral("%@ was launched: restoring its windows"),
                                    {launch.bundleIdentifier});
    const LMActivityScope activity(
        m_parts.environment,
        LMFormat(LMLocalized("Restoring Windows for %@…"), {application->name()}));
    const LMTransientScope transients(context);
    workspace->restoreWindowsForApplication(launch.bundleIdentifier);
}

// --- displays -------------------------------------------------------------------------------

void LMRestoreEvents::applicationDidChangeDisplayParameters() {
    if (!LMIsOccupied(m_parts)) {
        handleDisplayChange();
        return;
    }
    m_hasWaitingDisplayChange = true;
    m_retry.start();
}

void LMRestoreEvents::handleDisplayChange() {
    const QStringList displays = LMDisplay::currentBounds(m_parts.environment);
    if (LMDisplayBoundsAreEqual(displays, m_previousDisplayConfiguration))
        return;
    m_parts.environment.logger.info(QStringLiteral("The displays have changed: %@"),
                                    {displays.join(QStringLiteral(", "))});
    m_parts.userInterface.closeStoredWindowPicker();
    if (m_parts.environment.userDefaults.boolForKey(Keys::RestoreWindowsAutomatically))
        m_restoreCommands.restoreWindows(true);
    m_previousDisplayConfiguration = displays;
    m_parts.userInterface.reloadTableViews();
}

void LMRestoreEvents::handleWaiting() {
    if (LMIsOccupied(m_parts))
        return;
    m_retry.stop();
    if (std::exchange(m_hasWaitingDisplayChange, false))
        handleDisplayChange();
    for (const Launch& launch : std::exchange(m_waitingLaunches, {}))
        restore(launch);
}
