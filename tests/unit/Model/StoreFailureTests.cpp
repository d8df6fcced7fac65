// SPDX-License-Identifier: MIT
#include "ModelTest.h"

#include "Model/Store/LMPersistentStore.h"

#include <QRandomGenerator>

#include <SQLiteCpp/Database.h>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>

namespace {

/// No file of this process grows beyond the size while it lives: writes fail as on a full disk.
class FileSizeLimit {
public:
    explicit FileSizeLimit(qint64 size) {
        ::signal(SIGXFSZ, SIG_IGN);
        ::getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit limit{static_cast<rlim_t>(size), m_before.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FileSizeLimit() { ::setrlimit(RLIMIT_FSIZE, &m_before); }
    Q_DISABLE_COPY_MOVE(FileSizeLimit)

private:
    rlimit m_before{};
};

/// A store file and its objects, without the program round them.
struct OpenedStore {
    OpenedStore(const QString& path, LMEnvironment& environment)
        : store(LMPersistentStore::open(path, *model, environment.logger)),
          context(*model, environment, store ? store->get() : nullptr) {}

    std::unique_ptr<LMObjectModel> model = LMRookModel();
    LMResult<std::unique_ptr<LMPersistentStore>, QString> store;
    LMObjectContext context;
};

} // namespace

TEST_F(ModelTest, AFullDiskLeavesTheOldContentsAndTheChangesInMemory) {
    const QString longTitle(300'000, u'n');
    const QString copy = world.path(u"copy.sqlite"_s);
    // From "not even the journal" to "the last page does not fit".
    for (const qint64 room : {qint64(512), qint64(8192), qint64(40'000), qint64(200'000)}) {
        QFile::remove(path());
        reopen();
        makeStore();
        reopen();
        const std::vector<LMStoredWindow*> stored = context().objects<LMStoredWindow>();
        stored[0]->orderedMatchingWindows().front()->setTitle(longTitle);
        context().deleteObject(stored[1]);
        {
            const FileSizeLimit limit(room);
            ASSERT_FALSE(context().save());
            // Another change after the failure, and another failure.
            stored[0]->setLabel(u"label"_s);
            ASSERT_FALSE(context().save());
        }
        QFile::remove(copy);
        ASSERT_TRUE(QFile::copy(path(), copy));
        const OpenedStore old(copy, world.environment);
        ASSERT_TRUE(old.store) << old.store.error().toStdString();
        EXPECT_EQ(titles(old.context.objects<LMStoredWindow>()), QStringList({u"a"_s, u"b"_s}));
        ASSERT_TRUE(context().save());
        reopen();
        EXPECT_EQ(storedTitles(), QStringList(longTitle));
        EXPECT_EQ(context().objects<LMStoredWindow>().front()->label(), u"label"_s);
    }
}

TEST_F(ModelTest, AnInterruptedSaveIsUndone) {
    makeStore();
    const QString spare = world.path(u"Spare.sqlite"_s);
    ASSERT_TRUE(QFile::copy(path(), spare));
    SQLite::Database database(spare.toStdString(), SQLite::OPEN_READWRITE);
    // A save that outgrew its memory and has begun to write to the file.
    database.exec("PRAGMA cache_size = 1; BEGIN; UPDATE Window SET title = 'half';"
                  "DELETE FROM StoredWindow");
    for (int i = 0; i < 100; ++i)
        database.exec("INSERT INTO Window(title) VALUES(hex(randomblob(4000)))");
    QFile::remove(path());
    ASSERT_TRUE(QFile::copy(spare, path()) &&
                QFile::copy(spare + u"-journal"_s, path() + u"-journal"_s));
    ASSERT_GT(QFileInfo(path()).size(), 100'000);
    // Power failed while the file grew.
    ASSERT_TRUE(QFile(path()).resize(QFileInfo(path()).size() - 1000));
    reopen();
    EXPECT_EQ(storedTitles(), QStringList({u"a"_s, u"b"_s}));
    EXPECT_EQ(context().objects<LMWindow>().size(), 2u);
}

namespace {

constexpr std::size_t storedWindowCount = 20;

/// What the child saves in one go: every stored window bears the round's number, and every round
/// another set of windows hangs in them.
void changeEverything(LMObjectContext& context, int round) {
    for (LMWindow* window : context.objects<LMWindow>())
        context.deleteObject(window);
    for (LMStoredWindow* stored : context.objects<LMStoredWindow>()) {
        stored->setLabel(QString::number(round).repeated(100));
        stored->setTitleRegularExpression(QString::number(round));
        for (int i = 0; i < round % 3 + 1; ++i)
            stored->addMatchingWindowsObject(context.insertObject<LMWindow>());
    }
}

/// The round of the last save that has reached the file as a whole.
int wholeRound(const LMObjectContext& context) {
    const std::vector<LMStoredWindow*> all = context.objects<LMStoredWindow>();
    EXPECT_EQ(all.size(), storedWindowCount);
    const QString round = all.at(0)->titleRegularExpression();
    for (const LMStoredWindow* stored : all) {
        EXPECT_EQ(stored->titleRegularExpression(), round);
        EXPECT_EQ(stored->label(), round.repeated(100));
        EXPECT_EQ(stored->matchingWindows().size(), std::size_t(round.toInt() % 3 + 1));
    }
    return round.toInt();
}

/// Saves round after round; writes a byte to the pipe when it has begun.
[[noreturn]] void saveForever(const QString& path, LMEnvironment& environment, int begun) {
    OpenedStore opened(path, environment);
    if (::write(begun, "!", 1) != 1)
        ::_exit(1);
    for (int round = wholeRound(opened.context) + 1;; ++round) {
        changeEverything(opened.context, round);
        if (!opened.context.save())
            ::_exit(2);
    }
}

} // namespace

TEST_F(ModelTest, AProcessKilledAtAnyMomentLeavesTheOldOrTheNewState) {
    // In memory a save takes well under a millisecond, so that death strikes everywhere in it.
    const QTemporaryDir fast(QDir(u"/dev/shm"_s).exists() ? u"/dev/shm/rook-XXXXXX"_s
                                                          : world.path(u"XXXXXX"_s));
    const QString file = fast.filePath(u"Killed.sqlite"_s);
    {
        OpenedStore opened(file, world.environment);
        for (std::size_t i = 0; i < storedWindowCount; ++i)
            opened.context.insertObject<LMStoredWindow>();
        changeEverything(opened.context, 0);
        ASSERT_TRUE(opened.context.save());
    }
    int round = 0;
    for (int death = 0; death < 200 && !HasFailure(); ++death) {
        int begun[2];
        ASSERT_EQ(::pipe(begun), 0);
        const pid_t child = ::fork();
        if (child == 0)
            saveForever(file, world.environment, begun[1]);
        ::close(begun[1]);
        char byte = 0;
        EXPECT_EQ(::read(begun[0], &byte, 1), 1);
        ::close(begun[0]);
        ::usleep(QRandomGenerator::global()->bounded(10'000u));
        ::kill(child, SIGKILL);
        int status = 0;
        ASSERT_EQ(::waitpid(child, &status, 0), child);
        ASSERT_TRUE(WIFSIGNALED(status)) << "the child ended by itself: " << WEXITSTATUS(status);
        const OpenedStore opened(file, world.environment);
        ASSERT_TRUE(opened.store) << opened.store.error().toStdString();
        round = wholeRound(opened.context);
    }
    // The children have come far enough for their deaths to mean something.
    EXPECT_GT(round, 50);
}
