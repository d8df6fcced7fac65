// SPDX-License-Identifier: MIT
#include "Platform/X11/LMX11WindowStates.h"

#include "Platform/LMPossibleWindowState.h"
#include "Platform/X11/LMX11Accessibility.h"
#include "Platform/X11/LMX11DesktopsRequest.h"
#include "Platform/X11/LMX11NormalFrames.h"
#include "Platform/X11/LMX11ViewGuard.h"
#include "Platform/X11/LMX11WindowManager.h"
#include "Platform/X11/LMX11WindowState.h"

namespace {

LMPlatformStatus failure(LMPlatformError error) {
    return LMPlatformStatus::failure(error);
}

} // namespace

LMX11WindowStates::LMX11WindowStates(LMX11Connection& connection, LMX11ApplicationIndex& index,
                                     LMX11WindowManager& windowManager,
                                     LMX11Accessibility& accessibility,
                                     LMX11NormalFrames& normalFrames)
    : m_connection(connection), m_windowManager(windowManager), m_accessibility(accessibility),
      m_normalFrames(normalFrames), m_reader(connection), m_setter(connection, windowManager),
      m_stackSetter(connection, index, windowManager) {}

LMWindowStateSupport LMX11WindowStates::windowStateSupport() {
    const xcb_ewmh_connection_t& atoms = m_connection.ewmhAtoms();
    const LMX11PropertyRequest request(m_connection, m_connection.root(), atoms._NET_SUPPORTED);
    const bool hasDesktops = !desktopNames().isEmpty();
    const LMX11Property supported = request.receive(m_connection);
    const auto has = [&](xcb_atom_t atom) { return supported.containsWord(atom); };
    if (!m_windowManager.isRunning())
        return {};
    return {has(atoms._NET_WM_STATE_MAXIMIZED_HORZ) && has(atoms._NET_WM_STATE_MAXIMIZED_VERT),
            has(atoms._NET_WM_STATE_FULLSCREEN),
            has(atoms._NET_WM_STATE_HIDDEN),
            has(atoms._NET_WM_STATE_SHADED),
            has(atoms._NET_WM_STATE_ABOVE),
            has(atoms._NET_WM_STATE_BELOW),
            has(atoms._NET_WM_DESKTOP) && hasDesktops,
            has(atoms._NET_CLIENT_LIST_STACKING)};
}

QStringList LMX11WindowStates::desktopNames() {
    return LMX11DesktopsRequest(m_connection).receive(m_connection);
}

LMPlatformResult<LMWindowState> LMX11WindowStates::stateOfWindow(const LMElement& element) {
    using Result = LMPlatformResult<LMWindowState>;
    if (element.kind != LMElement::Kind::Window)
        return Result::failure(LMPlatformError::InvalidElement);
    const auto known = m_accessibility.readWindow(element);
    if (!known)
        return Result::failure(known.error());
    LMWindowState state = LMX11StateOfWindow(known->window, known->desktopNames);
    if (const auto frame = m_normalFrames.frameOf(known->window, known->coordinates.monitors()))
        state.normalFrame = known->coordinates.globalFromRoot(QRectF(*frame));
    return Result::success(state);
}

QList<LMPlatformStatus> LMX11WindowStates::setStates(const QList<LMWindowStateChange>& changes) {
    const LMWindowStateSupport support = windowStateSupport();
    QList<xcb_window_t> windows;
    for (const LMWindowStateChange& change : changes) {
        m_accessibility.forget(change.window);
        const bool isWindow = change.window.kind == LMElement::Kind::Window;
        windows.append(isWindow ? xcb_window_t(change.window.identifier)
                                : xcb_window_t(XCB_WINDOW_NONE));
    }
    LMX11ViewGuard view(m_connection, m_windowManager);
    LMX11Reading reading = m_reader.readFrames(windows);
    m_normalFrames.note(reading);
    QList<LMWindowState> wanted;
    for (qsizetype index = 0; index < changes.size(); ++index)
        wanted.append(LMPossibleWindowState(
            changes[index].state, LMX11StateOfWindow(reading.windows[index], reading.desktopNames),
            support, reading.desktopNames.size(), int(view.currentDesktop())));
    const bool isAnswered = support != LMWindowStateSupport() && m_setter.reach(reading, wanted);
    for (qsizetype index = 0; isAnswered && index < changes.size(); ++index) {
        if (const auto& frame = changes[index].frame)
            m_accessibility.frameSetter().setPlainFrame(reading.coordinates, reading.windows[index],
                                                        *frame);
    }
    if (isAnswered && m_setter.hasAsked())
        view.restore();

    const bool isConnected = m_connection.isConnected();
    QList<LMPlatformStatus> result;
    for (const LMX11Window& window : std::as_const(reading.windows)) {
        if (isConnected && !window.exists)
            result.append(failure(LMPlatformError::InvalidElement));
        else
            result.append(isAnswered ? LMPlatformStatus::success()
                                     : failure(LMPlatformError::CannotComplete));
    }
    return result;
}

QList<LMElement> LMX11WindowStates::stackingOrder() {
    QList<LMElement> result;
    for (const xcb_window_t window : m_stackSetter.stackingOrder())
        result.append({LMElement::Kind::Window, window, 0});
    return result;
}

LMPlatformStatus LMX11WindowStates::setStackingOrder(const QList<LMElement>& frontToBack) {
    QList<xcb_window_t> windows;
    for (const LMElement& element : frontToBack)
        windows.append(xcb_window_t(element.identifier));
    return m_stackSetter.reach(windows);
}
