// SPDX-License-Identifier: MIT
#include "ModelTest.h"

#include <SQLiteCpp/Database.h>

#include <sys/stat.h>

namespace {

/// Changes a store behind Rook's back.
void execute(const QString& path, const char* statements) {
    SQLite::Database(path.toStdString(), SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE)
        .exec(statements);
}

void overwrite(const QString& path, qint64 at, const QByteArray& bytes) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadWrite) && file.seek(at));
    file.write(bytes);
}

bool resize(const QString& path, qint64 change) {
    return QFile(path).resize(QFileInfo(path).size() + change);
}

} // namespace

TEST_F(ModelTest, RefusedStoresStayAsTheyAre) {
    const QByteArray noise(20'000, 'g');
    const QFileInfo file(path());
    const auto folderOnly = QFile::ReadOwner | QFile::ExeOwner;
    // clang-format off
    const struct {
        const char* name;
        std::function<void(const QString& path)> spoil;
        const char* reason;
    } refusals[] = {
        {"garbage", [&](auto& path) { QFile(path).resize(0); overwrite(path, 0, noise); }, "not a store file"},
        {"short garbage", [](auto& path) { QFile(path).resize(1); }, "not a store file"},
        {"header only", [](auto& path) { QFile(path).resize(100); }, "cut short"},
        {"cut within a page", [](auto& path) { resize(path, -1); }, "cut short"},
        {"cut by a page", [](auto& path) { resize(path, -4096); }, "malformed"},
        {"damaged page", [&](auto& path) { overwrite(path, 4096, noise.first(4096)); }, "damaged: "},
        {"newer version", [](auto& path) { execute(path, "PRAGMA user_version = 2"); }, "newer version"},
        {"other program's mark", [](auto& path) { execute(path, "PRAGMA application_id = 7"); }, "another program"},
        {"other program's tables", [](auto& path) { QFile::remove(path); execute(path, "PRAGMA journal_mode = WAL; CREATE TABLE notes(text)"); }, "another program"},
        {"wrong table shape", [](auto& path) { execute(path, "DROP TABLE Action; CREATE TABLE Action(name, \"key\")"); }, "not one of a store"},
        {"read-only file", [](auto& path) { QFile(path).setPermissions(QFile::ReadOwner); }, "not writable"},
        {"read-only folder", [&](auto&) { QFile(file.path()).setPermissions(folderOnly); }, "not writable"},
        {"directory", [](auto& path) { QFile::remove(path); QDir().mkpath(path); }, "not a file"},
        {"pipe", [](auto& path) { QFile::remove(path); ::mkfifo(QFile::encodeName(path).constData(), 0600); }, "not a file"},
    };
    // clang-format on
    makeStore();
    const QString good = world.path(u"good.sqlite"_s);
    ASSERT_TRUE(QFile::copy(path(), good));
    const auto state = [&] {
        QFile content(path());
        const bool isFile = QFileInfo(path()).isFile() && content.open(QIODevice::ReadOnly);
        return std::pair(isFile ? content.readAll() : QByteArray(),
                         file.dir().entryList(QDir::AllEntries | QDir::System));
    };
    for (const auto& refusal : refusals) {
        SCOPED_TRACE(refusal.name);
        refusal.spoil(path());
        const auto before = state();
        reopen();
        const auto opened = store->open();
        ASSERT_FALSE(opened);
        EXPECT_TRUE(opened.error().detail.contains(QLatin1String(refusal.reason)))
            << opened.error().detail.toStdString();
        EXPECT_EQ(state(), before);
        QFile(file.path()).setPermissions(folderOnly | QFile::WriteOwner);
        QFile::remove(path());
        QDir().rmdir(path());
        ASSERT_TRUE(QFile::copy(good, path()));
    }
    reopen();
    EXPECT_EQ(storedTitles(), QStringList({u"a"_s, u"b"_s}));
}

TEST_F(ModelTest, AnEmptyFileBecomesAStoreWithOneHolderAtATime) {
    write(path(), {});
    insert<LMWorkspace>();
    EXPECT_TRUE(world.hasLogged(u"is empty"_s));
    EXPECT_TRUE(context().save());
    EXPECT_TRUE(
        LMStoredWindowsStore(world.environment).open().error().detail.contains(u"in use"_s));
    store.reset();
    EXPECT_TRUE(LMStoredWindowsStore(world.environment).open());
}

TEST_F(ModelTest, OlderStoresAreMigratedInPlace) {
    makeStore();
    // As a version without these attributes, and without actions, would have left it.
    execute(path(), "PRAGMA user_version = 0; DROP TABLE Action;"
                    "ALTER TABLE Window DROP COLUMN children; ALTER TABLE Window DROP COLUMN title;"
                    "ALTER TABLE Window DROP COLUMN hasGrowArea;"
                    "ALTER TABLE Application DROP COLUMN windowsOrdering;"
                    "ALTER TABLE Window ADD COLUMN later TEXT; UPDATE Window SET later = 'kept'");
    for (const QString& title : {QString(), u"new"_s}) {
        reopen();
        const auto stored = context().objects<LMApplication>().front()->orderedWindows();
        EXPECT_EQ(stored, context().objects<LMStoredWindow>());
        LMWindow* window = stored.at(0)->orderedMatchingWindows().at(0);
        EXPECT_EQ(window->title(), title);
        EXPECT_FALSE(window->children() || window->hasGrowArea());
        EXPECT_TRUE(world.messages.isEmpty()); // What is merely absent is no damage.
        window->setTitle(u"new"_s);
        ASSERT_TRUE(context().save());
    }
    store.reset();
    SQLite::Database database(path().toStdString());
    EXPECT_EQ(database.execAndGet("SELECT count(*) FROM Window WHERE later = 'kept'").getInt(), 2);
    EXPECT_EQ(database.execAndGet("PRAGMA user_version").getInt(), 1);
}

TEST_F(ModelTest, DamagedRowsLoadAsFarAsTheyGo) {
    makeStore();
    execute(path(), "UPDATE Window SET hasDocument = 'banana', hasGrowArea = 1.5, children = '[1'"
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
    EXPECT_EQ(context().objects<LMApplication>().front()->orderedWindows(),
              context().objects<LMStoredWindow>());
    const std::vector<LMWindow*> windows = context().objects<LMWindow>();
    ASSERT_EQ(windows.size(), 6u);
    EXPECT_FALSE(windows[0]->hasDocument() || windows[0]->hasGrowArea() || windows[0]->children());
    EXPECT_EQ(windows[2]->title(), u"41"_s);
    EXPECT_EQ(windows[5]->storedWindow(), context().objects<LMStoredWindow>()[1]);
    EXPECT_TRUE(world.hasLogged(u"6 values of the store cannot be read, the first is "_s));
    EXPECT_TRUE(world.hasLogged(u"3 objects of the store have no owner"_s));
    EXPECT_EQ(window(u"next"_s)->objectID().key, 53);
}
