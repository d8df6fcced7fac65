// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QString>

/// What a check for updates has found out.
struct LMUpdateResult {
    QString newVersion; ///< Empty when there is none newer.
    QString failure;    ///< Why nobody could tell; empty when somebody could.
};

/// Looks for newer versions of this program. Installing them is the system's business.
class LMUpdater : public QObject {
    Q_OBJECT
public:
    /// Returns at once; the answer comes as a signal. While a check goes on, another one is not
    /// begun.
    virtual void checkForUpdatesInBackground() = 0;

Q_SIGNALS:
    void checkFinished(const LMUpdateResult& result);

protected:
    using QObject::QObject;
};
