// SPDX-License-Identifier: MIT
#include "support/LMFakeScreens.h"

#include <algorithm>
#include <map>

namespace {

class FakeConfiguration final : public LMDisplayConfiguration {
public:
    FakeConfiguration(LMFakeScreens& screens, LMFakeWorld& world)
        : m_screens(screens), m_world(world) {}

    LMPlatformStatus configureDisplayOrigin(quint32 displayID, qint32 x, qint32 y) override {
        if (!std::ranges::count(m_world.screens, displayID, &LMScreen::displayID))
            return LMPlatformStatus::failure(LMPlatformError::InvalidElement);
        m_origins[displayID] = QPoint(x, y);
        return LMPlatformStatus::success();
    }

    LMPlatformStatus completePermanently() override {
        if (!m_world.isConnected || !m_world.completesDisplayConfiguration)
            return LMPlatformStatus::failure(LMPlatformError::Failure);
        QList<LMScreen> screens = m_world.screens;
        for (LMScreen& screen : screens) {
            if (!m_origins.contains(screen.displayID))
                continue;
            const QPoint origin = m_origins[screen.displayID];
            screen.displayBounds.moveTopLeft(origin);
            m_world.log.add(
                u"arrange %1 %2,%3"_qs.arg(screen.displayID).arg(origin.x()).arg(origin.y()));
        }
        m_screens.setScreens(screens);
        // As on a real desktop, where the change comes to rest later.
        QMetaObject::invokeMethod(&m_screens, &LMScreens::screenParametersChanged,
                                  Qt::QueuedConnection);
        return LMPlatformStatus::success();
    }

private:
    LMFakeScreens& m_screens;
    LMFakeWorld& m_world;
    std::map<quint32, QPoint> m_origins;
};

} // namespace

QList<LMScreen> LMFakeScreens::screens() {
    return m_world.isConnected ? m_world.screens : QList<LMScreen>();
}

std::unique_ptr<LMDisplayConfiguration> LMFakeScreens::beginDisplayConfiguration() {
    if (!m_world.isConnected || !m_world.canArrangeDisplays || !m_world.beginsDisplayConfiguration)
        return nullptr;
    return std::make_unique<FakeConfiguration>(*this, m_world);
}

QList<QStringList> LMFakeScreens::spacesByMonitor() {
    const QList<QStringList> oneEach(m_world.screens.size(), {QStringLiteral("1")});
    return m_world.spaces.isEmpty() ? oneEach : m_world.spaces;
}

void LMFakeScreens::setScreens(const QList<LMScreen>& screens) {
    m_world.screens = screens;
    const QRectF main = screens.isEmpty() ? QRectF() : screens.first().displayBounds;
    quint32 number = 0;
    for (LMScreen& screen : m_world.screens) {
        QRectF& bounds = screen.displayBounds;
        bounds.translate(-main.topLeft());
        screen.visibleFrame = bounds;
        screen.frame = QRectF(QPointF(bounds.x(), main.height() - bounds.bottom()), bounds.size());
        ++number;
        if (screen.displayID == 0)
            screen.displayID = number;
    }
}
