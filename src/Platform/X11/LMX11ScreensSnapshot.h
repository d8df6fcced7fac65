// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QList>
#include <QRect>
#include <QSize>
#include <QString>

/// What the server said about monitors at one moment. Plain values, so that everything that is
/// worked out from them needs no server. Identifiers are X resource identifiers, rectangles are
/// pixels in root coordinates.

/// A picture generator and where its picture stands on the root window. Of one that is switched
/// off only the identifier is filled in.
struct LMX11Crtc {
    quint32 identifier = 0;
    QRect geometry;   ///< After rotation and scaling.
    quint32 mode = 0; ///< 0: switched off.
    quint16 rotation = 0;
    QList<quint32> outputs;

    bool isLit() const { return mode != 0 && !outputs.isEmpty(); }
    bool operator==(const LMX11Crtc&) const = default;
};

/// A connector.
struct LMX11Output {
    quint32 identifier = 0;
    QString name;    ///< "HDMI-1"
    QByteArray edid; ///< Base block, as it is; may be empty or nonsense.
};

/// A RandR 1.5 monitor: made by the server for each lit CRTC, or defined by the user.
struct LMX11Monitor {
    quint32 nameAtom = 0;
    QString name;
    QRect geometry;
    QSize millimetres;
    bool isPrimary = false;
    bool isAutomatic = true; ///< Made by the server.
    QList<quint32> outputs;  ///< May be empty when defined by the user.

    bool operator==(const LMX11Monitor&) const = default;
};

struct LMX11ScreensSnapshot {
    quint32 rootWindow = 0;
    QSize rootSize;
    QSize minimumRootSize;
    QSize maximumRootSize;
    quint32 configTimestamp = 0;
    quint32 primaryOutput = 0;    ///< 0: none.
    QList<LMX11Crtc> crtcs;       ///< In the server's order, the dark ones included.
    QList<LMX11Output> outputs;   ///< Those of the monitors; all when there are none.
    QList<LMX11Monitor> monitors; ///< In the server's order; empty before RandR 1.5.
};

/// Space at one edge of the root window that a dock keeps for itself (_NET_WM_STRUT_PARTIAL).
struct LMX11Strut {
    Qt::Edge edge = Qt::TopEdge;
    int thickness = 0; ///< Pixels from the edge of the *root* window.
    int first = 0;     ///< The range along the edge, both ends included.
    int last = 0;
};

/// What is known about docks and panels.
struct LMX11WorkAreas {
    QRect workArea;           ///< _NET_WORKAREA of the current desktop; null when not set.
    QList<QRect> perMonitor;  ///< _GTK_WORKAREAS_D0; empty when not set.
    QList<LMX11Strut> struts; ///< Of all docks.
};
