// SPDX-License-Identifier: MIT
#include "Platform/PackageKit/LMPackageKitUpdater.h"

#include "support/LMDesktopTools.h"
#include "Utilities/LMLogger.h"

#include <QCoreApplication>
#include <QDBusMessage>
#include <QDBusVirtualObject>

#include <gtest/gtest.h>

#include <tuple>

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
            tell(u"Package"_s, {5U, update, QString()});
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
    QList<LMUpdateResult> results;
    QObject::connect(&updater, &LMUpdater::checkFinished,
                     [&](const LMUpdateResult& answer) { results.append(answer); });
    const auto check = [&] {
        results.clear();
        updater.checkForUpdatesInBackground();
        EXPECT_TRUE(results.isEmpty()) << "it must not wait";
        updater.checkForUpdatesInBackground(); // Not a second check.
        LMWaitUntil([&] { return !results.isEmpty(); });
        return results.value(0, {{}, u"no answer"_s});
    };
    EXPECT_TRUE(check().failure.contains(u"org.freedesktop.PackageKit")) << "there is no service";
    ASSERT_TRUE(bus.registerService(u"org.freedesktop.PackageKit"_s));
    const std::tuple<QStringList, QString, QString> rows[] = {
        {{u"bash;5.2;amd64;stable"_s, u"rook;2.0;amd64;stable"_s}, {}, u"2.0"_s},
        {{u"rook-doc;2.0;all;stable"_s, u"rook"_s, QString()}, QString(), QString()},
        {{}, u"no network"_s, QString()}};
    for (const auto& [updates, error, newVersion] : rows) {
        service.updates = updates;
        service.error = error;
        const LMUpdateResult result = check();
        EXPECT_EQ(result.newVersion, newVersion);
        EXPECT_EQ(result.failure, error);
    }
}

} // namespace
