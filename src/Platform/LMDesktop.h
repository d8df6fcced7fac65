// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/LMAccessibility.h"
#include "Platform/LMAppearance.h"
#include "Platform/LMApplications.h"
#include "Platform/LMHotKeys.h"
#include "Platform/LMScreens.h"
#include "Platform/LMWindowServer.h"
#include "Platform/LMWindowStates.h"

#include <QObject>
#include <QStringList>

/// The answer to "may and can we move other applications' windows?".
struct LMPermission {
    bool isTrusted = false;
    QStringList missing; ///< What is missing, one plain sentence or protocol name each.
};

/// Something a back end can or cannot do, for people and scripts to read.
struct LMCapability {
    QString name; ///< Stable key, for example "arrangeDisplays".
    bool isSupported = false;
};

/// The whole outside world of the program, behind one door per subject.
///
/// One back end implements it. The references stay valid as long as the desktop lives, but every
/// call may answer that the connection is gone.
class LMDesktop : public QObject {
    Q_OBJECT
public:
    /// The back end's name, for people ("X11").
    virtual QString backendName() const = 0;

    virtual LMAccessibility& accessibility() = 0;
    virtual LMWindowServer& windowServer() = 0;
    virtual LMWindowStates& windowStates() = 0;
    virtual LMScreens& screens() = 0;
    virtual LMApplications& applications() = 0;
    virtual LMHotKeys& hotKeys() = 0;

    /// Asked afresh on every call: a window manager may come and go.
    virtual LMPermission checkPermission() = 0;

    /// Fixed set of names, the same for every back end.
    virtual QList<LMCapability> capabilities() const = 0;

    /// Name and version of the window manager in force; empty when there is none.
    virtual QString windowManagerName() const = 0;

    /// Whether the display system itself has a place for status icons now. Places that are reached
    /// over the session bus do not count: those work the same everywhere.
    virtual bool hasSystemTray() = 0;

    /// How windows should look. Asked afresh on every call.
    virtual LMAppearance appearance() = 0;

Q_SIGNALS:
    /// The back end has lost its server for good. Emitted once.
    void connectionLost(const QString& reason);

    /// There is such a place from now on, for the first time or again.
    void systemTrayAppeared();

protected:
    using QObject::QObject;
};
