// SPDX-License-Identifier: MIT
#include "Support.h"
#include "support/LMDesktopTools.h"
#include "Utilities/LMUserDefaults.h"

#include <filesystem>

namespace {

using LMUserDefaultsChangesTest = TemporaryDirectoryTest;

const QString a = u"a"_qs, b = u"b"_qs;

TEST_F(LMUserDefaultsChangesTest, ObserversLearnOfEveryChangeOfTheirKey) {
    LMUserDefaults defaults(path(u"settings.ini"_qs), logger);
    QStringList seen;
    const auto show = [&](const QString& key) { seen.append(key + defaults.stringForKey(key)); };
    const auto ofA = defaults.addObserver(a, [&] { show(a); });
    auto ofB = defaults.addObserver(b, [&] { show(b); });
    // One that changes settings itself, and drops another observer.
    const auto meddler = defaults.addObserver(a, [&] {
        ofB.reset();
        defaults.setObject(b, u"2"_qs);
        defaults.removeObject(a);
    });
    for (const QString& key : {b, b, u"other"_qs, a})
        defaults.setObject(key, u"1"_qs);
    write(u"settings.ini"_qs, "[General]\na=3\n");
    defaults.setObject(u"other"_qs, 2);
    EXPECT_EQ(seen.first(4), (QStringList{u"b1"_qs, u"a1"_qs, u"a"_qs, u"a3"_qs}));
}

TEST_F(LMUserDefaultsChangesTest, TheFileIsFollowedHoweverItIsChanged) {
    int argc = 0;
    const QCoreApplication application(argc, nullptr);
    const QString file = path(u"new/settings.ini"_qs);
    LMUserDefaults defaults(file, logger);
    int changes = 0;
    const auto observation = defaults.addObserver(a, [&] { ++changes; });
    defaults.followFile();
    const auto reads = [&](const QString& value) {
        return LMWaitUntil([&] { return defaults.stringForKey(a) == value; });
    };
    defaults.setObject(a, u"1"_qs); // Makes the directory.
    for (const char* value : {"2", "3", "4"}) {
        const QString other = write(u"other"_qs, QByteArray("[General]\na=") + value);
        std::filesystem::rename(other.toStdString(), file.toStdString());
        EXPECT_TRUE(reads(QLatin1String(value)));
    }
    write(u"new/settings.ini"_qs, "[General]\na=5\n"); // Written in place.
    EXPECT_TRUE(reads(u"5"_qs));
    QFile::remove(file);
    EXPECT_TRUE(reads(QString()));
    write(u"new/settings.ini"_qs, "[General]\na=6\n");
    EXPECT_TRUE(reads(u"6"_qs));
    EXPECT_EQ(changes, 7);
}

} // namespace
