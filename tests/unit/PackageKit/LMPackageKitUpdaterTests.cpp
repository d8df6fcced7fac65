// SPDX-License-Identifier: MIT
#include "Platform/PackageKit/LMPackageKitUpdater.h"

#include "Utilities/LMLogger.h"

#include <QCoreApplication>
#include <QElapsedTimer>

#include <gtest/gtest.h>

#include <optional>

using namespace Qt::Literals::StringLiterals;

namespace {

/// What PackageKit says in one transaction.
class FakeTransaction : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.PackageKit.Transaction")
public:
    QStringList updates;
    QString error;

public Q_SLOTS:
    void SetHints(const QStringList&) {}
    void GetUpdates(qulonglong) {
        for (const QString& update : updates)
            Q_EMIT Package(5, update, u"A summary"_s);
        if (!error.isEmpty())
            Q_EMIT ErrorCode(4, error);
        Q_EMIT Finished(error.isEmpty() ? 1 : 2, 10);
    }

Q_SIGNALS:
    void Package(uint information, const QString& identifier, const QString& summary);
    void ErrorCode(uint code, const QString& details);
    void Finished(uint exit, uint milliseconds);
};

class FakeService : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.PackageKit")
public Q_SLOTS:
    QDBusObjectPath CreateTransaction() { return QDBusObjectPath(u"/1_transaction"_s); }
};

TEST(PackageKitUpdater, AnswersFromWhatTheServiceSays) {
    int count = 1;
    char name[] = "test";
    char* arguments[] = {name, nullptr};
    const QCoreApplication application(count, arguments);
    const auto flags = QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllSignals;
    QDBusConnection bus = QDBusConnection::connectToBus(QDBusConnection::SessionBus, u"service"_s);
    FakeService service;
    FakeTransaction transaction;
    ASSERT_TRUE(bus.registerObject(u"/org/freedesktop/PackageKit"_s, &service, flags));
    ASSERT_TRUE(bus.registerObject(u"/1_transaction"_s, &transaction, flags));

    const LMLogger logger = LMLogger::withCallback([](auto...) {});
    LMPackageKitUpdater updater(u"rook"_s, &QDBusConnection::sessionBus, logger);
    const auto check = [&] {
        std::optional<LMUpdateResult> result;
        const auto connection =
            QObject::connect(&updater, &LMUpdater::checkFinished,
                             [&result](const LMUpdateResult& answer) { result = answer; });
        updater.checkForUpdatesInBackground();
        EXPECT_FALSE(result) << "it must not wait";
        updater.checkForUpdatesInBackground(); // Not a second check.
        QElapsedTimer timer;
        for (timer.start(); !result && !timer.hasExpired(10'000);)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 50);
        QObject::disconnect(connection);
        return result.value_or(LMUpdateResult{{}, u"no answer"_s});
    };
    EXPECT_TRUE(check().failure.contains(u"org.freedesktop.PackageKit")) << "there is no service";
    ASSERT_TRUE(bus.registerService(u"org.freedesktop.PackageKit"_s));
    const struct {
        QStringList updates;
        QString error, newVersion;
    } rows[] = {{{u"bash;5.2;amd64;stable"_s, u"rook;2.0;amd64;stable"_s}, {}, u"2.0"_s},
                {{u"rook-doc;2.0;all;stable"_s, u"rook"_s, QString()}, {}, {}},
                {{}, u"no network"_s, {}}};
    for (const auto& row : rows) {
        transaction.updates = row.updates;
        transaction.error = row.error;
        const LMUpdateResult result = check();
        EXPECT_EQ(result.newVersion, row.newVersion);
        EXPECT_EQ(result.failure, row.error);
    }
}

} // namespace

#include "LMPackageKitUpdaterTests.moc"
