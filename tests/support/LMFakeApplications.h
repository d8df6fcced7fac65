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
    bool activateOwnWindow(quint64) override { return true; }
    bool hide(qint64 processIdentifier) override;
    bool unhide(qint64 processIdentifier) override;
    QImage iconForApplication(const QString& bundleIdentifier, int size) override;
    QString fileManagerIdentifier() override { return m_world.fileManagerIdentifier; }

private:
    /// The application with windows that the process identifier stands for, or null; logs what is
    /// asked of it.
    LMFakeApplication* reach(qint64 processIdentifier, const QString& what);

    LMFakeWorld& m_world;
};
