// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/X11/LMX11ScreensSnapshot.h"

/// Describes what a server with RandR would say: CRTC n (identifier n) drives the output n + 100.
class LMX11SnapshotBuilder {
public:
    explicit LMX11SnapshotBuilder(const QSize& rootSize = {5760, 2160}) {
        snapshot.rootWindow = 0x500;
        snapshot.rootSize = rootSize;
        snapshot.minimumRootSize = {320, 200};
        snapshot.maximumRootSize = {8192, 4096};
    }

    /// Lit CRTCs and the monitors the server makes for them.
    LMX11SnapshotBuilder& pictures(const QList<QRect>& geometries, int primary = -1) {
        for (int index = 0; index < geometries.size(); ++index) {
            const quint32 output = addCrtc(geometries[index]) + 100;
            monitor(snapshot.outputs.last().name, geometries[index], {output});
            snapshot.monitors.last().isAutomatic = true;
            snapshot.monitors.last().isPrimary = index == primary;
            if (index == primary)
                snapshot.primaryOutput = output;
        }
        return *this;
    }

    /// A lit CRTC that no monitor is made for.
    quint32 addCrtc(const QRect& geometry) {
        const auto crtc = quint32(snapshot.crtcs.size() + 1);
        snapshot.crtcs.append({crtc, geometry, 77, 1, {crtc + 100}});
        snapshot.outputs.append({crtc + 100, QStringLiteral("OUT%1").arg(crtc), {}});
        return crtc;
    }

    /// A monitor of the user's.
    LMX11SnapshotBuilder& monitor(const QString& name, const QRect& geometry,
                                  const QList<quint32>& outputs) {
        snapshot.monitors.append({0, name, geometry, {}, false, false, outputs});
        return *this;
    }

    LMX11ScreensSnapshot snapshot;
};
