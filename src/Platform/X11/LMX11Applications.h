// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/LMApplications.h"
#include "Platform/LMIconTheme.h"
#include "Platform/X11/LMX11ApplicationIndex.h"
#include "Platform/X11/LMX11Connection.h"

#include <QHash>
#include <QSet>

#include <memory>

class LMX11WindowManager;

/// The running applications of an X11 session.
///
/// Only windows that LMX11ApplicationIndex lists count. An application is hidden when all its
/// windows that appear in task bars are minimised; when none of its windows does, when all are. A
/// window on another virtual desktop is not hidden.
class LMX11Applications final : public LMApplications {
    Q_OBJECT
public:
    /// All must outlive it.
    LMX11Applications(LMX11Connection& connection, LMX11ApplicationIndex& index,
                      LMDesktopEntries& desktopEntries, LMX11WindowManager& windowManager);

    QList<LMRunningApplication> runningApplications() override;

    /// Looks only at windows that are in sight: on the current virtual desktop, not minimised.
    bool activate(qint64 processIdentifier) override;
    bool activateOwnWindow(quint64 nativeIdentifier) override;
    bool hide(qint64 processIdentifier) override;
    bool unhide(qint64 processIdentifier) override;
    QImage iconForApplication(const QString& bundleIdentifier, int size) override;
    QString fileManagerIdentifier() override;

private:
    using Windows = QList<xcb_window_t>;

    LMActivationPolicy policyOf(const LMX11Application& application) const;
    bool isHidden(const LMX11Application& application) const;
    bool isMinimized(xcb_window_t window) const;
    Windows minimized(const Windows& windows) const;
    Windows windowsInSight(const Windows& windows) const;
    xcb_window_t mostRecentlyUsed(const Windows& windows) const;

    void requestActivation(xcb_window_t window);
    bool requestActivation(xcb_window_t window, const std::function<bool()>& isDone);
    void showWithoutFocus(const Windows& windows);
    bool waitUntil(const std::function<bool()>& isDone, std::chrono::milliseconds limit);
    QImage installedIcon(const QString& bundleIdentifier, int size);
    QString iconThemeName();

    LMX11Connection& m_connection;
    LMX11ApplicationIndex& m_index;
    LMDesktopEntries& m_desktopEntries;
    LMX11WindowManager& m_windowManager;
    QHash<QString, QSet<xcb_window_t>> m_hidden; ///< What hiding minimised, by application.
    QString m_iconThemeName;
    std::unique_ptr<LMIconTheme> m_iconTheme;
};
