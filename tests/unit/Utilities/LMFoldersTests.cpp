// SPDX-License-Identifier: MIT
#include "Utilities/LMFolders.h"

#include "Support.h"
#include "Utilities/LMBaseDirectories.h"

#include <QDir>
#include <QFileInfo>

namespace {

using LMFoldersTest = TemporaryDirectoryTest;

constexpr auto ownerOnly = QFileDevice::ReadOwner | QFileDevice::WriteOwner |
                           QFileDevice::ExeOwner | QFileDevice::ReadUser | QFileDevice::WriteUser |
                           QFileDevice::ExeUser;

TEST_F(LMFoldersTest, MakesItsFoldersForTheOwnerOnly) {
    const LMFolders folders(path(u"not/yet"_qs), logger);
    const QString base = path(u"not/yet/Rook"_qs);
    EXPECT_EQ(folders.storedWindowsURL(), base + QLatin1String("/Stored Windows.sqlite"));
    EXPECT_EQ(folders.logsDirectoryURL(), base + QLatin1String("/Logs"));
    for (const char* name : {"not", "not/yet", "not/yet/Rook", "not/yet/Rook/Logs"})
        EXPECT_EQ(QFileInfo(path(QLatin1String(name))).permissions(), ownerOnly) << name;
    EXPECT_FALSE(QFileInfo::exists(folders.storedWindowsURL()));

    EXPECT_NE(folders.uniqueScreenshotURL(), folders.uniqueScreenshotURL());
    EXPECT_TRUE(messages.isEmpty());
}

TEST_F(LMFoldersTest, FileInPlaceOfAFolder) {
    const LMFolders folders(directory.path(), logger);
    QDir(directory.path()).mkdir(u"Rook"_qs);
    write(u"Rook/Screenshots"_qs, "a file");
    EXPECT_TRUE(folders.screenshotsDirectoryURL().isNull());
    EXPECT_TRUE(folders.uniqueScreenshotURL().isNull());
    const LMFolders noBase(QString(), logger);
    EXPECT_TRUE(noBase.storedWindowsURL().isNull());
    EXPECT_EQ(messages,
              QStringList(QStringLiteral("Unable to find or create application support directory: "
                                         "No path found for directory in domain.")));
}

TEST_F(LMFoldersTest, NumbersBackupsOfOneDay) {
    const LMFolders folders(directory.path(), logger);
    const auto next = [&](const QString& version) {
        return folders.currentBackupURL(version, QDate(2014, 5, 6));
    };
    const QString base = u"Rook/Backups/Stored Windows 1.1 (2014-05-06)"_qs;
    for (int number = 0; number <= 100; ++number) {
        const QString suffix = number == 0 ? QString() : u' ' + QString::number(number);
        const QString name = base + suffix + QLatin1String(".sqlite");
        ASSERT_EQ(next(u"1.1"_qs), path(name));
        write(name, {});
    }
    EXPECT_TRUE(next(u"1.1"_qs).isNull());
    EXPECT_EQ(next(u"../1\n2"_qs),
              path(u"Rook/Backups/Stored Windows ..-1-2 (2014-05-06).sqlite"_qs));
    EXPECT_LT(QFileInfo(next(QString(5000, u'9'))).fileName().size(), 255);
}

TEST_F(LMFoldersTest, BaseDirectoriesIgnoreRelativePaths) {
    const char* const fallback = "/home/u/.local/share";
    const std::tuple<const char*, const char*, const char*> cases[] = {
        {"/data/", "/home/u", "/data"}, {"", "/home/u", fallback}, {"data", "/home/u", fallback},
        {"data", "", nullptr},          {"", "home", nullptr},
    };
    const QByteArray oldHome = qgetenv("HOME");
    const QByteArray oldDataHome = qgetenv("XDG_DATA_HOME");
    for (const auto& [dataHome, home, result] : cases) {
        qputenv("XDG_DATA_HOME", dataHome);
        qputenv("HOME", home);
        EXPECT_EQ(LMDataHomeDirectory(), QString::fromLatin1(result)) << dataHome;
    }
    qputenv("HOME", oldHome);
    oldDataHome.isNull() ? qunsetenv("XDG_DATA_HOME") : qputenv("XDG_DATA_HOME", oldDataHome);
}

} // namespace
