// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/LMUpdater.h"

#include <QDBusConnection>
#include <QDBusObjectPath>
#include <QTimer>

#include <functional>

class LMLogger;

/// Asks PackageKit, the distributions' common package service, whether it has a newer package of
/// this program. Where there is no such service nobody can tell.
class LMPackageKitUpdater final : public LMUpdater {
    Q_OBJECT
public:
    /// bus: connects to the system bus; called with the first check, so that a program that never
    /// checks never connects. The logger outlives this object.
    LMPackageKitUpdater(QString packageName, std::function<QDBusConnection()> bus,
                        const LMLogger& logger);

    void checkForUpdatesInBackground() override;

private Q_SLOTS:
    // Signals of org.freedesktop.PackageKit.Transaction.
    void package(uint information, const QString& packageIdentifier, const QString& summary);
    void errorCode(uint code, const QString& details);
    void finished(uint exit, uint milliseconds);

private:
    void createTransaction();
    void getUpdates(const QDBusObjectPath& transaction);
    void connectTransaction(bool isConnected);
    void finish(const QString& failure);

    QString m_packageName;
    std::function<QDBusConnection()> m_connect;
    QDBusConnection m_bus;
    const LMLogger& m_logger;
    QTimer m_deadline;
    bool m_isChecking = false;
    QString m_transaction; ///< Path of the transaction in progress; empty before there is one.
    LMUpdateResult m_result;
};
