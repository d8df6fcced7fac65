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

    /// A lit CRTC and the monitor the server makes for it.
    LMX11SnapshotBuilder& picture(const QRect& geometry, bool isPrimary = false) {
        const quint32 crtc = addCrtc(geometry);
        LMX11Monitor monitor;
        monitor.name = snapshot.outputs.last().name;
        monitor.geometry = geometry;
        monitor.isPrimary = isPrimary;
        monitor.outputs = {crtc + 100};
        snapshot.monitors.append(monitor);
        if (isPrimary)
            snapshot.primaryOutput = crtc + 100;
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
        LMX11Monitor monitor;
        monitor.name = name;
        monitor.geometry = geometry;
        monitor.outputs = outputs;
        monitor.isAutomatic = false;
        snapshot.monitors.append(monitor);
        return *this;
    }

    LMX11ScreensSnapshot snapshot;
};
