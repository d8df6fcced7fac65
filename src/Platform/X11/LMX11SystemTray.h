// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/X11/LMX11Connection.h"

/// The tray that embeds icon windows (freedesktop.org System Tray Protocol): whoever owns the
/// selection "_NET_SYSTEM_TRAY_Sn" of the screen.
class LMX11SystemTray final : public QObject {
    Q_OBJECT
public:
    explicit LMX11SystemTray(LMX11Connection& connection);

    bool isAvailable();

Q_SIGNALS:
    /// A new owner has announced itself (ICCCM 2.8, "MANAGER").
    void appeared();

private:
    void handle(const xcb_generic_event_t& event);

    LMX11Connection& m_connection;
    xcb_atom_t m_selection = XCB_ATOM_NONE;
    LMX11Connection::Subscription m_subscription;
};
