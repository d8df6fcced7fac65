// SPDX-License-Identifier: MIT
#include "Platform/PackageKit/LMPackageKitUpdater.h"

#include "support/LMDesktopTools.h"
#include "Utilities/LMLogger.h"

#include <QCoreApplication>
#include <QDBusMessage>
#include <QDBusVirtualObject>

#include <gtest/gtest.h>

#include <optional>

using namespace Qt::Literals::StringLiterals;

namespace {

/// PackageKit as far as it is asked: every transaction says the same.
class FakeService : public QDBusVirtualObject {
public:
    QStringList updates;
    QString error;

    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& call, const QDBusConnection& bus) override {
        const auto tell = [&](const QString& name, const QVariantList& arguments) {
            auto signal = QDBusMessage::createSignal(call.path(), call.interface(), name);
            signal.setArguments(arguments);
            bus.send(signal);
        };
        bus.send(call.createReply(QVariant::fromValue(QDBusObjectPath(u"/org/1"_s))));
        if (call.member() != u"GetUpdates"_s)
            return true;
        for (const QString& update : updates)
            tell(u"Package"_s, {5U, update, u"A summary"_s});
        if (!error.isEmpty())
            tell(u"ErrorCode"_s, {4U, error});
        tell(u"Finished"_s, {error.isEmpty() ? 1U : 2U, 10U});
        return true;
    }
};

TEST(PackageKitUpdater, AnswersFromWhatTheServiceSays) {
    int count = 1;
    char name[] = "test";
    char* arguments[] = {name, nullptr};
    const QCoreApplication application(count, arguments);
    QDBusConnection bus = QDBusConnection::connectToBus(QDBusConnection::SessionBus, u"service"_s);
    FakeService service;
    ASSERT_TRUE(bus.registerVirtualObject(u"/org"_s, &service, QDBusConnection::SubPath));

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
        LMWaitUntil([&] { return result.has_value(); });
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
        service.updates = row.updates;
        service.error = row.error;
        const LMUpdateResult result = check();
        EXPECT_EQ(result.newVersion, row.newVersion);
        EXPECT_EQ(result.failure, row.error);
    }
}

} // namespace
