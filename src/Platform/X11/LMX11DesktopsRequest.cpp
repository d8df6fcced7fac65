// SPDX-License-Identifier: MIT
#include "Platform/X11/LMX11DesktopsRequest.h"

#include "Platform/X11/LMX11Connection.h"

#include <algorithm>

namespace {

/// More than anybody's; a property may say anything.
constexpr uint32_t mostDesktops = 1024;

} // namespace

LMX11DesktopsRequest::LMX11DesktopsRequest(LMX11Connection& connection)
    : m_count(connection, connection.root(), connection.ewmhAtoms()._NET_NUMBER_OF_DESKTOPS),
      m_names(connection, connection.root(), connection.ewmhAtoms()._NET_DESKTOP_NAMES) {}

/// There may be more names than desktops or fewer (EWMH).
QStringList LMX11DesktopsRequest::receive(LMX11Connection& connection) const {
    const uint32_t count = m_count.receive(connection).firstWord().value_or(0);
    const QString text = LMX11Text(m_names.receive(connection), connection.atoms());
    QStringList names = text.split(QChar(u'\0'));
    names.resize(qsizetype(std::min(count, mostDesktops)));
    return names;
}
