// SPDX-License-Identifier: MIT
#include "ModelTest.h"

TEST_F(ModelTest, FailuresToOpenSayWhatIsWrong) {
    ASSERT_TRUE(QDir().mkpath(path()));
    EXPECT_EQ(store->open().error().failure, LMStoreFailure::StoreCannotBeAdded);
    EXPECT_TRUE(test.hasLogged(u"Stored Windows.sqlite: not a file"_s));
    EXPECT_EQ(test.messages.size(), 1); // Asked twice, tried and reported once.

    // Whoever goes on regardless works in memory and harms nothing.
    insert<LMWorkspace>();
    store->cleanWindows();
    store->saveWindows();
    EXPECT_TRUE(test.hasLogged(u"Save failed: "_s));
    EXPECT_TRUE(QFileInfo(path()).isDir());
}

TEST_F(ModelTest, SavingDeletesWhatNothingOwns) {
    LMApplication* dropped = application(u"org.dropped"_s);
    application(u"org.kept"_s, dropped->workspace())->addWindowsObject(storedWindow(u"kept"_s));
    dropped->addWindows({storedWindow(u"x"_s), storedWindow(u"y"_s)});
    store->saveWindows();
    dropped->workspace()->removeApplicationsObject(dropped);
    insert<LMAction>();
    insert<LMDisplay>();
    storedWindow(u"compared only"_s);
    saveAndReopen();
    EXPECT_EQ(all<LMApplication>().size(), 1u);
    EXPECT_EQ(storedTitles(), QStringList(u"kept"_s));
    EXPECT_EQ(all<LMWindow>().size(), 1u);
    EXPECT_EQ(all<LMDisplay>().size(), 1u);
    EXPECT_TRUE(all<LMAction>().empty());
}

TEST_F(ModelTest, CleaningDeletesEmptyWorkspacesAndScreenshotsThatNothingNeeds) {
    const QDir folder(test.folders.screenshotsDirectoryURL());
    for (const QString& name : {u"used.png"_s, u"stale.png"_s, u"notes.txt"_s})
        LMWriteFile(folder.filePath(name));
    LMStoredWindow* stored = storedWindow(u"w"_s);
    stored->orderedMatchingWindows().front()->setScreenshotFilename(u"used.png"_s);
    application()->addWindowsObject(stored);
    insert<LMWorkspace>()->addActionsObject(insert<LMAction>());
    insert<LMWorkspace>();
    store->saveWindows();
    const auto filesAfterCleaning = [&](bool createsScreenshots) {
        defaults.setObject(Keys::CreateScreenshotsWhenStoringWindows, createsScreenshots);
        store->cleanWindows();
        return folder.entryList(QDir::Files);
    };
    EXPECT_THAT(filesAfterCleaning(true), ElementsAre(u"notes.txt"_s, u"used.png"_s));
    EXPECT_THAT(filesAfterCleaning(false), ElementsAre(u"notes.txt"_s));
    EXPECT_TRUE(test.messages.isEmpty());
    saveAndReopen();
    EXPECT_EQ(all<LMWorkspace>().size(), 2u);
}

TEST_F(ModelTest, ANewerProgramBacksTheStoreUp) {
    using enum LMBackupResult;
    const QString first = u"Stored Windows 1.1 (2014-05-06).sqlite"_s;
    const QString second = u"Stored Windows 1.2 (2014-05-06).sqlite"_s;
    const std::tuple<QString, LMBackupResult, QString, QStringList> launches[] = {
        {u"1.1"_s, FirstLaunch, u"1.1"_s, {}},
        {u"1.1"_s, SameVersion, u"1.1"_s, {}},
        {u"1.2"_s, BackedUp, u"1.2"_s, {first}},
        {u"1.2b3"_s, NewerVersion, u"1.2"_s, {first}},
        {u"1.3"_s, BackedUp, u"1.3"_s, {first, second}},
    };
    test.clock.setNow(QDateTime(QDate(2014, 5, 6), QTime(12, 0)));
    const QDir folder(test.folders.backupsDirectoryURL());
    for (const auto& [version, result, recorded, backups] : launches) {
        reopen(version);
        insert<LMWorkspace>();
        store->saveWindows();
        EXPECT_EQ(store->backupStoredWindowsIfNecessary(), result);
        EXPECT_EQ(defaults.stringForKey(Keys::RookVersion), recorded);
        EXPECT_EQ(QDir(folder).entryList(QDir::Files), backups);
    }
    // The copy is a store in its own right, with what was stored at the time.
    store.reset();
    LMWriteFile(path(), LMFileContent(folder.filePath(second)));
    reopen();
    EXPECT_EQ(all<LMWorkspace>().size(), 5u);

    // A backup that fails is no reason to stop.
    ASSERT_TRUE(QDir(folder).removeRecursively());
    LMWriteFile(folder.path());
    defaults.setObject(Keys::RookVersion, u"0.9"_s);
    EXPECT_EQ(store->backupStoredWindowsIfNecessary(), BackedUp);
    EXPECT_EQ(defaults.stringForKey(Keys::RookVersion), u"1.0"_s);
    EXPECT_TRUE(test.hasLogged(u"not backed up"_s));
}
