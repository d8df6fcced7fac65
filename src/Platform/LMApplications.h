// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/LMPlatformTypes.h"

#include <QImage>
#include <QObject>

/// How an application shows itself to the user.
enum class LMActivationPolicy {
    Regular = 0,    ///< Has windows that appear in task bars.
    Accessory = 1,  ///< Has windows, none of which appears in task bars.
    Prohibited = 2, ///< Panels, desktops, notifications: nothing to move.
};

/// A running application as it was when asked. Equal identifiers mean the same application,
/// however many processes it has.
struct LMRunningApplication {
    QString bundleIdentifier;     ///< On Linux the desktop entry's name without ".desktop".
    QString localizedName;        ///< For the user's eyes.
    qint64 processIdentifier = 0; ///< The oldest process stands for the whole application.
    LMActivationPolicy activationPolicy = LMActivationPolicy::Regular;
    bool isActive = false; ///< Owns the window that has the focus.
    bool isHidden = false; ///< All its windows (those in task bars, if it has such) are minimised.

    bool operator==(const LMRunningApplication&) const = default;
};

/// The running applications. Requests for an application that is gone do nothing and answer false.
class LMApplications : public QObject {
    Q_OBJECT
public:
    /// In platform order (the order of their launch), applications without windows left out.
    virtual QList<LMRunningApplication> runningApplications() = 0;

    /// Brings the application's most recently used window to the front and gives it the focus,
    /// whatever is active now. An application none of whose windows is in sight is left alone
    /// (false): no window pops up, and the user stays on the virtual desktop in view.
    virtual bool activate(qint64 processIdentifier) = 0;
    /// The same for a window of our own, by the display system's name for it (QWindow::winId).
    /// False when it did not get the focus.
    virtual bool activateOwnWindow(quint64 nativeIdentifier) = 0;

    /// Minimises all its windows, remembering which were minimised already.
    virtual bool hide(qint64 processIdentifier) = 0;

    /// Shows again those windows that hiding minimised. What the user minimised stays so.
    virtual bool unhide(qint64 processIdentifier) = 0;

    /// The application's icon with the given edge length in pixels; null when there is none.
    virtual QImage iconForApplication(const QString& bundleIdentifier, int size) = 0;

    /// The identifier of the user's file manager; empty when there is none.
    virtual QString fileManagerIdentifier() = 0;

Q_SIGNALS:
    /// An application that had no window has opened its first one.
    void applicationLaunched(const QString& bundleIdentifier);

protected:
    using QObject::QObject;
};
