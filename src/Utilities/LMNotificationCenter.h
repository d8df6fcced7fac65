// SPDX-License-Identifier: MIT
#pragma once

#include <QLatin1String>
#include <QMetaObject>
#include <QObject>
#include <QString>

#include <functional>

/// The notifications by which windows ask the controller for something.
namespace LMNotification {
inline constexpr QLatin1String SaveWindows{"SaveWindowsNotification"};
inline constexpr QLatin1String CheckForUpdates{"CheckForUpdatesNotification"};
inline constexpr QLatin1String StatusItemVisibilityChanged{
    "StatusItemVisibilityChangedNotification"};
inline constexpr QLatin1String LoginItemsChanged{"LoginItemsChangedNotification"};
inline constexpr QLatin1String SupressedAlertsChanged{"SupressedAlertsChangedNotification"};
} // namespace LMNotification

/// Carries named requests between parts of the process that do not know each other. Delivery is
/// synchronous, in the order in which the observers were added.
class LMNotificationCenter : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;

    void postNotification(const QString& name);

    /// Calls the handler whenever the notification is posted, until the context is destroyed or
    /// the connection is disconnected.
    QMetaObject::Connection addObserver(const QString& name, QObject* context,
                                        std::function<void()> handler);

Q_SIGNALS:
    void posted(const QString& name);
};
