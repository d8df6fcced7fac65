// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/LMApplicationIdentity.h"
#include "Platform/X11/LMX11ClientProcesses.h"
#include "Platform/X11/LMX11Properties.h"
#include "Platform/X11/LMX11Window.h"

#include <optional>

/// What a window says about its application and its process.
struct LMX11ApplicationFacts {
    LMWindowIdentityFacts identity;        ///< Without the process.
    qint64 serverProcess = 0;              ///< As the server knows the client; 0 when it does not.
    qint64 claimedProcess = 0;             ///< _NET_WM_PID; 0 when the window has none.
    QString clientMachine;                 ///< WM_CLIENT_MACHINE; null when the window has none.
    xcb_window_t leader = XCB_WINDOW_NONE; ///< Of its group of windows; itself when alone.
};

/// The questions for one window's facts, asked together with others, answered later. Texts are cut
/// at 1 KiB.
class LMX11ApplicationFactsRequest {
public:
    LMX11ApplicationFactsRequest(LMX11Connection& connection, xcb_window_t window);

    /// Waits for the answers; nothing for a window that is gone.
    std::optional<LMX11ApplicationFacts> receive(LMX11Connection& connection,
                                                 const QHash<uint32_t, qint64>& processes) const;

    /// Whether the facts rest on the property.
    static bool restOn(const LMX11Connection& connection, xcb_atom_t property);

private:
    xcb_window_t m_window;
    xcb_get_window_attributes_cookie_t m_attributes;
    LMX11PropertyRequest m_class;
    LMX11PropertyRequest m_gtkApplicationID;
    LMX11PropertyRequest m_kdeDesktopFile;
    LMX11PropertyRequest m_process;
    LMX11PropertyRequest m_machine;
    LMX11PropertyRequest m_clientLeader;
    LMX11PropertyRequest m_hints;
};

/// How a window presents itself, see LMX11WindowPresence.
struct LMX11Presentation {
    LMX11WindowType type = LMX11WindowType::Normal;
    LMX11StateFlags states;
    bool isIconic = false; ///< WM_STATE
    uint32_t desktop = 0;  ///< Virtual desktop, or LMX11Window::allDesktops.

    /// Other managers' windows of other virtual desktops are iconic but not hidden; shaded ones
    /// are hidden with some.
    bool isMinimized() const { return states.isMinimized && isIconic; }
    /// Neither furniture of the desktop nor short-lived.
    bool isListed() const;
    bool isInTaskBars() const;
    bool isOnDesktop(uint32_t which) const {
        return desktop == which || desktop == LMX11Window::allDesktops;
    }
};

/// The questions for one window's presentation.
class LMX11PresentationRequest {
public:
    LMX11PresentationRequest(LMX11Connection& connection, xcb_window_t window);

    LMX11Presentation receive(LMX11Connection& connection) const;

    static bool restsOn(const LMX11Connection& connection, xcb_atom_t property);

private:
    LMX11PropertyRequest m_type;
    LMX11PropertyRequest m_transientFor;
    LMX11PropertyRequest m_states;
    LMX11PropertyRequest m_wmState;
    LMX11PropertyRequest m_desktop;
};
