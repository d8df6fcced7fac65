// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

class LMUserInterface;
struct LMEnvironment;
struct LMUpdateResult;

/// When newer versions are looked for, and how the user learns of them: by a message of the
/// desktop's notification service, which waits for nobody.
class LMUpdateChecks : public QObject {
    Q_OBJECT
public:
    /// Both outlive this object.
    LMUpdateChecks(LMEnvironment& environment, LMUserInterface& userInterface);

    /// If the user wants that. Says something only when there is a newer version.
    void checkAtLaunch();
    /// The user asked, and gets an answer.
    void checkForUpdates();

private:
    void report(const LMUpdateResult& result);

    LMEnvironment& m_environment;
    LMUserInterface& m_userInterface;
    bool m_hasUserAsked = false;
};
