// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/X11/LMX11Properties.h"
#include "Platform/X11/LMX11Window.h"

#include <optional>

/// A title that is longer than usual.
struct LMX11LongTitle {
    xcb_atom_t property = XCB_ATOM_NONE;
    uint32_t bytes = 0;
};

/// The questions for one window's title and what its client has settled about it.
class LMX11StructureRequest {
public:
    LMX11StructureRequest(LMX11Connection& connection, xcb_window_t window);

    /// Waits for the answers. Tells of a title of which only the beginning has come.
    std::optional<LMX11LongTitle> receive(LMX11Connection& connection, LMX11Window& window) const;

private:
    std::optional<LMX11LongTitle> receiveTitle(LMX11Connection& connection,
                                               LMX11Window& window) const;

    LMX11PropertyRequest m_netName;
    LMX11PropertyRequest m_name;
    LMX11PropertyRequest m_type;
    LMX11PropertyRequest m_transientFor;
    LMX11PropertyRequest m_sizeHints;
    LMX11PropertyRequest m_motifHints;
    LMX11PropertyRequest m_protocols;
    LMX11PropertyRequest m_role;
};

/// The question for the whole of a long title.
class LMX11TitleRequest {
public:
    LMX11TitleRequest(LMX11Connection& connection, const LMX11LongTitle& title,
                      LMX11Window* window);

    void receive(LMX11Connection& connection) const;

private:
    LMX11PropertyRequest m_request;
    LMX11Window* m_window;
};
