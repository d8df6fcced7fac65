// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/LMWindowStates.h"
#include "support/LMFakeAccessibility.h"

/// How the fake desktop's windows stand. Both must outlive it.
///
/// What it changes is logged: state "Title" minimized desktop=2; stack "Front" "Back".
class LMFakeWindowStates final : public LMWindowStates {
public:
    LMFakeWindowStates(LMFakeWorld& world, LMFakeAccessibility& accessibility)
        : m_world(world), m_accessibility(accessibility) {}

    LMWindowStateSupport windowStateSupport() override;
    QStringList desktopNames() override;
    LMPlatformResult<LMWindowState> stateOfWindow(const LMElement& window) override;
    QList<LMPlatformStatus> setStates(const QList<LMWindowStateChange>& changes) override;
    QList<LMElement> stackingOrder() override;
    LMPlatformStatus setStackingOrder(const QList<LMElement>& frontToBack) override;

private:
    LMPlatformStatus setState(const LMElement& element, const LMWindowState& wanted);

    LMFakeWorld& m_world;
    LMFakeAccessibility& m_accessibility;
};
