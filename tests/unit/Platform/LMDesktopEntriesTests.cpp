// SPDX-License-Identifier: MIT
#include "Platform/LMDesktopEntries.h"

#include "Platform/LMDefaultApplications.h"
#include "Platform/LMIconTheme.h"
#include "Platform/LMKeyFile.h"
#include "Platform/LMProcessInformation.h"
#include "unit/Utilities/Support.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QImage>

#include <filesystem>

namespace {

/// A home and a system data directory, filled by each test.
class LMDesktopEntriesTest : public TemporaryDirectoryTest {
protected:
    void add(const QString& name, const QByteArray& content) {
        QDir().mkpath(QFileInfo(path(name)).path());
        write(name, content);
    }
    void addEntry(const QString& name, const QByteArray& lines) {
        add(name + u".desktop"_qs, "[Desktop Entry]\nType=Application\n" + lines);
    }
    const QStringList dataDirectories{path(u"home"_qs), path(u"system"_qs)};
};

TEST_F(LMDesktopEntriesTest, ReadsEntriesAndSeesChanges) {
    addEntry(u"home/applications/masked"_qs, "Hidden=true");
    addEntry(u"home/applications/own"_qs, "Name=Mine");
    addEntry(u"system/applications/masked"_qs, "Name=Masked");
    addEntry(u"system/applications/own"_qs, "Name=Theirs");
    addEntry(u"system/applications/kde/sub/deep"_qs,
             "Name=Deep\nName[de]=Tief\nName[de_AT]=Ganz tief\nIcon=deep\n"
             "Exec=\"/opt/my program/deep\" --new %U\n[Desktop Action x]\nName=Wrong");
    add(u"system/applications/link.desktop"_qs, "[Desktop Entry]\nType=Link\nName=Link");
    add(u"system/applications/noise.desktop"_qs, QByteArray(1000, '\xff'));
    // Times of folders come in ticks: a change within the same one would go unnoticed.
    std::filesystem::last_write_time(path(u"system/applications/kde/sub"_qs).toStdString(),
                                     std::filesystem::file_time_type() + std::chrono::hours(1));
    LMDesktopEntries entries(dataDirectories, LMMessageLocales(u"de_CH.UTF-8"_qs),
                             std::chrono::milliseconds(0));

    const auto table = entries.table();
    const auto nameOf = [](const LMDesktopEntryTable& in, const char* identifier) {
        const LMDesktopEntry* entry = in.entryWithIdentifier(QLatin1String(identifier));
        return entry ? entry->localizedName : QString();
    };
    EXPECT_EQ(nameOf(*table, "masked"), QString());
    EXPECT_EQ(nameOf(*table, "link"), QString());
    EXPECT_EQ(nameOf(*table, "OWN.desktop"), u"Mine"_qs);
    EXPECT_EQ(nameOf(*table, "kde-sub-deep"), u"Tief"_qs);
    EXPECT_EQ(table->entryWithIdentifier(u"kde-sub-deep"_qs)->program, u"deep"_qs);
    EXPECT_EQ(entries.table(), table) << "read again although nothing changed";

    addEntry(u"system/applications/kde/sub/late"_qs, "Name=Late");
    EXPECT_EQ(nameOf(*entries.table(), "kde-sub-late"), u"Late"_qs);
    EXPECT_EQ(nameOf(*table, "kde-sub-late"), QString()) << "a table changed";
}

TEST_F(LMDesktopEntriesTest, FindsTheDefaultApplication) {
    for (const QString& name : {u"files"_qs, u"other"_qs, u"third"_qs})
        addEntry(u"system/applications/"_qs + name, "Name=X\nMimeType=inode/directory;");
    const QStringList files =
        LMAssociationFiles({path(u"config"_qs)}, dataDirectories, {u"MATE"_qs});
    const std::tuple<const char*, const char*, const char*, QString> steps[] = {
        {"config/mimeapps.list", "Removed Associations", "files.desktop;", u"other"_qs},
        {"system/applications/mimeapps.list", "Added Associations", "files.desktop;third.desktop",
         u"third"_qs},
        {"system/applications/mate-mimeapps.list", "Default Applications",
         "gone.desktop;other.desktop;", u"other"_qs},
        {"config/mate-mimeapps.list", "Default Applications", "files.desktop", u"files"_qs},
    };
    for (const auto& [file, group, applications, expected] : steps) {
        add(QLatin1String(file), QByteArray("[") + group + "]\ninode/directory=" + applications);
        const auto table = LMDesktopEntries(dataDirectories, {}).table();
        const auto* entry = LMDefaultApplication(u"inode/directory"_qs, files, *table);
        EXPECT_EQ(entry ? entry->identifier : QString(), expected);
    }
}

TEST_F(LMDesktopEntriesTest, FindsIconsInThemesAndFolders) {
    int argumentCount = 0;
    const QCoreApplication application(argumentCount, nullptr);
    add(u"system/icons/Round/index.theme"_qs,
        "[Icon Theme]\nInherits=Square,Round\nDirectories=16,48\n[16]\nSize=16\nType=Fixed\n"
        "[48]\nSize=48\nType=Threshold\n");
    add(u"system/icons/Square/index.theme"_qs,
        "[Icon Theme]\nInherits=Round\nDirectories=16\n[16]\nSize=16");
    for (const char* name : {"system/icons/Round/16/app.png", "home/icons/Round/48/app.png",
                             "system/icons/Square/16/parent.png", "system/pixmaps/old.png"}) {
        add(QLatin1String(name), {});
        EXPECT_TRUE(QImage(32, 16, QImage::Format_ARGB32).save(path(QLatin1String(name))));
    }
    add(u"system/pixmaps/broken.png"_qs, "\x89PNG and nothing else");
    add(u"system/pixmaps/lettered.svg"_qs, "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"9\" "
                                           "height=\"9\"><text>A</text></svg>");
    LMIconTheme theme(dataDirectories, u"Round"_qs);
    const std::tuple<const char*, int, const char*, bool> rows[] = {
        {"app", 20, "system/icons/Round/16/app.png", true},
        {"app.png", 128, "home/icons/Round/48/app.png", true},
        {"parent", 48, "system/icons/Square/16/parent.png", true},
        {"broken", 48, "system/pixmaps/broken.png", false},
        {"lettered", 48, "system/pixmaps/lettered.svg", false},
        {"../pixmaps/old", 48, "", false},
    };
    for (const auto& [icon, size, expected, isReadable] : rows) {
        const QString file = theme.pathOfIcon(QLatin1String(icon), size);
        EXPECT_EQ(file, *expected == 0 ? QString() : path(QLatin1String(expected))) << icon;
        EXPECT_EQ(LMSquareImageFromFile(file, size).width(), isReadable ? size : 0) << icon;
    }
}

TEST_F(LMDesktopEntriesTest, ReadsProcesses) {
    add(u"proc/7/stat"_qs, "7 (a ) b (c) S 1 7 7 0 -1 4 5 6 7 8 9 10 11 12 20 0 1 0 4321 999");
    add(u"proc/7/cmdline"_qs, QByteArray("a\0--b c\0", 8));
    add(u"proc/7/cgroup"_qs, "1:name=systemd:/old\n0::/new/x.scope\n");
    add(u"proc/7/root/.flatpak-info"_qs, "[Application]\nname=org.flat.App\n");
    QDir().mkpath(path(u"proc/7/ns"_qs));
    QFile::link(u"/bin/prog (deleted)"_qs, path(u"proc/7/exe"_qs));
    QFile::link(u"mnt:[2]"_qs, path(u"proc/7/ns/mnt"_qs));
    const auto process = LMReadProcessInformation(7, path(u"proc"_qs));
    const QStringList arguments{u"a"_qs, u"--b c"_qs};
    EXPECT_EQ(process, (LMProcessInformation{7, 4321, u"/bin/prog"_qs, arguments,
                                             u"/new/x.scope"_qs, u"org.flat.App"_qs}));
}

} // namespace
