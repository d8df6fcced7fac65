// SPDX-License-Identifier: MIT
#include "Platform/X11/LMX11Screens.h"

#include "Platform/X11/LMX11DisplayConfiguration.h"
#include "Platform/X11/LMX11ScreensLayout.h"
#include "Platform/X11/LMX11ScreensReader.h"
#include "Platform/X11/LMX11ScreensWorkAreas.h"

LMX11Screens::LMX11Screens(LMX11Connection& connection)
    : m_connection(connection), m_watcher(connection) {
    connect(&m_watcher, &LMX11ScreensWatcher::settled, this, [this](bool haveFlickered) {
        if (haveFlickered)
            Q_EMIT screensFlickered();
        Q_EMIT screenParametersChanged();
    });
}

QList<LMScreen> LMX11Screens::screens() {
    const std::optional<LMX11ScreensSnapshot> snapshot = LMX11ReadScreens(m_connection);
    if (!snapshot)
        return {};
    const QList<LMX11Display> displays = LMX11DisplaysFromSnapshot(*snapshot);
    const LMX11WorkAreas areas = LMX11ReadWorkAreas(m_connection, displays.size() > 1);
    return LMX11ScreensFromDisplays(displays, *snapshot, areas);
}

bool LMX11Screens::canArrangeDisplays() const {
    return m_connection.isConnected() && m_connection.randr() &&
           m_connection.randr()->isAtLeast(1, 3);
}

std::unique_ptr<LMDisplayConfiguration> LMX11Screens::beginDisplayConfiguration() {
    if (!canArrangeDisplays())
        return nullptr;
    return std::make_unique<LMX11DisplayConfiguration>(m_connection,
                                                       m_watcher.millimetresPerPixel());
}

QList<QStringList> LMX11Screens::spacesByMonitor() {
    const std::optional<LMX11ScreensSnapshot> snapshot = LMX11ReadScreens(m_connection);
    if (!snapshot)
        return {};
    QList<QStringList> spaces;
    for (const LMX11Display& display : LMX11DisplaysFromSnapshot(*snapshot))
        spaces.append({QString::number(display.displayID)});
    return spaces;
}
