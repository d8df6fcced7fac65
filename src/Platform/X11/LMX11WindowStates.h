// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/LMWindowStates.h"
#include "Platform/X11/LMX11StackSetter.h"
#include "Platform/X11/LMX11StateSetter.h"

class LMX11Accessibility;
class LMX11ApplicationIndex;
class LMX11NormalFrames;
class LMX11WindowManager;

/// The states of X clients' windows (EWMH).
class LMX11WindowStates final : public LMWindowStates {
public:
    /// All must outlive it.
    LMX11WindowStates(LMX11Connection& connection, LMX11ApplicationIndex& index,
                      LMX11WindowManager& windowManager, LMX11Accessibility& accessibility,
                      LMX11NormalFrames& normalFrames);

    LMWindowStateSupport windowStateSupport() override;
    QStringList desktopNames() override;
    LMPlatformResult<LMWindowState> stateOfWindow(const LMElement& window) override;
    QList<LMPlatformStatus> setStates(const QList<LMWindowStateChange>& changes) override;
    QList<LMElement> stackingOrder() override;
    LMPlatformStatus setStackingOrder(const QList<LMElement>& frontToBack) override;

private:
    LMX11Connection& m_connection;
    LMX11WindowManager& m_windowManager;
    LMX11Accessibility& m_accessibility;
    LMX11NormalFrames& m_normalFrames;
    LMX11WindowReader m_reader;
    LMX11StateSetter m_setter;
    LMX11StackSetter m_stackSetter;
};
