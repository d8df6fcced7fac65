// SPDX-License-Identifier: MIT
#include "Platform/PackageKit/LMPackageKitUpdater.h"

#include "Utilities/LMFormat.h"
#include "Utilities/LMLogger.h"

#include <QDBusError>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

#include <chrono>
#include <utility>

using namespace std::chrono_literals;

// Names and numbers are those of PackageKit's D-Bus interface.
namespace {

constexpr QLatin1String Service{"org.freedesktop.PackageKit"};
constexpr QLatin1String Path{"/org/freedesktop/PackageKit"};
constexpr QLatin1String TransactionInterface{"org.freedesktop.PackageKit.Transaction"};
constexpr quint64 NoFilter = 1U << 1U; // PK_FILTER_ENUM_NONE as a bit field.

QDBusMessage transactionCall(const QString& path, const QString& method,
                             const QVariantList& arguments) {
    QDBusMessage call = QDBusMessage::createMethodCall(Service, path, TransactionInterface, method);
    call.setArguments(arguments);
    return call;
}

} // namespace

LMPackageKitUpdater::LMPackageKitUpdater(QString packageName, std::function<QDBusConnection()> bus,
                                         const LMLogger& logger)
    : m_packageName(std::move(packageName)), m_connect(std::move(bus)), m_bus(QString()),
      m_logger(logger) {
    m_deadline.setSingleShot(true);
    m_deadline.setInterval(2min);
    connect(&m_deadline, &QTimer::timeout, this,
            [this] { finish(LMLocalized("PackageKit does not answer.")); });
}

void LMPackageKitUpdater::checkForUpdatesInBackground() {
    if (std::exchange(m_isChecking, true))
        return;
    m_result = {};
    m_deadline.start();
    m_bus = m_connect();
    createTransaction();
}

void LMPackageKitUpdater::createTransaction() {
    const QDBusMessage call =
        QDBusMessage::createMethodCall(Service, Path, Service, QStringLiteral("CreateTransaction"));
    auto* watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(call), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        watcher->deleteLater();
        const QDBusPendingReply<QDBusObjectPath> reply = *watcher;
        if (reply.isError())
            finish(reply.error().message());
        else
            getUpdates(reply.value());
    });
}

void LMPackageKitUpdater::getUpdates(const QDBusObjectPath& transaction) {
    if (!m_isChecking)
        return; // Too late.
    m_transaction = transaction.path();
    connectTransaction(true);
    m_bus.send(transactionCall(
        m_transaction, QStringLiteral("SetHints"),
        {QStringList{QStringLiteral("background=true"), QStringLiteral("interactive=false")}}));
    auto* watcher = new QDBusPendingCallWatcher(
        m_bus.asyncCall(
            transactionCall(m_transaction, QStringLiteral("GetUpdates"), {QVariant(NoFilter)})),
        this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        watcher->deleteLater();
        if (watcher->isError())
            finish(watcher->error().message());
    });
}

void LMPackageKitUpdater::connectTransaction(bool isConnected) {
    const struct {
        const char* name;
        const char* slot;
    } signalSlots[] = {{"Package", SLOT(package(uint, QString, QString))},
                       {"ErrorCode", SLOT(errorCode(uint, QString))},
                       {"Finished", SLOT(finished(uint, uint))}};
    for (const auto& [name, slot] : signalSlots) {
        const QString signal = QLatin1String(name);
        if (isConnected)
            m_bus.connect(Service, m_transaction, TransactionInterface, signal, this, slot);
        else
            m_bus.disconnect(Service, m_transaction, TransactionInterface, signal, this, slot);
    }
}

void LMPackageKitUpdater::package(uint, const QString& packageIdentifier, const QString&) {
    // "name;version;architecture;repository"
    const QStringList parts = packageIdentifier.split(u';');
    if (parts.size() > 1 && parts.first() == m_packageName)
        m_result.newVersion = parts[1];
}

void LMPackageKitUpdater::errorCode(uint, const QString& details) {
    m_result.failure = details;
}

void LMPackageKitUpdater::finished(uint, uint) {
    finish(m_result.failure);
}

void LMPackageKitUpdater::finish(const QString& failure) {
    if (!std::exchange(m_isChecking, false))
        return;
    m_deadline.stop();
    if (!m_transaction.isEmpty())
        connectTransaction(false);
    m_transaction.clear();
    m_result.failure = failure;
    if (!failure.isEmpty())
        m_logger.info(QStringLiteral("Updates could not be looked for: %@"), {failure});
    else if (m_result.newVersion.isEmpty())
        m_logger.info(QStringLiteral("There is no update."));
    else
        m_logger.info(QStringLiteral("There is an update: %@"), {m_result.newVersion});
    Q_EMIT checkFinished(m_result);
}
