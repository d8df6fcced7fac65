// SPDX-License-Identifier: MIT
#include "Controller/LMUpdateChecks.h"

#include "Controller/LMDesktopMessage.h"
#include "Controller/LMUserInterface.h"
#include "Platform/LMEnvironment.h"
#include "Platform/LMUpdater.h"
#include "Utilities/LMFormat.h"
#include "Utilities/LMLogger.h"
#include "Utilities/LMUserDefaults.h"
#include "Utilities/LMUserDefaultsKeys.h"

#include <QDBusConnection>
#include <QDBusMessage>

#include <utility>

namespace {

/// Nobody waits for the answer.
void showDesktopMessage(const QString& summary, const QString& body) {
    QDBusConnection::sessionBus().send(LMDesktopMessage(summary, body));
}

} // namespace

LMUpdateChecks::LMUpdateChecks(LMEnvironment& environment, LMUserInterface& userInterface)
    : m_environment(environment), m_userInterface(userInterface) {
    if (environment.updater)
        connect(environment.updater, &LMUpdater::checkFinished, this, &LMUpdateChecks::report);
}

void LMUpdateChecks::checkAtLaunch() {
    const LMUserDefaults& userDefaults = m_environment.userDefaults;
    if (m_environment.updater && !m_userInterface.isModalWindowOpen() &&
        userDefaults.boolForKey(LMUserDefaultsKeys::SUEnableAutomaticChecks))
        m_environment.updater->checkForUpdatesInBackground();
}

void LMUpdateChecks::checkForUpdates() {
    m_hasUserAsked = true;
    if (m_environment.updater)
        m_environment.updater->checkForUpdatesInBackground();
    else
        report({{}, LMLocalized("There is nobody to ask.")});
}

void LMUpdateChecks::report(const LMUpdateResult& result) {
    const bool isWanted = std::exchange(m_hasUserAsked, false) || !result.newVersion.isEmpty();
    if (!isWanted || !m_userInterface.canShowWindows())
        return;
    if (!result.failure.isEmpty())
        showDesktopMessage(LMLocalized("Updates could not be looked for"), result.failure);
    else if (result.newVersion.isEmpty())
        showDesktopMessage(LMLocalized("Rook is up to date"), QString());
    else
        showDesktopMessage(LMFormat(LMLocalized("Rook %@ is available"), {result.newVersion}),
                           LMLocalized("Your system’s software updates install it."));
}
