// SPDX-License-Identifier: MIT
#include "ModelTest.h"

#include <SQLiteCpp/Database.h>

#include <sys/stat.h>

namespace {

/// Changes a store behind Rook's back.
class StoreFileTest : public ModelTest {
protected:
    void execute(const char* statements) const {
        SQLite::Database(path().toStdString(), SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE)
            .exec(statements);
    }
    void overwrite(qint64 at, const QByteArray& bytes) const {
        QFile file(path());
        ASSERT_TRUE(file.open(QIODevice::ReadWrite) && file.seek(at));
        file.write(bytes);
    }
    void resize(qint64 size) const { EXPECT_TRUE(QFile(path()).resize(size)); }
};

TEST_F(StoreFileTest, RefusedStoresStayAsTheyAre) {
    makeStore();
    const QByteArray good = LMFileContent(path());
    const qint64 size = good.size();
    const QFileInfo file(path());
    const auto folderOnly = QFile::ReadOwner | QFile::ExeOwner;
    const auto remove = [&] { QFile::remove(path()); };
    const char* const notes = "PRAGMA journal_mode = WAL; CREATE TABLE notes(text)";
    const char* const shape = "DROP TABLE Action; CREATE TABLE Action(name, \"key\")";
    const std::tuple<const char*, std::function<void()>, const char*> rows[] = {
        {"short garbage", [&] { resize(1); }, "not a store file"},
        {"header only", [&] { resize(100); }, "cut short"},
        {"cut by a page", [&] { resize(size - 4096); }, "malformed"},
        {"damaged page", [&] { overwrite(4096, QByteArray(4096, 'g')); }, "damaged: "},
        {"newer version", [&] { execute("PRAGMA user_version = 3"); }, "newer version"},
        {"other program's mark", [&] { execute("PRAGMA application_id = 7"); }, "another program"},
        {"other program's tables", [&] { remove(), execute(notes); }, "another program"},
        {"wrong table shape", [&] { execute(shape); }, "not one of a store"},
        {"read-only file", [&] { QFile(path()).setPermissions(QFile::ReadOwner); }, "not writable"},
        {"read-only folder", [&] { QFile(file.path()).setPermissions(folderOnly); },
         "not writable"},
        {"directory", [&] { remove(), QDir().mkpath(path()); }, "not a file"},
        {"pipe", [&] { remove(), ::mkfifo(path().toUtf8().data(), 0600); }, "not a file"},
    };
    const auto state = [&] {
        return std::pair(QFileInfo(path()).isFile() ? LMFileContent(path()) : QByteArray(),
                         file.dir().entryList(QDir::AllEntries | QDir::System));
    };
    for (const auto& [name, spoil, reason] : rows) {
        SCOPED_TRACE(name);
        spoil();
        const auto before = state();
        reopen();
        const auto opened = store->open();
        ASSERT_FALSE(opened);
        EXPECT_TRUE(opened.error().detail.contains(QLatin1String(reason)))
            << opened.error().detail.toStdString();
        EXPECT_EQ(state(), before);
        QFile(file.path()).setPermissions(folderOnly | QFile::WriteOwner);
        remove();
        QDir().rmdir(path());
        LMWriteFile(path(), good);
    }
    reopen();
    EXPECT_EQ(storedTitles(), QStringList({u"a"_s, u"b"_s}));
}

TEST_F(StoreFileTest, AnEmptyFileBecomesAStoreWithOneHolderAtATime) {
    LMWriteFile(path(), {});
    insert<LMWorkspace>();
    EXPECT_TRUE(test.hasLogged(u"is empty"_s));
    EXPECT_TRUE(context().save());
    const auto detail = LMStoredWindowsStore(environment).open().error().detail;
    EXPECT_TRUE(detail.contains(u"in use"_s)) << detail.toStdString();
    store.reset();
    EXPECT_TRUE(LMStoredWindowsStore(environment).open());
}

TEST_F(StoreFileTest, OlderStoresAreMigratedInPlace) {
    makeStore();
    // As a version without these attributes, and without actions, would have left it.
    execute("PRAGMA user_version = 1; DROP TABLE Action;"
            "ALTER TABLE Window DROP COLUMN stateString;"
            "ALTER TABLE StoredWindow DROP COLUMN stateString;"
            "ALTER TABLE Window DROP COLUMN children; ALTER TABLE Window DROP COLUMN title;"
            "ALTER TABLE Window DROP COLUMN hasGrowArea;"
            "ALTER TABLE Application DROP COLUMN windowsOrdering;"
            "ALTER TABLE Window ADD COLUMN later TEXT; UPDATE Window SET later = 'kept'");
    for (const QString& title : {QString(), u"new"_s}) {
        reopen();
        EXPECT_EQ(all<LMApplication>().front()->orderedWindows(), all<LMStoredWindow>());
        LMWindow* window = all<LMWindow>().front();
        EXPECT_EQ(window->title(), title);
        EXPECT_FALSE(window->children() || window->hasGrowArea() || window->state());
        EXPECT_FALSE(all<LMStoredWindow>().front()->state());
        EXPECT_TRUE(test.messages.isEmpty()); // What is merely absent is no damage.
        window->setTitle(u"new"_s);
        ASSERT_TRUE(context().save());
    }
    store.reset();
    SQLite::Database database(path().toStdString());
    EXPECT_EQ(database.execAndGet("SELECT count(*) FROM Window WHERE later = 'kept'").getInt(), 2);
    EXPECT_EQ(database.execAndGet("PRAGMA user_version").getInt(), 2);
}

TEST_F(StoreFileTest, DamagedRowsLoadAsFarAsTheyGo) {
    makeStore();
    execute("UPDATE Window SET hasDocument = 'banana', hasGrowArea = 1.5, children = '[1'"
            " WHERE title = 'a';"
            "UPDATE StoredWindow SET matchingWindowsOrdering = '{\"a\": 1}';"
            "UPDATE Application SET windowsOrdering = '[\"rook:';"
            "INSERT INTO Window(\"key\", title) VALUES(0, 'zero'), (-5, 'negative'),"
            " (9223372036854775807, 'huge'), (40, 41);"
            "INSERT INTO Window(\"key\", storedWindow, title) VALUES(50, 99, 'lost'),"
            " (51, 'text', NULL), (52, 2, x'ff00fe');"
            "UPDATE NextKey SET nextKey = 'many'");
    reopen();
    EXPECT_EQ(storedTitles(), QStringList({u"a"_s, u"b"_s}));
    EXPECT_EQ(all<LMApplication>().front()->orderedWindows(), all<LMStoredWindow>());
    const std::vector<LMWindow*> windows = all<LMWindow>();
    ASSERT_EQ(windows.size(), 6u);
    EXPECT_FALSE(windows[0]->hasDocument() || windows[0]->hasGrowArea() || windows[0]->children());
    EXPECT_EQ(windows[2]->title(), u"41"_s);
    EXPECT_EQ(windows[5]->storedWindow(), all<LMStoredWindow>()[1]);
    EXPECT_TRUE(test.hasLogged(u"6 values of the store cannot be read, the first is "_s));
    EXPECT_TRUE(test.hasLogged(u"3 objects of the store have no owner"_s));
    EXPECT_EQ(window(u"next"_s)->objectID().key, 53);
}

} // namespace
