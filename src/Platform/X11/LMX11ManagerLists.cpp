// SPDX-License-Identifier: MIT
#include "Platform/X11/LMX11ManagerLists.h"

#include "Platform/X11/LMX11Connection.h"
#include "Platform/X11/LMX11Properties.h"

#include <algorithm>

namespace {

QList<xcb_window_t> windowsIn(const LMX11Property& property) {
    const auto words = property.words();
    return {words.begin(), words.end()};
}

} // namespace

LMX11ManagerLists LMX11ReadManagerLists(LMX11Connection& connection) {
    const xcb_ewmh_connection_t& atoms = connection.ewmhAtoms();
    const auto ask = [&connection](xcb_atom_t property) {
        return LMX11PropertyRequest(connection, connection.root(), property,
                                    LMX11PropertyRequest::maximumSize);
    };
    const auto windows = ask(atoms._NET_CLIENT_LIST);
    const auto stacking = ask(atoms._NET_CLIENT_LIST_STACKING);
    const auto active = ask(atoms._NET_ACTIVE_WINDOW);
    const auto desktop = ask(atoms._NET_CURRENT_DESKTOP);

    LMX11ManagerLists lists;
    lists.windows = windowsIn(windows.receive(connection));
    lists.stackingOrder = windowsIn(stacking.receive(connection));
    lists.activeWindow = active.receive(connection).firstWord().value_or(XCB_WINDOW_NONE);
    lists.currentDesktop = desktop.receive(connection).firstWord().value_or(0);
    std::ranges::reverse(lists.stackingOrder);
    // The lists are two properties: for a moment a window may stand in one of them only.
    for (const xcb_window_t window : std::as_const(lists.stackingOrder)) {
        if (!lists.windows.contains(window))
            lists.windows.append(window);
    }
    for (const xcb_window_t window : std::as_const(lists.windows)) {
        if (!lists.stackingOrder.contains(window))
            lists.stackingOrder.prepend(window);
    }
    return lists;
}
