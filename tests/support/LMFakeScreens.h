// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/LMScreens.h"
#include "support/LMFakeWorld.h"

/// The fake desktop's screens. The world must outlive it.
class LMFakeScreens final : public LMScreens {
    Q_OBJECT
public:
    explicit LMFakeScreens(LMFakeWorld& world) : m_world(world) {}

    QList<LMScreen> screens() override;
    bool canArrangeDisplays() const override { return m_world.canArrangeDisplays; }
    std::unique_ptr<LMDisplayConfiguration> beginDisplayConfiguration() override;
    QList<QStringList> spacesByMonitor() override;
    bool screensHaveSeparateSpaces() const override { return m_world.screensHaveSeparateSpaces; }

    // --- for tests ----------------------------------------------------------------------------
    /// Replaces the screens, the main one first, and says nothing. What the rectangles in
    /// displayBounds imply is filled in; screens without an identifier get one.
    void setScreens(const QList<LMScreen>& screens);

private:
    LMFakeWorld& m_world;
};
