// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class LMUserInterface;
struct LMEnvironment;

/// Whether windows of other applications can be read and moved now.
class LMPermissionCheck {
public:
    /// Both outlive this object.
    LMPermissionCheck(LMEnvironment& environment, LMUserInterface& userInterface)
        : m_environment(environment), m_userInterface(userInterface) {}

    /// Asks the desktop afresh. What is missing is logged and shown to the user when it differs
    /// from the last answer.
    bool checkAccessibilityEnabled();

    /// What was missing at the last check, as one line; empty when nothing was.
    const QString& missing() const { return m_missing; }

private:
    LMEnvironment& m_environment;
    LMUserInterface& m_userInterface;
    QString m_missing;
};
