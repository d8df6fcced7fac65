// SPDX-License-Identifier: MIT
#include "Controller/LMAlerts.h"

#include "Controller/LMUserInterface.h"
#include "Platform/LMEnvironment.h"
#include "Utilities/LMFormat.h"
#include "Utilities/LMNotificationCenter.h"
#include "Utilities/LMUserDefaults.h"

namespace {

/// Answers as if the first button was pressed when the alert is suppressed.
int run(LMEnvironment& environment, LMUserInterface& userInterface,
        const LMSuppressibleAlert& alert, const QStringList& buttons) {
    if (environment.userDefaults.boolForKey(alert.suppressionKey))
        return LMAlertAnswer::FirstButton;
    userInterface.activateIgnoringOtherApplications();
    const LMAlertAnswer answer =
        userInterface.runModal({alert.message, alert.informativeText, buttons, true});
    if (answer.isSuppressionTicked) {
        environment.userDefaults.setObject(alert.suppressionKey, true);
        environment.notificationCenter.postNotification(LMNotification::SupressedAlertsChanged);
    }
    return answer.buttonCode;
}

} // namespace

int LMRunReplaceConfirmation(LMEnvironment& environment, LMUserInterface& userInterface,
                             const LMSuppressibleAlert& alert) {
    return run(environment, userInterface, alert, {LMLocalized("Replace"), LMLocalized("Cancel")});
}

void LMRunSuccessMessage(LMEnvironment& environment, LMUserInterface& userInterface,
                         const LMSuppressibleAlert& alert) {
    run(environment, userInterface, alert, {});
}
