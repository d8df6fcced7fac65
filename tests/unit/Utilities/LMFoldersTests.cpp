// SPDX-License-Identifier: MIT
#include "Utilities/LMFolders.h"

#include "Support.h"
#include "Utilities/LMBaseDirectories.h"

#include <QFileInfo>

#include <filesystem>

namespace {

using LMFoldersTest = TemporaryDirectoryTest;

TEST_F(LMFoldersTest, MakesItsFoldersForTheOwnerOnly) {
    const LMFolders folders(path(u"not/yet"_qs), logger);
    const QString base = path(u"not/yet/Rook"_qs);
    EXPECT_EQ(folders.storedWindowsURL(), base + QLatin1String("/Stored Windows.sqlite"));
    EXPECT_EQ(folders.logsDirectoryURL(), base + QLatin1String("/Logs"));
    using std::filesystem::perms;
    for (const char* name : {"not", "not/yet", "not/yet/Rook", "not/yet/Rook/Logs"}) {
        const auto status = std::filesystem::status(path(QLatin1String(name)).toStdString());
        EXPECT_EQ(status.permissions(), perms::owner_all) << name;
    }
    const std::filesystem::path opened = base.toStdString();
    std::filesystem::permissions(opened, perms::all);
    EXPECT_FALSE(QFileInfo::exists(folders.storedWindowsURL()));
    EXPECT_EQ(std::filesystem::status(opened).permissions(), perms::owner_all);
    EXPECT_NE(folders.uniqueScreenshotURL(), folders.uniqueScreenshotURL());
    EXPECT_TRUE(messages.isEmpty());
    EXPECT_TRUE(LMFolders(QString(), logger).storedWindowsURL().isNull());
    EXPECT_EQ(messages.join(u'|'), u"Unable to find or create application support directory: "
                                   "No path found for directory in domain."_qs);
}

TEST_F(LMFoldersTest, NumbersBackupsOfOneDay) {
    const LMFolders folders(directory.path(), logger);
    const auto next = [&](const QString& version) {
        return QFileInfo(folders.currentBackupURL(version, QDate(2014, 5, 6))).fileName();
    };
    for (int number = 0; number <= 100; ++number) {
        const QString suffix = number == 0 ? QString() : u' ' + QString::number(number);
        const QString name = u"Stored Windows 1.1 (2014-05-06)"_qs + suffix + u".sqlite"_qs;
        ASSERT_EQ(next(u"1.1"_qs), name);
        write(u"Rook/Backups/"_qs + name, {});
    }
    EXPECT_EQ(next(u"1.1"_qs), QString());
    EXPECT_LT(next(QString(5000, u'9')).size(), 255);
}

TEST_F(LMFoldersTest, BaseDirectoriesIgnoreRelativePaths) {
    const char* const fallback = "/home/u/.local/share";
    const std::tuple<const char*, const char*, const char*> cases[] = {
        {"/data/", "/home/u", "/data"}, {"", "/home/u", fallback}, {"data", "/home/u", fallback},
        {"data", "", nullptr},          {"", "home", nullptr},
    };
    const QByteArray oldHome = qgetenv("HOME");
    for (const auto& [dataHome, home, result] : cases) {
        qputenv("XDG_DATA_HOME", dataHome);
        qputenv("HOME", home);
        EXPECT_EQ(LMDataHomeDirectory(), QString::fromLatin1(result)) << dataHome;
    }
    qputenv("HOME", oldHome);
    qunsetenv("XDG_DATA_HOME");
}

} // namespace
