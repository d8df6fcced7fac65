// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/LMWindowStates.h"
#include "Platform/X11/LMX11StateSetter.h"

class LMX11Accessibility;
class LMX11ApplicationIndex;
class LMX11NormalFrames;
class LMX11WindowManager;

/// The states of X clients' windows (EWMH).
///
/// The order of windows is changed by lowering them: under all managers tried out (openbox 3.6,
/// xfwm4 4.18, marco 1.26, kwin 5.27, mutter 43) a window that is lowered goes to the bottom of its
/// layer, under marco and mutter to that of its virtual desktop. Raising gives the focus (xfwm4) or
/// is refused (kwin), and the order relative to another window (_NET_RESTACK_WINDOW) is unknown to
/// xfwm4 and marco, inexact under openbox, and makes windows demand attention under kwin. When the
/// active window is lowered, xfwm4 takes the focus from it; it gets it back, and with it the place
/// in front.
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
    LMX11ApplicationIndex& m_index;
    LMX11WindowManager& m_windowManager;
    LMX11Accessibility& m_accessibility;
    LMX11NormalFrames& m_normalFrames;
    LMX11WindowReader m_reader;
    LMX11StateSetter m_setter;
};
