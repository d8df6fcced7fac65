// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/LMWindowServer.h"
#include "support/LMFakeWorld.h"

/// The fake desktop's window list. The picture of a window is its number as a colour. The world
/// must outlive it.
class LMFakeWindowServer final : public LMWindowServer {
public:
    explicit LMFakeWindowServer(LMFakeWorld& world) : m_world(world) {}

    QList<LMWindowDescription> onScreenWindowDescriptions() override;
    QImage imageOfWindow(quint32 number) override;

private:
    LMFakeWorld& m_world;
};
