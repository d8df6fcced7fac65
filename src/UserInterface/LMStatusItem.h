// SPDX-License-Identifier: MIT
#pragma once

#include "UserInterface/LMStatusMenuView.h"

#include <QDBusConnection>
#include <QObject>
#include <QSystemTrayIcon>

#include <memory>

class LMDesktop;
class QDBusServiceWatcher;

/// The icon in the panel, with the menu. The system tray may come long after Rook, which starts
/// with the session: the icon waits for it without asking again and again.
///
/// Two kinds of tray are served: hosts of the StatusNotifierItem protocol, and the older trays that
/// embed a window. Qt decides once per process which kind it uses, when the first icon is made;
/// so none is made before one of them is there.
class LMStatusItem final : public QObject {
    Q_OBJECT
public:
    /// All of them outlive the icon. The view is for clicks that reach us.
    LMStatusItem(LMDesktop& desktop, LMStatusMenu& menu, LMStatusMenuView& popUpMenu);
    ~LMStatusItem() override;

    /// Whether a tray was found and the icon was given to it.
    bool isShown() const { return m_icon != nullptr; }

private Q_SLOTS:
    void askForNotifierHost();

private:
    void watchNotifierHosts();
    void install(bool isDrawnByPanel);

    LMDesktop& m_desktop;
    LMStatusMenu& m_menu;
    LMStatusMenuView& m_popUpMenu;
    QDBusConnection m_bus = QDBusConnection::sessionBus();
    std::unique_ptr<QDBusServiceWatcher> m_watcher;
    std::unique_ptr<LMStatusMenuView> m_panelMenu; ///< Where the panel draws the menu itself.
    std::unique_ptr<QSystemTrayIcon> m_icon;
};
