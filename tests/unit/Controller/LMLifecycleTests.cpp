// SPDX-License-Identifier: MIT
#include "unit/Controller/ControllerTest.h"
#include "unit/Files.h"

#include "Controller/LMCrashReporter.h"
#include "Model/LMWorkspace.h"
#include "Model/Store/LMObjectContext.h"

#include <QDir>
#include <QFile>

#include <csignal>

namespace {

class LifecycleTest : public ControllerTest {
protected:
    LifecycleTest() {
        ::qputenv("XDG_DATA_HOME", QFile::encodeName(test.path(u"data"_s)));
        ::qputenv("XDG_DATA_DIRS", "/nonexistent");
        ::qputenv("XDG_RUNTIME_DIR", QFile::encodeName(test.path(u"run"_s)));
        defaults.setObject(Keys::moveToApplicationsFolderAlertSuppress, true);
    }
    ~LifecycleTest() override {
        ::qunsetenv("XDG_DATA_HOME");
        ::qunsetenv("XDG_DATA_DIRS");
        ::qunsetenv("XDG_RUNTIME_DIR");
    }
    const QString picture = test.folders.screenshotsDirectoryURL() + u"/a.png"_s;
};

TEST_F(LifecycleTest, ServesFromLaunchToTermination) {
    ASSERT_TRUE(delegate.finishLaunching());
    EXPECT_TRUE(userInterface.alerts.isEmpty());
    EXPECT_TRUE(defaults.boolForKey(Keys::RestoreWindowsAutomatically)) << "registered";
    defaults.setObject(Keys::DisableStatusBarItem, true);
    test.notificationCenter.postNotification(LMNotification::StatusItemVisibilityChanged);
    delegate.dbusService().Activate();
    EXPECT_EQ(userInterface.calls,
              (QStringList{u"no icon"_s, u"icon"_s, u"no icon"_s, u"reload"_s, u"list"_s}));

    store.managedObjectContext().insertObject<LMWorkspace>();
    LMWriteFile(picture);
    delegate.applicationWillTerminate();
    EXPECT_FALSE(QFile::exists(picture)) << "cleaned";
    EXPECT_TRUE(store.managedObjectContext().objects<LMWorkspace>().empty());
    EXPECT_FALSE(store.managedObjectContext().hasChanges()) << "saved";
}

TEST_F(LifecycleTest, AStoreThatCannotBeHadEndsTheLaunchAndIsLeftAlone) {
    LMWriteFile(picture);
    LMWriteFile(test.folders.storedWindowsURL(), "not a store");
    EXPECT_FALSE(delegate.finishLaunching());
    EXPECT_TRUE(userInterface.alerts.value(0).startsWith(u"Unable to load stored windows.|There "));
    EXPECT_TRUE(userInterface.alerts.value(0).contains(test.folders.storedWindowsURL())) << "why";
    EXPECT_TRUE(delegate.launchFailure().contains(u"Unable to load"));
    delegate.applicationWillTerminate();
    EXPECT_EQ(userInterface.calls.last(), u"no icon"_s);
    EXPECT_TRUE(QFile::exists(picture));
}

TEST_F(LifecycleTest, AnOlderProgramRefusesNewerStoredWindows) {
    defaults.setObject(Keys::RookVersion, u"999.0"_s);
    EXPECT_FALSE(delegate.finishLaunching());
    EXPECT_TRUE(userInterface.alerts.value(0).startsWith(u"Stored Windows Version Mismatch.|"));
    EXPECT_EQ(defaults.stringForKey(Keys::RookVersion), u"999.0"_s);
}

TEST_F(LifecycleTest, OffersALauncherOnceAndQuitsMeanwhile) {
    defaults.removeObject(Keys::moveToApplicationsFolderAlertSuppress);
    userInterface.answer.buttonCode = LMAlertAnswer::FirstButton;
    userInterface.duringModal = [this] { delegate.quit(); };
    EXPECT_FALSE(delegate.finishLaunching()) << "the event loop must not begin any more";
    EXPECT_EQ(userInterface.alerts.size(), 1);
    EXPECT_TRUE(defaults.boolForKey(Keys::moveToApplicationsFolderAlertSuppress));
    const QString entry = test.path(u"data/applications/org.rook.Rook.desktop"_s);
    const QString executable = QCoreApplication::applicationFilePath();
    EXPECT_TRUE(LMFileContent(entry).contains("\nExec=\"" + executable.toUtf8() + "\"\n"));
}

TEST_F(LifecycleTest, NotesOfDeadProcessesAreRemovedAndNothingElse) {
    QDir folder(test.path(u"run"_s));
    const QString dead = u"rook-2147483647.json"_s; // Beyond what the kernel gives out.
    ASSERT_TRUE(folder.mkpath(u"rook-2147483645.json"_s));
    for (const QString& name :
         {dead, u"rook-02147483647.json"_s, u"rook-1.json"_s, u"rook-x.json"_s,
          u"rook-4294967296.json"_s, u"note-2147483647.json"_s})
        LMWriteFile(folder.filePath(name));
    ASSERT_TRUE(QFile::link(folder.filePath(dead), folder.filePath(u"rook-2147483646.json"_s)));
    const auto entries = [&] { return folder.entryList(QDir::AllEntries | QDir::System); };
    QStringList expected = entries();
    ASSERT_TRUE(expected.removeOne(dead));
    const LMActivityFile file(environment);
    EXPECT_EQ(entries(), expected);
}

int overflow(int depth) {
    volatile char frame[4096] = {char(depth)};
    return depth < 0 ? frame[0] : overflow(depth + 1) + frame[0];
}

TEST_F(LifecycleTest, CrashesLeaveAReport) {
    const QDir directory(test.folders.logsDirectoryURL());
    for (int i = 0; i < 20; ++i)
        LMWriteFile(directory.filePath(u"Crash %1.txt"_s.arg(i)));
    if (!LMCrashReporter::install(directory.path(), u"1.0"_s))
        GTEST_SKIP() << "a sanitizer watches";
    const auto crash = [&](int signal) {
        const auto reporter = LMCrashReporter::install(directory.path(), u"1.0"_s);
        signal == SIGSEGV ? overflow(1) : ::raise(signal);
    };
    for (const int signal : {SIGABRT, SIGSEGV})
        EXPECT_EXIT(crash(signal), testing::KilledBySignal(signal), "");
    QByteArray reports;
    for (const QString& name : directory.entryList({u"Crash 2*.txt"_s}, QDir::Files))
        reports += LMFileContent(directory.filePath(name));
    EXPECT_TRUE(reports.contains("\nSignal 0x6\n") && reports.contains("\nSignal 0xb\n"));
    EXPECT_GT(reports.count("\nFrame 0x"), 2 * 3);
    EXPECT_EQ(directory.entryList(QDir::Files).size(), 10) << "only the latest are kept";
}

} // namespace
