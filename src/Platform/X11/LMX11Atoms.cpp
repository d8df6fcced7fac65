// SPDX-License-Identifier: MIT
#include "Platform/X11/LMX11Atoms.h"

#include "Platform/X11/LMXcbReply.h"

#include <array>
#include <string_view>
#include <utility>

namespace {

using Member = xcb_atom_t LMX11Atoms::*;

constexpr auto atomNames = std::to_array<std::pair<Member, std::string_view>>({
    {&LMX11Atoms::utf8String, "UTF8_STRING"},
    {&LMX11Atoms::compoundText, "COMPOUND_TEXT"},
    {&LMX11Atoms::edid, "EDID"},
    {&LMX11Atoms::timestamp, "_ROOK_TIMESTAMP"},
    {&LMX11Atoms::manager, "MANAGER"},
    {&LMX11Atoms::wmState, "WM_STATE"},
    {&LMX11Atoms::wmChangeState, "WM_CHANGE_STATE"},
    {&LMX11Atoms::wmProtocols, "WM_PROTOCOLS"},
    {&LMX11Atoms::wmDeleteWindow, "WM_DELETE_WINDOW"},
    {&LMX11Atoms::wmWindowRole, "WM_WINDOW_ROLE"},
    {&LMX11Atoms::wmClientLeader, "WM_CLIENT_LEADER"},
    {&LMX11Atoms::motifWmHints, "_MOTIF_WM_HINTS"},
    {&LMX11Atoms::gtkFrameExtents, "_GTK_FRAME_EXTENTS"},
    {&LMX11Atoms::gtkWorkareas, "_GTK_WORKAREAS_D0"},
    {&LMX11Atoms::gtkWorkareasSupport, "_GTK_WORKAREAS"},
    {&LMX11Atoms::gtkApplicationId, "_GTK_APPLICATION_ID"},
    {&LMX11Atoms::kdeDesktopFile, "_KDE_NET_WM_DESKTOP_FILE"},
    {&LMX11Atoms::kdeWindowTypeOverride, "_KDE_NET_WM_WINDOW_TYPE_OVERRIDE"},
    {&LMX11Atoms::bamfDesktopFile, "_BAMF_DESKTOP_FILE"},
    {&LMX11Atoms::netWmStateFocused, "_NET_WM_STATE_FOCUSED"},
});

} // namespace

LMX11Atoms LMInternX11Atoms(xcb_connection_t* connection) {
    std::array<xcb_intern_atom_cookie_t, atomNames.size()> cookies{};
    for (size_t index = 0; index < atomNames.size(); ++index) {
        const std::string_view name = atomNames[index].second;
        cookies[index] =
            xcb_intern_atom(connection, 0, static_cast<uint16_t>(name.size()), name.data());
    }
    LMX11Atoms atoms;
    for (size_t index = 0; index < atomNames.size(); ++index) {
        const LMXcbReply<xcb_intern_atom_reply_t> reply(
            xcb_intern_atom_reply(connection, cookies[index], nullptr));
        if (reply)
            atoms.*atomNames[index].first = reply->atom;
    }
    return atoms;
}
