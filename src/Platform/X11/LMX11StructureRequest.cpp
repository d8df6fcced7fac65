// SPDX-License-Identifier: MIT
#include "Platform/X11/LMX11StructureRequest.h"

#include "Platform/X11/LMX11Connection.h"
#include "Platform/X11/LMX11WindowProperties.h"

#include <xcb/xcb_icccm.h>

namespace {

/// Motif's _MOTIF_WM_HINTS: flags, functions, decorations, input mode, status.
namespace Motif {
constexpr uint32_t hasFunctions = 1u << 0; // in flags
constexpr uint32_t all = 1u << 0;          // in functions: the others are exceptions
constexpr uint32_t resize = 1u << 1;
constexpr uint32_t minimize = 1u << 3;
constexpr uint32_t maximize = 1u << 4;
constexpr uint32_t close = 1u << 5;
} // namespace Motif

/// Whether the client wishes the window manager to offer a function.
bool offers(const LMX11Property& motifHints, uint32_t function) {
    const auto words = motifHints.words();
    if (words.size() < 2 || (words[0] & Motif::hasFunctions) == 0)
        return true;
    const bool isNamed = (words[1] & function) != 0;
    return (words[1] & Motif::all) != 0 ? !isNamed : isNamed;
}

/// A window whose smallest and largest sizes are the same cannot be resized.
bool hasVariableSize(const LMX11Property& property) {
    xcb_size_hints_t hints{};
    if (!property.exists() || xcb_icccm_get_wm_size_hints_from_reply(&hints, property.reply()) == 0)
        return true;
    constexpr uint32_t both = XCB_ICCCM_SIZE_HINT_P_MIN_SIZE | XCB_ICCCM_SIZE_HINT_P_MAX_SIZE;
    return (hints.flags & both) != both || hints.min_width < hints.max_width ||
           hints.min_height < hints.max_height;
}

} // namespace

LMX11StructureRequest::LMX11StructureRequest(LMX11Connection& connection, xcb_window_t window)
    : m_netName(connection, window, connection.ewmhAtoms()._NET_WM_NAME),
      m_name(connection, window, XCB_ATOM_WM_NAME),
      m_type(connection, window, connection.ewmhAtoms()._NET_WM_WINDOW_TYPE),
      m_transientFor(connection, window, XCB_ATOM_WM_TRANSIENT_FOR),
      m_sizeHints(connection, window, XCB_ATOM_WM_NORMAL_HINTS),
      m_motifHints(connection, window, connection.atoms().motifWmHints),
      m_protocols(connection, window, connection.atoms().wmProtocols),
      m_role(connection, window, connection.atoms().wmWindowRole) {}

// _NET_WM_ALLOWED_ACTIONS would be the obvious source, but managers recompute it: xfwm4 and marco
// drop "resize" from a maximised window and more from a minimised one, marco from a shaded one, and
// all but xfwm4 drop "move", "resize" and "maximise" from a fullscreen one. What the client itself
// has asked for stays.
std::optional<LMX11LongTitle> LMX11StructureRequest::receive(LMX11Connection& connection,
                                                             LMX11Window& window) const {
    const auto rest = receiveTitle(connection, window);
    const LMX11Property types = m_type.receive(connection);
    const LMX11Property transientFor = m_transientFor.receive(connection);
    const LMX11Property sizeHints = m_sizeHints.receive(connection);
    const LMX11Property motifHints = m_motifHints.receive(connection);
    const LMX11Property protocols = m_protocols.receive(connection);
    const LMX11Property role = m_role.receive(connection);

    LMX11WindowStructure& structure = window.structure;
    const bool isTransient = transientFor.firstWord().value_or(XCB_WINDOW_NONE) != XCB_WINDOW_NONE;
    structure.type = LMX11ReadWindowType(types, isTransient, connection.ewmhAtoms());
    const bool isNormal = structure.type == LMX11WindowType::Normal;
    structure.isResizable = hasVariableSize(sizeHints) && offers(motifHints, Motif::resize);
    structure.offersClose = protocols.containsWord(connection.atoms().wmDeleteWindow) &&
                            offers(motifHints, Motif::close);
    structure.offersMinimize = isNormal && offers(motifHints, Motif::minimize);
    structure.offersMaximize =
        isNormal && structure.isResizable && offers(motifHints, Motif::maximize);
    structure.role = LMX11Text(role, connection.atoms());
    return rest;
}

std::optional<LMX11LongTitle> LMX11StructureRequest::receiveTitle(LMX11Connection& connection,
                                                                  LMX11Window& window) const {
    const LMX11Property netName = m_netName.receive(connection);
    const LMX11Property name = m_name.receive(connection);
    window.title = LMX11Text(netName, connection.atoms());
    const bool isNetName = !window.title.isNull();
    if (!isNetName)
        window.title = LMX11Text(name, connection.atoms());
    const LMX11Property& used = isNetName ? netName : name;
    if (window.title.isNull() || used.bytesMissing() == 0)
        return std::nullopt;
    return LMX11LongTitle{isNetName ? connection.ewmhAtoms()._NET_WM_NAME
                                    : xcb_atom_t(XCB_ATOM_WM_NAME),
                          used.size() + used.bytesMissing()};
}

LMX11TitleRequest::LMX11TitleRequest(LMX11Connection& connection, const LMX11LongTitle& title,
                                     LMX11Window* window)
    : m_request(connection, window->identifier, title.property, title.bytes), m_window(window) {}

/// Reads from the beginning again, since the title may have changed in between.
void LMX11TitleRequest::receive(LMX11Connection& connection) const {
    const QString title = LMX11Text(m_request.receive(connection), connection.atoms());
    if (!title.isNull())
        m_window->title = title;
}
