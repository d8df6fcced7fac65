// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

struct LMEnvironment;

/// Whether windows of other applications can be read and moved now.
class LMPermissionCheck {
public:
    explicit LMPermissionCheck(LMEnvironment& environment) : m_environment(environment) {}

    /// Asks the desktop afresh. What is missing is logged when it differs from the last answer.
    bool checkAccessibilityEnabled();

    /// What was missing at the last check, as one line; empty when nothing was.
    const QString& missing() const { return m_missing; }

private:
    LMEnvironment& m_environment;
    QString m_missing;
};
