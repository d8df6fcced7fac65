// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/LMPlatformTypes.h"
#include "Platform/X11/LMX11ScreensSnapshot.h"

#include <QHash>
#include <QPoint>

#include <optional>

/// What a transaction changes and puts back: the root window's size, where each CRTC's picture
/// stands, and the monitors the user has defined. Modes, rotations and outputs are carried along
/// unchanged.
struct LMX11Arrangement {
    QSize rootSize;
    QList<LMX11Crtc> crtcs;
    QList<LMX11Monitor> monitors; ///< Without those the server makes by itself.

    bool operator==(const LMX11Arrangement&) const = default;
};

/// Why an arrangement cannot be had.
struct LMX11PlanRefusal {
    LMPlatformError error = LMPlatformError::Failure;
    QString reason; ///< A plain sentence.
};

/// One request to the server.
struct LMX11ArrangementStep {
    enum class Kind { ResizeRoot, SetCrtc, SetMonitor };

    Kind kind = Kind::ResizeRoot;
    QSize rootSize;       ///< ResizeRoot.
    LMX11Crtc crtc;       ///< SetCrtc; dark ones are switched off.
    LMX11Monitor monitor; ///< SetMonitor.

    bool operator==(const LMX11ArrangementStep&) const = default;
};

LMX11Arrangement LMX11ArrangementFromSnapshot(const LMX11ScreensSnapshot& snapshot);

/// Whether the display can be moved to the origin (global coordinates), whatever the size of the
/// whole: it must be there, have a picture of its own, and the point must fit the protocol.
std::optional<LMX11PlanRefusal> LMX11CheckOrigin(const LMX11ScreensSnapshot& snapshot,
                                                 quint32 displayID, const QPoint& origin);

/// Moves displays to the given origins (global coordinates, by display identifier); the others stay
/// where they are. Overlaps and gaps are allowed, as RandR allows them.
///
/// Since the root window begins at (0, 0), all CRTCs are shifted together until the leftmost and
/// the topmost one touch its edges; the root window ends where the last one does. Refused when an
/// origin is, and when the root window would become larger than the server allows.
LMResult<LMX11Arrangement, LMX11PlanRefusal>
LMX11PlanArrangement(const LMX11ScreensSnapshot& snapshot, const QHash<quint32, QPoint>& origins);

/// The requests that lead from one arrangement to the other, leaving monitors aside, so that no lit
/// CRTC ever reaches beyond the root window: it is enlarged before CRTCs move and shrunk after. If
/// it becomes wider and lower, or narrower and higher, CRTCs that would not fit are dark meanwhile.
QList<LMX11ArrangementStep> LMX11ArrangementSteps(const LMX11Arrangement& from,
                                                  const LMX11Arrangement& to);

/// The requests for the user's monitors, to be worked out when the CRTCs have moved, for the server
/// moves some of those monitors along. All or none: setting one puts it at the end of the server's
/// list, whose first monitor may be the main one.
QList<LMX11ArrangementStep> LMX11MonitorSteps(const LMX11Arrangement& from,
                                              const LMX11Arrangement& to);
