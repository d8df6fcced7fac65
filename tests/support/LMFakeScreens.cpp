// SPDX-License-Identifier: MIT
#include "support/LMFakeServices.h"

#include <algorithm>

namespace {

class LMFakeConfiguration final : public LMDisplayConfiguration {
public:
    LMFakeConfiguration(LMScreens& screens, LMFakeWorld& world)
        : m_screens(screens), m_world(world) {}

    LMPlatformStatus configureDisplayOrigin(quint32 displayID, qint32 x, qint32 y) override {
        const auto screen = std::ranges::find(m_wanted, displayID, &LMScreen::displayID);
        if (screen == m_wanted.end())
            return LMPlatformStatus::failure(LMPlatformError::InvalidElement);
        screen->displayBounds.moveTopLeft(QPointF(x, y));
        m_events.append(u"arrange %1 %2,%3"_qs.arg(displayID).arg(x).arg(y));
        return LMPlatformStatus::success();
    }
    LMPlatformStatus completePermanently() override {
        if (!m_world.completesDisplayConfiguration)
            return LMPlatformStatus::failure(LMPlatformError::Failure);
        m_events.sort(); // By screen, in whichever order they were given.
        m_world.log.append(m_events);
        m_world.setScreens(m_wanted);
        // As on a real desktop, where the change comes to rest later.
        QMetaObject::invokeMethod(&m_screens, &LMScreens::screenParametersChanged,
                                  Qt::QueuedConnection);
        return LMPlatformStatus::success();
    }

private:
    LMScreens& m_screens;
    LMFakeWorld& m_world;
    QList<LMScreen> m_wanted = m_world.screens;
    QStringList m_events;
};

class LMFakeScreens final : public LMScreens {
public:
    explicit LMFakeScreens(LMFakeWorld& world) : m_world(world) {}

    QList<LMScreen> screens() override { return m_world.screens; }
    bool canArrangeDisplays() const override { return m_world.canArrangeDisplays; }
    std::unique_ptr<LMDisplayConfiguration> beginDisplayConfiguration() override {
        if (!m_world.canArrangeDisplays || !m_world.beginsDisplayConfiguration)
            return nullptr;
        return std::make_unique<LMFakeConfiguration>(*this, m_world);
    }
    QList<QStringList> spacesByMonitor() override {
        const QList<QStringList> oneEach(m_world.screens.size(), {QStringLiteral("1")});
        return m_world.spaces.isEmpty() ? oneEach : m_world.spaces;
    }
    bool screensHaveSeparateSpaces() const override { return m_world.screensHaveSeparateSpaces; }

private:
    LMFakeWorld& m_world;
};

} // namespace

std::unique_ptr<LMScreens> LMMakeFakeScreens(LMFakeWorld& world) {
    return std::make_unique<LMFakeScreens>(world);
}
