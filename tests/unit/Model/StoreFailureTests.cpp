// SPDX-License-Identifier: MIT
#include "ModelTest.h"

#include <QRandomGenerator>

#include <SQLiteCpp/Database.h>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>

TEST_F(ModelTest, AFullDiskLeavesTheOldContentsAndTheChangesInMemory) {
    const QString longTitle(300'000, u'n');
    ::signal(SIGXFSZ, SIG_IGN);
    rlimit unlimited{};
    ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &unlimited), 0);
    // From "not even the journal" to "the last page does not fit".
    for (const rlim_t room : {512u, 8192u, 40'000u, 200'000u}) {
        QFile::remove(path());
        reopen();
        makeStore();
        reopen();
        const std::vector<LMStoredWindow*> stored = all<LMStoredWindow>();
        const QByteArray before = content(path());
        stored[0]->orderedMatchingWindows().front()->setTitle(longTitle);
        context().deleteObject(stored[1]);
        // Another change after the failure, and another failure.
        for (const QString& label : {u"first"_s, u"second"_s}) {
            stored[0]->setLabel(label);
            const rlimit limit{room, unlimited.rlim_max};
            ::setrlimit(RLIMIT_FSIZE, &limit);
            EXPECT_FALSE(context().save());
            ::setrlimit(RLIMIT_FSIZE, &unlimited);
        }
        EXPECT_EQ(content(path()), before);
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
    write(path(), content(spare));
    write(path() + u"-journal"_s, content(spare + u"-journal"_s));
    ASSERT_GT(QFileInfo(path()).size(), 100'000);
    // Power failed while the file grew.
    ASSERT_TRUE(QFile(path()).resize(QFileInfo(path()).size() - 1000));
    reopen();
    EXPECT_EQ(storedTitles(), QStringList({u"a"_s, u"b"_s}));
    EXPECT_EQ(all<LMWindow>().size(), 2u);
}

TEST_F(ModelTest, AProcessKilledAtAnyMomentLeavesTheOldOrTheNewState) {
    makeStore();
    int round = 0;
    for (int death = 0; death < 100 && !HasFailure(); ++death) {
        const pid_t child = ::fork();
        if (child == 0) {
            for (reopen(); context().save(); ++round)
                for (LMStoredWindow* stored : all<LMStoredWindow>())
                    stored->setLabel(QString::number(round).repeated(5000));
            ::_exit(1);
        }
        ::usleep(QRandomGenerator::global()->bounded(40'000u));
        ::kill(child, SIGKILL);
        int status = 0;
        ASSERT_EQ(::waitpid(child, &status, 0), child);
        ASSERT_TRUE(WIFSIGNALED(status)) << "the child ended by itself: " << WEXITSTATUS(status);
        reopen();
        ASSERT_EQ(storedTitles(), QStringList({u"a"_s, u"b"_s}));
        const QString label = all<LMStoredWindow>()[0]->label();
        EXPECT_EQ(all<LMStoredWindow>()[1]->label(), label);
        round = label.left(label.size() / 5000).toInt() + 1;
        store.reset();
    }
    EXPECT_GT(round, 50) << "the children died too early for their deaths to mean something";
}
