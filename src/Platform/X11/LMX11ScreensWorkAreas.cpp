// SPDX-License-Identifier: MIT
#include "Platform/X11/LMX11ScreensWorkAreas.h"

#include "Platform/X11/LMX11Connection.h"
#include "Platform/X11/LMX11Properties.h"

#include <algorithm>

namespace {

constexpr uint32_t MostBytes = 65536; ///< Thousands of desktops, windows and protocols.
constexpr quint32 LargestCoordinate = 32767;
constexpr size_t StrutFields = 4;
constexpr size_t PartialStrutFields = 12;

using Words = std::span<const uint32_t>;

/// Rectangles as four cardinals each; an incomplete one at the end is dropped.
QList<QRect> rectangles(Words words) {
    QList<QRect> result;
    for (; words.size() >= 4; words = words.subspan(4))
        result.append(QRect(int(words[0]), int(words[1]), int(words[2]), int(words[3])));
    return result;
}

/// Both properties begin with left, right, top, bottom; the partial one goes on with first and last
/// for each of them. Numbers beyond the protocol's coordinates are nonsense.
void appendStruts(QList<LMX11Strut>& struts, Words words) {
    constexpr Qt::Edge edges[] = {Qt::LeftEdge, Qt::RightEdge, Qt::TopEdge, Qt::BottomEdge};
    const bool isPartial = words.size() >= PartialStrutFields;
    for (size_t index = 0; index < StrutFields && index < words.size(); ++index) {
        const quint32 thickness = words[index];
        const quint32 first = isPartial ? words[4 + 2 * index] : 0;
        const quint32 last =
            isPartial ? std::min(words[5 + 2 * index], LargestCoordinate) : LargestCoordinate;
        if (thickness > 0 && thickness <= LargestCoordinate && first <= last)
            struts.append({edges[index], int(thickness), int(first), int(last)});
    }
}

QList<LMX11Strut> readStruts(LMX11Connection& connection, Words clients) {
    const xcb_ewmh_connection_t& atoms = connection.ewmhAtoms();
    struct Requests {
        LMX11PropertyRequest partial;
        LMX11PropertyRequest full;
    };
    QList<Requests> requests;
    for (const xcb_window_t client : clients)
        requests.append({{connection, client, atoms._NET_WM_STRUT_PARTIAL},
                         {connection, client, atoms._NET_WM_STRUT}});
    QList<LMX11Strut> struts;
    for (const Requests& request : std::as_const(requests)) {
        const LMX11Property partial = request.partial.receive(connection);
        const LMX11Property full = request.full.receive(connection);
        const bool isPartial = partial.words().size() >= PartialStrutFields;
        appendStruts(struts, isPartial ? partial.words() : full.words());
    }
    return struts;
}

} // namespace

LMX11WorkAreas LMX11ReadWorkAreas(LMX11Connection& connection, bool hasSeveralDisplays) {
    const xcb_ewmh_connection_t& ewmh = connection.ewmhAtoms();
    const LMX11Atoms& atoms = connection.atoms();
    const auto ask = [&](xcb_atom_t property) {
        return LMX11PropertyRequest(connection, connection.root(), property, MostBytes);
    };
    const auto supportedRequest = ask(ewmh._NET_SUPPORTED);
    const auto desktopRequest = ask(ewmh._NET_CURRENT_DESKTOP);
    const auto areasRequest = ask(ewmh._NET_WORKAREA);
    const auto perMonitorRequest = ask(atoms.gtkWorkareas);
    const auto clientsRequest = ask(ewmh._NET_CLIENT_LIST);

    // An earlier window manager may have left the property behind.
    const bool isPerMonitor =
        supportedRequest.receive(connection).containsWord(atoms.gtkWorkareasSupport);
    const uint32_t desktop = desktopRequest.receive(connection).firstWord().value_or(0);
    const QList<QRect> perDesktop = rectangles(areasRequest.receive(connection).words());
    const LMX11Property perMonitor = perMonitorRequest.receive(connection);
    const LMX11Property clients = clientsRequest.receive(connection);

    LMX11WorkAreas areas;
    areas.workArea = perDesktop.value(desktop, perDesktop.value(0));
    if (isPerMonitor)
        areas.perMonitor = rectangles(perMonitor.words());
    if (hasSeveralDisplays && areas.perMonitor.isEmpty())
        areas.struts = readStruts(connection, clients.words());
    return areas;
}
