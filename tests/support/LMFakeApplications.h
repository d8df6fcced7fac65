// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/LMApplications.h"
#include "support/LMFakeWorld.h"

/// The fake desktop's applications. The world must outlive it.
class LMFakeApplications final : public LMApplications {
    Q_OBJECT
public:
    explicit LMFakeApplications(LMFakeWorld& world) : m_world(world) {}

    QList<LMRunningApplication> runningApplications() override;
    bool activate(qint64 processIdentifier) override;
    bool hide(qint64 processIdentifier) override;
    bool unhide(qint64 processIdentifier) override;
    QImage iconForApplication(const QString& bundleIdentifier, int size) override;
    QString fileManagerIdentifier() override { return m_world.fileManagerIdentifier; }

private:
    LMFakeApplication* reachable(qint64 processIdentifier);
    LMRunningApplication description(const LMFakeApplication& application) const;

    LMFakeWorld& m_world;
};
