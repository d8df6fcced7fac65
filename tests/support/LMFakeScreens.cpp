// SPDX-License-Identifier: MIT
#include "support/LMFakeScreens.h"

#include <map>

namespace {

/// Moves all rectangles so that the main screen stands at the origin.
QList<LMScreen> completed(QList<LMScreen> screens) {
    const QRectF main = screens.isEmpty() ? QRectF() : screens.first().displayBounds;
    quint32 index = 0;
    for (LMScreen& screen : screens) {
        QRectF& bounds = screen.displayBounds;
        const QRectF visible = screen.visibleFrame.isEmpty() ? bounds : screen.visibleFrame;
        bounds.translate(-main.topLeft());
        screen.visibleFrame = visible.translated(-main.topLeft());
        screen.frame = QRectF(QPointF(bounds.x(), main.height() - bounds.bottom()), bounds.size());
        ++index;
        if (screen.displayID == 0)
            screen.displayID = index;
    }
    return screens;
}

class FakeConfiguration final : public LMDisplayConfiguration {
public:
    FakeConfiguration(LMFakeScreens& screens, LMFakeWorld& world)
        : m_screens(screens), m_world(world) {}

    LMPlatformStatus configureDisplayOrigin(quint32 displayID, qint32 x, qint32 y) override {
        for (const LMScreen& screen : std::as_const(m_world.screens)) {
            if (screen.displayID == displayID) {
                m_origins[displayID] = QPoint(x, y);
                return LMPlatformStatus::success();
            }
        }
        return LMPlatformStatus::failure(LMPlatformError::InvalidElement);
    }

    LMPlatformStatus completePermanently() override {
        if (!m_world.isConnected || !m_world.completesDisplayConfiguration)
            return LMPlatformStatus::failure(LMPlatformError::Failure);
        QList<LMScreen> screens = m_world.screens;
        for (LMScreen& screen : screens) {
            const auto origin = m_origins.find(screen.displayID);
            if (origin == m_origins.end())
                continue;
            const QPointF offset = origin->second - screen.displayBounds.topLeft();
            screen.displayBounds.translate(offset);
            screen.visibleFrame.translate(offset);
            m_world.log.add(QStringLiteral("arrange %1 %2,%3")
                                .arg(screen.displayID)
                                .arg(origin->second.x())
                                .arg(origin->second.y()));
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
    m_world.screens = completed(screens);
}
