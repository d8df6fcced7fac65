// SPDX-License-Identifier: MIT
#include "UserInterface/LMStatusItem.h"

#include "Platform/LMDesktop.h"
#include "UserInterface/LMStatusItemImage.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>

namespace {

// https://www.freedesktop.org/wiki/Specifications/StatusNotifierItem
constexpr QLatin1String Watcher{"org.kde.StatusNotifierWatcher"};
constexpr QLatin1String WatcherPath{"/StatusNotifierWatcher"};

} // namespace

LMStatusItem::LMStatusItem(LMDesktop& desktop, LMStatusMenu& menu, LMStatusMenuView& popUpMenu)
    : m_desktop(desktop), m_menu(menu), m_popUpMenu(popUpMenu) {
    watchNotifierHosts();
    connect(&m_desktop, &LMDesktop::systemTrayAppeared, this, &LMStatusItem::askForNotifierHost);
    askForNotifierHost();
}

LMStatusItem::~LMStatusItem() = default;

void LMStatusItem::watchNotifierHosts() {
    m_watcher = std::make_unique<QDBusServiceWatcher>(Watcher, m_bus,
                                                      QDBusServiceWatcher::WatchForRegistration);
    connect(m_watcher.get(), &QDBusServiceWatcher::serviceRegistered, this,
            &LMStatusItem::askForNotifierHost);
    // A watcher without a host shows nothing.
    m_bus.connect(Watcher, WatcherPath, Watcher, QStringLiteral("StatusNotifierHostRegistered"),
                  this, SLOT(askForNotifierHost()));
}

void LMStatusItem::askForNotifierHost() {
    if (isShown())
        return;
    QDBusMessage question = QDBusMessage::createMethodCall(
        Watcher, WatcherPath, QStringLiteral("org.freedesktop.DBus.Properties"),
        QStringLiteral("Get"));
    question << QString(Watcher) << QStringLiteral("IsStatusNotifierHostRegistered");
    question.setAutoStartService(false);
    auto* answer = new QDBusPendingCallWatcher(m_bus.asyncCall(question), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
        const QDBusPendingReply<QVariant> reply = *answer;
        answer->deleteLater();
        const bool hasHost = reply.isValid() && reply.value().toBool();
        if (hasHost || m_desktop.hasSystemTray())
            install(hasHost);
    });
}

void LMStatusItem::install(bool isDrawnByPanel) {
    if (isShown())
        return;
    if (isDrawnByPanel)
        m_panelMenu = std::make_unique<LMStatusMenuView>(m_menu, LMStatusMenuView::Drawn::ByPanel);
    m_icon = std::make_unique<QSystemTrayIcon>(QIcon(new LMStatusItemImage));
    m_icon->setObjectName(QStringLiteral("statusItem"));
    m_icon->setToolTip(QStringLiteral("Rook"));
    m_icon->setContextMenu(&(m_panelMenu ? *m_panelMenu : m_popUpMenu).menu());
    // The other button opens the menu by itself.
    connect(m_icon.get(), &QSystemTrayIcon::activated, this,
            [this](QSystemTrayIcon::ActivationReason reason) {
                if (reason == QSystemTrayIcon::Trigger)
                    m_popUpMenu.popUpAtCursor();
            });
    m_icon->show();
}
