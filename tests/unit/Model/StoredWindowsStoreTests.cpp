// SPDX-License-Identifier: MIT
#include "ModelTest.h"

#include "Utilities/LMUserDefaultsKeys.h"

TEST_F(ModelTest, FailuresToOpenSayWhatIsWrong) {
    ASSERT_TRUE(QDir().mkpath(path()));
    EXPECT_EQ(store->open().error().failure, LMStoreFailure::StoreCannotBeAdded);
    EXPECT_TRUE(world.hasLogged(u"Stored Windows.sqlite: not a file"_s));
    EXPECT_EQ(world.messages.size(), 1); // Asked twice, tried and reported once.

    // Whoever goes on regardless works in memory and harms nothing.
    insert<LMWorkspace>();
    store->cleanWindows();
    store->saveWindows();
    EXPECT_TRUE(world.hasLogged(u"Save failed: "_s));
    EXPECT_TRUE(QFileInfo(path()).isDir());

    EXPECT_EQ(LMStoredWindowsStore(world.environment, {}, nullptr).open().error().failure,
              LMStoreFailure::ModelMissing);
    ASSERT_TRUE(QDir(world.path(u"Rook"_s)).removeRecursively());
    write(world.path(u"Rook"_s));
    reopen();
    EXPECT_EQ(store->open().error().failure, LMStoreFailure::FoldersCannotBeMade);
}

TEST_F(ModelTest, SavingDeletesWhatNothingOwnsAndReloadsTables) {
    QStringList calls;
    store->setCommitEditingHandler([&] {
        calls.append(u"commit"_s);
        return false;
    });
    store->setReloadTablesHandler([&] { calls.append(u"reload"_s); });
    auto* workspace = insert<LMWorkspace>();
    applicationIn(workspace, u"org.kept"_s)->addWindowsObject(storedWindow(u"kept"_s));
    LMApplication* dropped = applicationIn(workspace, u"org.dropped"_s);
    dropped->addWindows({storedWindow(u"x"_s), storedWindow(u"y"_s)});
    store->saveWindows();
    EXPECT_EQ(calls, QStringList({u"commit"_s, u"reload"_s}));
    EXPECT_EQ(world.messages, QStringList(u"Commit editing failed."_s));

    workspace->removeApplicationsObject(dropped);
    insert<LMAction>();
    insert<LMDisplay>();
    storedWindow(u"compared only"_s);
    store->saveWindows();
    reopen();
    EXPECT_EQ(context().objects<LMApplication>().size(), 1u);
    EXPECT_EQ(storedTitles(), QStringList(u"kept"_s));
    EXPECT_EQ(context().objects<LMWindow>().size(), 1u);
    EXPECT_EQ(context().objects<LMDisplay>().size(), 1u);
    EXPECT_TRUE(context().objects<LMAction>().empty());
}

TEST_F(ModelTest, CleaningDeletesEmptyWorkspacesAndScreenshotsThatNothingNeeds) {
    const QString folder = world.folders.screenshotsDirectoryURL() + u'/';
    const QString used = write(folder + u"used.png"_s);
    const QString stale = write(folder + u"stale.png"_s);
    const QString notes = write(folder + u"notes.txt"_s);
    LMStoredWindow* stored = storedWindow(u"w"_s);
    stored->orderedMatchingWindows().front()->setScreenshotFilename(u"used.png"_s);
    applicationIn(insert<LMWorkspace>(), u"org.editor"_s)->addWindowsObject(stored);
    insert<LMWorkspace>()->addActionsObject(insert<LMAction>());
    insert<LMWorkspace>();
    store->saveWindows();

    world.userDefaults.setObject(LMUserDefaultsKeys::CreateScreenshotsWhenStoringWindows, true);
    store->cleanWindows();
    EXPECT_TRUE(QFile::exists(used) && QFile::exists(notes));
    EXPECT_FALSE(QFile::exists(stale));
    world.userDefaults.setObject(LMUserDefaultsKeys::CreateScreenshotsWhenStoringWindows, false);
    store->cleanWindows();
    EXPECT_FALSE(QFile::exists(used));
    EXPECT_TRUE(QFile::exists(notes) && world.messages.isEmpty());
    store->saveWindows();
    reopen();
    EXPECT_EQ(context().objects<LMWorkspace>().size(), 2u);
}

TEST_F(ModelTest, ANewerProgramBacksTheStoreUp) {
    const QString first = u"Stored Windows 1.1 (2014-05-06).sqlite"_s;
    const QString second = u"Stored Windows 1.2 (2014-05-06).sqlite"_s;
    const struct {
        QString version;
        LMBackupResult result;
        QString recorded;
        QStringList backups;
    } launches[] = {
        {u"1.1"_s, LMBackupResult::FirstLaunch, u"1.1"_s, {}},
        {u"1.1"_s, LMBackupResult::SameVersion, u"1.1"_s, {}},
        {u"1.2"_s, LMBackupResult::BackedUp, u"1.2"_s, {first}},
        {u"1.2b3"_s, LMBackupResult::NewerVersion, u"1.2"_s, {first}},
        {u"1.3"_s, LMBackupResult::BackedUp, u"1.3"_s, {first, second}},
    };
    world.clock.setNow(QDateTime(QDate(2014, 5, 6), QTime(12, 0)));
    const QDir folder(world.folders.backupsDirectoryURL());
    const auto recorded = [&] {
        return world.userDefaults.stringForKey(LMUserDefaultsKeys::RookVersion);
    };
    for (const auto& launch : launches) {
        reopen(launch.version);
        insert<LMWorkspace>();
        store->saveWindows();
        EXPECT_EQ(store->backupStoredWindowsIfNecessary(), launch.result);
        EXPECT_EQ(recorded(), launch.recorded);
        EXPECT_EQ(QDir(folder).entryList(QDir::Files), launch.backups);
    }
    // The copy is a store in its own right, with what was stored at the time.
    store.reset();
    ASSERT_TRUE(QFile::remove(path()) && QFile::copy(folder.filePath(second), path()));
    reopen();
    EXPECT_EQ(context().objects<LMWorkspace>().size(), 5u);

    // A backup that fails is no reason to stop.
    ASSERT_TRUE(QDir(folder).removeRecursively());
    write(folder.path());
    world.userDefaults.setObject(LMUserDefaultsKeys::RookVersion, u"0.9"_s);
    EXPECT_EQ(store->backupStoredWindowsIfNecessary(), LMBackupResult::BackedUp);
    EXPECT_EQ(recorded(), u"1.0"_s);
    EXPECT_TRUE(world.hasLogged(u"not backed up"_s));
}
