// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/LMScreens.h"
#include "Platform/X11/LMX11DisplayConfigurationPlan.h"

#include <QSizeF>

class LMX11Connection;

/// Rearranges displays through RandR, as one step for everybody else: the server is grabbed from
/// the first look at the old arrangement to the last look at the new one, so no other client sees
/// or makes anything in between. Both looks are compared with what was planned; if any request
/// fails or the server did something else, the old arrangement is put back and checked too.
///
/// How long it lasts: X11 keeps no arrangement beyond the server's life. Desktops keep files of
/// their own (xfconf, monitors.xml, kscreen), each in its own format for its own daemon, and apply
/// them at log-in and when a monitor is plugged in. Their daemons do not undo what another client
/// sets meanwhile; KDE's even stores it as its own. Writing those files behind their owners' backs
/// would fight the user's display settings, so nothing is written: the arrangement lasts until the
/// session's display settings are applied again.
class LMX11DisplayConfiguration final : public LMDisplayConfiguration {
public:
    /// The scale serves to keep the root window's size in millimetres in proportion.
    LMX11DisplayConfiguration(LMX11Connection& connection, const QSizeF& millimetresPerPixel)
        : m_connection(connection), m_millimetresPerPixel(millimetresPerPixel) {}

    /// InvalidElement when there is no such display, NotAvailable when its picture cannot be moved,
    /// Failure when the point lies beyond the protocol's coordinates.
    LMPlatformStatus configureDisplayOrigin(quint32 displayID, qint32 x, qint32 y) override;

    LMPlatformStatus completePermanently() override;

private:
    LMPlatformStatus refuse(const LMX11PlanRefusal& refusal);
    bool apply(const LMX11Arrangement& from, const LMX11Arrangement& to);
    void rollBack(const LMX11Arrangement& before);
    bool run(const QList<LMX11ArrangementStep>& steps);
    bool run(const LMX11ArrangementStep& step);
    bool resizeRoot(const QSize& size);
    bool setCrtc(const LMX11Crtc& crtc);
    bool setMonitor(const LMX11Monitor& monitor);
    LMX11Arrangement readArrangement();

    LMX11Connection& m_connection;
    QSizeF m_millimetresPerPixel;
    QHash<quint32, QPoint> m_origins;
    quint32 m_configTimestamp = 0;
};
