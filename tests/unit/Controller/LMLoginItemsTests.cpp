// SPDX-License-Identifier: MIT
#include "Controller/LMLoginItemsController.h"
#include "Platform/LMDesktopEntry.h"
#include "Platform/LMKeyFile.h"
#include "unit/Controller/ControllerTest.h"
#include "unit/Files.h"

#include <QDir>
#include <QFileInfo>

class LoginItems : public ControllerTest {
protected:
    void SetUp() override {
        for (const QString& folder : {user, system})
            QDir().mkpath(folder);
        LMWriteFile(program);
        center.addObserver(LMNotification::LoginItemsChanged, &coreApplication,
                           [this] { ++reports; });
    }
    std::unique_ptr<LMLoginItemsController> make() {
        return std::make_unique<LMLoginItemsController>(
            environment, program, QStringList{test.path(u"home"_s), test.path(u"etc"_s)});
    }
    static QByteArray entry(const QByteArray& lines) { return "[Desktop Entry]\n" + lines; }
    void clear() {
        for (const QString& folder : {user, system})
            for (const QFileInfo& file : QDir(folder).entryInfoList(QDir::Files))
                QFile::remove(file.filePath());
    }

    LMNotificationCenter& center = test.notificationCenter;
    const QString user = test.path(u"home/autostart"_s), system = test.path(u"etc/autostart"_s);
    const QString program = test.path(u"a \"b\" 100% $c\\d"_s);
    const QString ours = u"/org.rook.Rook.desktop"_s;
    int reports = 0;
};

TEST_F(LoginItems, AreWhatTheEntriesInForceSay) {
    const QByteArray exec = "Exec=" + LMExecOfArgument(program).toUtf8();
    const struct {
        const char* why;
        QByteArray users, systems; ///< Entries with our identifier.
        QByteArray others;         ///< One of the user's with another name.
        bool isItem;
    } rows[] = {
        {"none", {}, {}, {}, false},
        {"the user's", "Exec=rook\n", {}, {}, true},
        {"the system's", {}, "Exec=rook\n", {}, true},
        {"masked by the user", "Hidden=true\n", "Exec=rook\n", {}, false},
        {"masked by the system only", "Exec=rook\n", "Hidden=true\n", {}, true},
        {"switched off", "X-GNOME-Autostart-enabled=false\n", {}, {}, false},
        {"for another desktop", "OnlyShowIn=GNOME;KDE;\n", {}, {}, false},
        {"for this one", "OnlyShowIn=GNOME;XFCE;\n", {}, {}, true},
        {"not for this one", "NotShowIn=XFCE;\n", {}, {}, false},
        {"under another name", {}, {}, exec + '\n', true},
        {"with an option", {}, {}, exec + " --headless %U\n", true},
        {"that only gives a command", {}, {}, exec + " restore-all\n", false},
        {"another program", {}, {}, "Exec=/bin/sh\n", false},
        {"nonsense", {}, {}, "Exec=\"\n\xff\xfe", false},
    };
    qputenv("XDG_CURRENT_DESKTOP", "XFCE");
    const auto items = make();
    for (const auto& row : rows) {
        clear();
        if (!row.users.isEmpty())
            LMWriteFile(user + ours, entry(row.users));
        if (!row.systems.isEmpty())
            LMWriteFile(system + ours, entry(row.systems));
        if (!row.others.isEmpty())
            LMWriteFile(user + u"/mine.desktop"_s, entry(row.others));
        EXPECT_EQ(items->isCurrentApplicationInLoginItems(), row.isItem) << row.why;
        // Both operations reach their end from everywhere and leave the system's entries alone.
        const QByteArray before = LMFileContent(system + ours);
        EXPECT_EQ(items->removeCurrentApplicationFromLoginItems(), QString()) << row.why;
        EXPECT_FALSE(items->isCurrentApplicationInLoginItems()) << row.why;
        EXPECT_EQ(items->addCurrentApplicationToLoginItems(), QString()) << row.why;
        EXPECT_TRUE(items->isCurrentApplicationInLoginItems()) << row.why;
        EXPECT_EQ(LMFileContent(system + ours), before) << row.why;
    }
    qunsetenv("XDG_CURRENT_DESKTOP");
}

TEST_F(LoginItems, StartThisVeryProgramAsThePackageDoes) {
    make()->addCurrentApplicationToLoginItems();
    const auto entry = LMKeyFile::fromFile(user + ours);
    const auto packaged = LMKeyFile::fromFile(QStringLiteral(ROOK_AUTOSTART_ENTRY));
    ASSERT_TRUE(entry && packaged);
    EXPECT_EQ(entry->groups(), packaged->groups());
    const QString group = u"Desktop Entry"_s;
    const QStringList keys = packaged->keys(group);
    EXPECT_TRUE(keys.contains(u"Exec"_s) && keys.contains(u"TryExec"_s));
    for (const QString& key : keys) {
        const QString value = entry->value(group, key);
        if (key == "Exec"_L1)
            EXPECT_EQ(LMArgumentsOfExec(value),
                      QStringList{QString(program).replace(u'%', u"%%"_s)});
        else
            EXPECT_EQ(value, key == "TryExec"_L1 ? program : packaged->value(group, key))
                << key.toStdString();
    }
}

TEST_F(LoginItems, AreWatchedWhereverTheFolderComesFrom) {
    QDir(test.path(u"home"_s)).removeRecursively();
    const auto items = make();
    const auto change = [&](const std::function<void()>& step, bool isItem, const char* what) {
        reports = 0;
        step();
        EXPECT_TRUE(wait([&] {
            return reports > 0 && items->isCurrentApplicationInLoginItems() == isItem;
        })) << what;
    };
    change(
        [&] {
            QDir().mkpath(user);
            LMWriteFile(user + ours, entry("Exec=rook\n"));
        },
        true, "made");
    change([&] { LMWriteFile(user + ours, entry("Hidden=true\n")); }, false, "written in place");
    change(
        [&] {
            QFile::remove(user + ours);
            LMWriteFile(system + ours, entry("Exec=rook\n"));
        },
        true, "the system's");
    change([&] { QFile::rename(system + ours, system + u"/x"_s); }, false, "renamed");
}

TEST_F(LoginItems, WhatCannotBeWrittenIsSaid) {
    QDir(user).removeRecursively();
    LMWriteFile(user);
    EXPECT_NE(make()->addCurrentApplicationToLoginItems(), QString());
    EXPECT_FALSE(make()->isCurrentApplicationInLoginItems());
    const LMLoginItemsController homeless(environment, program, {});
    EXPECT_FALSE(homeless.isCurrentApplicationInLoginItems());
}
