// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QList>
#include <QSet>
#include <QString>
#include <QStringList>

#include <xcb/xcb.h>

/// Tells which applications have been launched: those that had no listed window and have one now.
///
/// A window that vanishes from the window manager's list and comes back was there before: managers
/// are replaced, and applications withdraw windows into the tray. It makes no launch unless its
/// application changes.
class LMX11LaunchWatch {
public:
    struct Window {
        xcb_window_t window = XCB_WINDOW_NONE;
        QString bundleIdentifier;
        bool isSettled = true; ///< Its identity will not become clearer.
    };

    /// All listed windows that are managed now. Answers the identifiers of what was launched; a
    /// window that is not settled is left for the next update.
    QStringList update(const QList<Window>& listed);

    /// Windows that were not listed so far will be no launches when they are.
    void ignore(const QList<xcb_window_t>& windows);

    /// The window was destroyed; its identifier may name another one from now on.
    void forget(xcb_window_t window);

private:
    QSet<QString> m_running;
    QHash<xcb_window_t, QString> m_known; ///< The application that each window was counted to.
    QSet<xcb_window_t> m_ignored;
};
