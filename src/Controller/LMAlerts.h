// SPDX-License-Identifier: MIT
#pragma once

#include <QLatin1String>
#include <QString>

class LMUserInterface;
struct LMEnvironment;

/// An alert the user can choose not to see again: the key is the user default that keeps this.
struct LMSuppressibleAlert {
    QLatin1String suppressionKey;
    QString message;
    QString informativeText;
};

/// Asks whether something stored shall be replaced and answers the button's code, that of the first
/// button ("Replace") at once when the suppression key is set. Ticking the box sets the key,
/// whichever button was pressed: from then on replacing goes ahead unasked.
int LMRunReplaceConfirmation(LMEnvironment& environment, LMUserInterface& userInterface,
                             const LMSuppressibleAlert& alert);

/// Says that something succeeded, unless the suppression key is set.
void LMRunSuccessMessage(LMEnvironment& environment, LMUserInterface& userInterface,
                         const LMSuppressibleAlert& alert);
