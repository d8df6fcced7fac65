// SPDX-License-Identifier: MIT
#include "support/LMFakeWindowServer.h"

#include <algorithm>
#include <functional>

QList<LMWindowDescription> LMFakeWindowServer::onScreenWindowDescriptions() {
    QList<LMWindowDescription> descriptions;
    if (!m_world.isConnected)
        return descriptions;
    for (const quint32 number : std::as_const(m_world.stacking)) {
        const LMFakeWindow& window = m_world.windows[number];
        const LMFakeApplication* owner = m_world.application(window.bundleIdentifier);
        if (m_world.isInSight(window) && owner)
            descriptions.append({owner->processIdentifiers.first(), window.frame, number,
                                 std::max(m_world.layerOf(window), 0)});
    }
    std::ranges::stable_sort(descriptions, std::greater(), &LMWindowDescription::layer);
    return descriptions;
}

QImage LMFakeWindowServer::imageOfWindow(quint32 number) {
    const auto window = m_world.windows.constFind(number);
    if (!m_world.isConnected || window == m_world.windows.constEnd() || !window->hasImage)
        return QImage();
    QImage image(window->frame.size().toSize(), QImage::Format_RGB32);
    image.fill(0xff000000u | number);
    return image;
}
