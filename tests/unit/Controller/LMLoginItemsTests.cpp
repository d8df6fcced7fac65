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
        test.notificationCenter.addObserver(LMNotification::LoginItemsChanged, &coreApplication,
                                            [this] { ++reports; });
    }
    std::unique_ptr<LMLoginItemsController> make() {
        return std::make_unique<LMLoginItemsController>(
            environment, program, QStringList{test.path(u"home"_s), test.path(u"etc"_s)});
    }
    static QByteArray entry(const QByteArray& lines) { return "[Desktop Entry]\n" + lines; }

    const QString user = test.path(u"home/autostart"_s), system = test.path(u"etc/autostart"_s);
    const QString program = test.path(u"a \"b\" 100% $c\\d"_s);
    const QString ours = u"/org.rook.Rook.desktop"_s, others = u"/mine.desktop"_s;
    int reports = 0;
};

TEST_F(LoginItems, AreWhatTheEntriesInForceSay) {
    const QByteArray exec = "Exec=" + LMExecOfArgument(program).toUtf8(), line = exec + '\n';
    const struct {
        const char* why;
        QByteArray users, systems; ///< Entries with our identifier.
        QByteArray others;         ///< One of the user's with another name.
        bool isItem;
    } rows[] = {
        {"none", {}, {}, {}, false},
        {"the user's", line, {}, {}, true},
        {"the system's", {}, line, {}, true},
        {"masked by the user", "Hidden=true\n", line, {}, false},
        {"switched off", line + "X-GNOME-Autostart-enabled=false\n", {}, {}, false},
        {"for this one", line + "OnlyShowIn=GNOME;XFCE;\n", {}, {}, true},
        {"not for this one", line + "NotShowIn=XFCE;\n", {}, {}, false},
        {"of a program that is gone", "Exec=/nowhere/rook\n", {}, {}, false},
        {"that is tried in vain", line + "TryExec=/nowhere/rook\n", {}, {}, false},
        {"under another name", {}, {}, line, true},
        {"with an option", {}, {}, exec + " --headless %U\n", true},
        {"that only gives a command", {}, {}, exec + " restore-all\n", false},
        {"another program", {}, {}, "Exec=/bin/sh\n", false},
        {"nonsense", {}, {}, "Exec=\"\n\xff\xfe", false},
    };
    qputenv("XDG_CURRENT_DESKTOP", "XFCE");
    const auto items = make();
    for (const auto& row : rows) {
        for (const auto& [file, lines] : {std::pair(user + ours, row.users),
                                          {system + ours, row.systems},
                                          {user + others, row.others}}) {
            QFile::remove(file);
            if (!lines.isEmpty())
                LMWriteFile(file, entry(lines));
        }
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

TEST_F(LoginItems, StartThisVeryProgram) {
    make()->addCurrentApplicationToLoginItems();
    const auto entry = LMKeyFile::fromFile(user + ours);
    ASSERT_TRUE(entry);
    EXPECT_EQ(LMArgumentsOfExec(entry->value(u"Desktop Entry"_s, u"Exec"_s)),
              QStringList(QString(program).replace(u'%', u"%%"_s)));
    EXPECT_EQ(entry->value(u"Desktop Entry"_s, u"TryExec"_s), program);
}

TEST_F(LoginItems, AreWatchedEvenWhereThereIsNoFolderYet) {
    for (const QString& folder : {system, user}) {
        QDir(QFileInfo(folder).path()).removeRecursively();
        const auto items = make();
        QDir().mkpath(folder);
        const QString file = LMWriteFile(folder + ours, entry("Exec=sh\n"));
        EXPECT_TRUE(wait([&] { return reports > 0 && items->isCurrentApplicationInLoginItems(); }));
        LMWriteFile(file, entry("Hidden=true\n")); // In place.
        reports = 0;
        EXPECT_TRUE(wait([&] { return reports > 0; }));
        EXPECT_FALSE(items->isCurrentApplicationInLoginItems());
    }
}

TEST_F(LoginItems, AreNoneWithoutAHome) {
    LMLoginItemsController homeless(environment, program, {});
    EXPECT_FALSE(homeless.isCurrentApplicationInLoginItems());
    EXPECT_NE(homeless.addCurrentApplicationToLoginItems(), QString());
}
