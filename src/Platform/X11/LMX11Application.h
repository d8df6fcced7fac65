// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QString>

#include <xcb/xcb.h>

/// A running application, gathered from the windows that the window manager manages.
struct LMX11Application {
    QString bundleIdentifier; ///< Desktop-file identifier; never empty.
    QString localizedName;
    /// Stands for the whole application: its oldest process, or a synthetic identifier, see
    /// LMX11ApplicationIndex.
    qint64 processIdentifier = 0;
    /// Front to back, all virtual desktops, minimised windows included; without docks, desktops,
    /// splash screens, menus and notifications.
    QList<xcb_window_t> windows;
    /// Those left out of windows.
    QList<xcb_window_t> otherWindows;

    bool operator==(const LMX11Application&) const = default;
};
