// SPDX-License-Identifier: MIT
#include "ModelTest.h"

#include <SQLiteCpp/Database.h>

TEST_F(ModelTest, AFullDiskLeavesTheOldContentsAndTheChangesInMemory) {
    const QString longTitle(300'000, u'n');
    // From "not even the journal" to "the last page does not fit".
    for (const qint64 room : {512, 8192, 40'000, 200'000}) {
        QFile::remove(path());
        reopen();
        makeStore();
        reopen();
        const auto stored = all<LMStoredWindow>();
        const QByteArray before = LMFileContent(path());
        all<LMApplication>().front()->setName(u"written first"_s);
        stored[0]->orderedMatchingWindows().front()->setTitle(longTitle);
        context().deleteObject(stored[1]);
        // Another change after the failure, and another failure.
        for (const QString& label : {u"first"_s, u"second"_s}) {
            stored[0]->setLabel(label);
            LMWithFullDisk(room, [&] { EXPECT_FALSE(context().save()); });
        }
        EXPECT_EQ(LMFileContent(path()), before);
        ASSERT_TRUE(context().save());
        reopen();
        EXPECT_EQ(storedTitles(), QStringList(longTitle));
        EXPECT_EQ(all<LMStoredWindow>().front()->label(), u"second"_s);
    }
}

TEST_F(ModelTest, AnInterruptedSaveIsUndone) {
    makeStore();
    const QString spare = test.path(u"Spare.sqlite"_s);
    ASSERT_TRUE(QFile::copy(path(), spare));
    SQLite::Database database(spare.toStdString(), SQLite::OPEN_READWRITE);
    // A save that outgrew its memory and has begun to write to the file.
    database.exec("PRAGMA cache_size = 1; BEGIN; UPDATE Window SET title = 'half';"
                  "DELETE FROM StoredWindow");
    for (int i = 0; i < 100; ++i)
        database.exec("INSERT INTO Window(title) VALUES(hex(randomblob(4000)))");
    LMWriteFile(path(), LMFileContent(spare));
    LMWriteFile(path() + u"-journal"_s, LMFileContent(spare + u"-journal"_s));
    ASSERT_GT(QFileInfo(path()).size(), 100'000);
    // Power failed while the file grew.
    ASSERT_TRUE(QFile(path()).resize(QFileInfo(path()).size() - 1000));
    reopen();
    EXPECT_EQ(storedTitles(), QStringList({u"a"_s, u"b"_s}));
    EXPECT_EQ(all<LMWindow>().size(), 2u);
}

TEST_F(ModelTest, ARemovedStoreIsMadeAnewWithEverythingThatIsRemembered) {
    const QString folder = QFileInfo(path()).path();
    for (const bool withFolder : {false, true}) {
        makeStore();
        reopen();
        EXPECT_EQ(all<LMStoredWindow>().size(), 2U);
        ASSERT_TRUE(withFolder ? QDir(folder).removeRecursively() : QFile::remove(path()));
        all<LMStoredWindow>().front()->setLabel(u"changed"_s);
        EXPECT_TRUE(context().save());
        reopen();
        EXPECT_EQ(storedTitles(), QStringList({u"a"_s, u"b"_s})) << withFolder;
        EXPECT_EQ(all<LMStoredWindow>().front()->label(), u"changed"_s);
        // Somebody else's file is not written over.
        ASSERT_TRUE(QFile::remove(path()));
        LMWriteFile(path(), "a copy of the user's");
        all<LMStoredWindow>().front()->setLabel(u"again"_s);
        EXPECT_FALSE(context().save());
        EXPECT_EQ(LMFileContent(path()), "a copy of the user's");
        QFile::remove(path());
        reopen();
    }
}
