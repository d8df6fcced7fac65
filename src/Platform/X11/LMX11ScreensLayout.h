// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/LMScreens.h"
#include "Platform/X11/LMX11ScreensSnapshot.h"

/// One display as the program sees it: a monitor, or a group of monitors that show the same.
struct LMX11Display {
    /// The identifier of the first output, which stays as long as the monitor is attached.
    /// Monitors without outputs have a hash of their name, with the highest bit set, which no
    /// resource identifier has; without any monitor it is the root window.
    quint32 displayID = 0;
    QString name;   ///< Of the first output, else of the monitor.
    QRect geometry; ///< Root coordinates.
    QList<quint32> outputs;
    QList<quint32> crtcs;

    /// Whether the display can be moved by moving its CRTCs: not when it is a part of a picture,
    /// when it pans, or when it has no hardware at all.
    bool canMove = false;
};

/// The displays in platform order: the main one first, the others by their identifier, which is the
/// order of the connectors and does not change when they are rearranged.
///
/// The main display is the primary monitor, else the first one the server lists. Monitors with the
/// same top left corner of which one covers the other are one display, as large as the larger one.
/// When nothing is lit or the server lacks RandR, the whole root window is one display.
QList<LMX11Display> LMX11DisplaysFromSnapshot(const LMX11ScreensSnapshot& snapshot);

/// The part of the display that docks and panels leave free, root coordinates.
///
/// _GTK_WORKAREAS answers per monitor but only some window managers set it. _NET_WORKAREA is one
/// rectangle for all monitors together, true only when there is one. Otherwise the docks' own
/// reservations are taken off the display they lie on.
QRect LMX11VisibleGeometry(const QRect& display, bool isOnlyDisplay, const QSize& rootSize,
                           const LMX11WorkAreas& areas);

/// The same displays as values of the platform interface.
QList<LMScreen> LMX11ScreensFromDisplays(const QList<LMX11Display>& displays,
                                         const LMX11ScreensSnapshot& snapshot,
                                         const LMX11WorkAreas& areas);
