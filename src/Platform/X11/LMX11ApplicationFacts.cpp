// SPDX-License-Identifier: MIT
#include "Platform/X11/LMX11ApplicationFacts.h"

#include "Platform/X11/LMX11Connection.h"
#include "Platform/X11/LMX11WindowProperties.h"

#include <QGuiApplication>

#include <algorithm>
#include <array>
#include <xcb/xcb_icccm.h>

namespace {

constexpr uint32_t mostBytes = 1024;

/// The property is of type STRING, yet toolkits of today write UTF-8.
QString anyText(QByteArrayView bytes) {
    QString text = QString::fromUtf8(bytes);
    return text.contains(QChar::ReplacementCharacter) ? QString::fromLatin1(bytes) : text;
}

/// WM_CLASS: instance and class, each ended by a zero byte.
void readClass(const LMX11Property& property, LMWindowIdentityFacts& facts) {
    const QByteArrayView bytes = property.bytes();
    const qsizetype end = bytes.indexOf('\0');
    facts.wmClassInstance = anyText(end < 0 ? bytes : bytes.first(end));
    const QByteArrayView rest = end < 0 ? QByteArrayView() : bytes.sliced(end + 1);
    const qsizetype restEnd = rest.indexOf('\0');
    facts.wmClassName = anyText(restEnd < 0 ? rest : rest.first(restEnd));
}

xcb_window_t groupOfHints(const LMX11Property& property) {
    xcb_icccm_wm_hints_t hints{};
    if (!property.exists() || xcb_icccm_get_wm_hints_from_reply(&hints, property.reply()) == 0 ||
        (hints.flags & XCB_ICCCM_WM_HINT_WINDOW_GROUP) == 0)
        return XCB_WINDOW_NONE;
    return hints.window_group;
}

} // namespace

LMX11ApplicationFactsRequest::LMX11ApplicationFactsRequest(LMX11Connection& connection,
                                                           xcb_window_t window)
    : m_window(window), m_attributes(xcb_get_window_attributes(connection.xcb(), window)),
      m_class(connection, window, XCB_ATOM_WM_CLASS, mostBytes),
      m_gtkApplicationID(connection, window, connection.atoms().gtkApplicationId, mostBytes),
      m_kdeDesktopFile(connection, window, connection.atoms().kdeDesktopFile, mostBytes),
      m_process(connection, window, connection.ewmhAtoms()._NET_WM_PID),
      m_machine(connection, window, XCB_ATOM_WM_CLIENT_MACHINE, mostBytes),
      m_clientLeader(connection, window, connection.atoms().wmClientLeader),
      m_hints(connection, window, XCB_ATOM_WM_HINTS) {}

std::optional<LMX11ApplicationFacts>
LMX11ApplicationFactsRequest::receive(LMX11Connection& connection,
                                      const QHash<uint32_t, qint64>& processes) const {
    const auto attributes = connection.reply(xcb_get_window_attributes_reply, m_attributes);
    LMX11ApplicationFacts facts;
    readClass(m_class.receive(connection), facts.identity);
    facts.identity.gtkApplicationID = anyText(m_gtkApplicationID.receive(connection).bytes());
    facts.identity.kdeDesktopFile = anyText(m_kdeDesktopFile.receive(connection).bytes());
    facts.claimedProcess = m_process.receive(connection).firstWord().value_or(0);
    facts.clientMachine = LMX11Text(m_machine.receive(connection), connection.atoms());
    const auto leader = m_clientLeader.receive(connection).firstWord();
    const xcb_window_t group = groupOfHints(m_hints.receive(connection));
    if (!attributes)
        return std::nullopt;
    facts.leader = leader.value_or(group != XCB_WINDOW_NONE ? group : m_window);
    facts.serverProcess =
        processes.value(LMX11ClientProcessesRequest::clientOf(connection, m_window));
    // What this program is called it knows best, installed or not.
    if (facts.serverProcess == QCoreApplication::applicationPid() &&
        facts.identity.kdeDesktopFile.isEmpty())
        facts.identity.kdeDesktopFile = QGuiApplication::desktopFileName();
    return facts;
}

bool LMX11ApplicationFactsRequest::restOn(const LMX11Connection& connection, xcb_atom_t property) {
    const LMX11Atoms& atoms = connection.atoms();
    const std::array relevant{
        xcb_atom_t(XCB_ATOM_WM_CLASS),
        atoms.gtkApplicationId,
        atoms.kdeDesktopFile,
        connection.ewmhAtoms()._NET_WM_PID,
        xcb_atom_t(XCB_ATOM_WM_CLIENT_MACHINE),
        atoms.wmClientLeader,
    };
    return std::ranges::find(relevant, property) != relevant.end();
}

LMX11PresentationRequest::LMX11PresentationRequest(LMX11Connection& connection, xcb_window_t window)
    : m_type(connection, window, connection.ewmhAtoms()._NET_WM_WINDOW_TYPE),
      m_transientFor(connection, window, XCB_ATOM_WM_TRANSIENT_FOR),
      m_states(connection, window, connection.ewmhAtoms()._NET_WM_STATE),
      m_wmState(connection, window, connection.atoms().wmState),
      m_desktop(connection, window, connection.ewmhAtoms()._NET_WM_DESKTOP) {}

LMX11Presentation LMX11PresentationRequest::receive(LMX11Connection& connection) const {
    const LMX11Property types = m_type.receive(connection);
    const LMX11Property transientFor = m_transientFor.receive(connection);
    const bool isTransient = transientFor.firstWord().value_or(XCB_WINDOW_NONE) != XCB_WINDOW_NONE;
    LMX11Presentation presentation;
    presentation.type = LMX11ReadWindowType(types, isTransient, connection.ewmhAtoms());
    presentation.states =
        LMX11ReadWindowStates(m_states.receive(connection), connection.ewmhAtoms());
    presentation.isIconic = m_wmState.receive(connection).firstWord() == XCB_ICCCM_WM_STATE_ICONIC;
    presentation.desktop = m_desktop.receive(connection).firstWord().value_or(0);
    return presentation;
}

bool LMX11PresentationRequest::restsOn(const LMX11Connection& connection, xcb_atom_t property) {
    const xcb_ewmh_connection_t& ewmh = connection.ewmhAtoms();
    const std::array relevant{ewmh._NET_WM_WINDOW_TYPE, xcb_atom_t(XCB_ATOM_WM_TRANSIENT_FOR),
                              ewmh._NET_WM_STATE, connection.atoms().wmState, ewmh._NET_WM_DESKTOP};
    return std::ranges::find(relevant, property) != relevant.end();
}

bool LMX11Presentation::isListed() const {
    switch (type) {
    case LMX11WindowType::Desktop:
    case LMX11WindowType::Dock:
    case LMX11WindowType::Splash:
    case LMX11WindowType::Menu:
    case LMX11WindowType::Notification:
        return false;
    default:
        return true;
    }
}

bool LMX11Presentation::isInTaskBars() const {
    const bool isOfTaskBars = type == LMX11WindowType::Normal || type == LMX11WindowType::Dialog ||
                              type == LMX11WindowType::Unknown;
    return isOfTaskBars && !states.skipsTaskbar;
}
