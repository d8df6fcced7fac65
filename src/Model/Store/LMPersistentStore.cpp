// SPDX-License-Identifier: MIT
#include "Model/Store/LMPersistentStore.h"

#include "Model/Store/LMManagedObject.h"
#include "Model/Store/LMObjectModel.h"
#include "Model/Store/LMStoreFile.h"
#include "Model/Store/LMStoreSchema.h"
#include "Utilities/LMBaseDirectories.h"
#include "Utilities/LMFormat.h"
#include "Utilities/LMLogger.h"

#include <QFile>
#include <QFileInfo>

#include <sqlite3.h>
#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Exception.h>
#include <SQLiteCpp/Statement.h>
#include <SQLiteCpp/Transaction.h>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <utility>

namespace {

/// Long enough for a reader with a slow disk, short enough for a user who waits.
constexpr int busyTimeoutMilliseconds = 2000;

QString errorText(const QString& path, const SQLite::Exception& exception) {
    if (exception.getExtendedErrorCode() == SQLITE_READONLY_DBMOVED)
        return LMFormat(LMLocalized("%@: the file was moved or replaced while Rook was using it"),
                        {path});
    return QStringLiteral("%1: %2 (%3)")
        .arg(path, QString::fromUtf8(exception.what()))
        .arg(exception.getExtendedErrorCode());
}

/// Titles tell what their owner works on, so nobody else may read them, whatever the folder allows.
/// SQLite gives the journal the permissions of the database.
void createForOwnerOnly(const QString& path) {
    const int descriptor = ::open(QFile::encodeName(path).constData(),
                                  O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, S_IRUSR | S_IWUSR);
    if (descriptor >= 0)
        ::close(descriptor);
}

SQLite::Database openDatabase(const QString& path) {
    createForOwnerOnly(path);
    SQLite::Database database(QFile::encodeName(path).toStdString(),
                              SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE,
                              busyTimeoutMilliseconds);
    database.exec("PRAGMA journal_mode = DELETE");
    database.exec("PRAGMA synchronous = FULL");
    // The references between the tables tell people how to read them; the object graph keeps them
    // right, and it may delete an owner before its members.
    database.exec("PRAGMA foreign_keys = OFF");
    database.exec("PRAGMA temp_store = MEMORY");
    return database;
}

/// Pages that do not fit together would otherwise read as fewer rows.
void checkPages(SQLite::Database& database) {
    const std::string answer = database.execAndGet("PRAGMA quick_check(1)").getString();
    if (answer != "ok")
        throw SQLite::Exception("damaged: " + answer);
}

class EntityStatements {
public:
    EntityStatements(SQLite::Database& database, const LMEntityDescription& entity)
        : m_entity(entity), m_upsert(database, LMUpsertStatement(entity)),
          m_delete(database, LMDeleteStatement(entity)) {}

    void write(const LMManagedObject& object) {
        LMStoreRowWriter writer(restart(m_upsert));
        int parameter = 1;
        writer.write(parameter++, object.objectID().key);
        if (m_entity.hasOwner())
            writer.write(parameter++, ownerKey(object));
        for (const LMAttributeDescription& attribute : m_entity.attributes)
            attribute.save(object, writer, parameter++);
        m_upsert.exec();
    }

    void remove(qint64 key) {
        LMStoreRowWriter(restart(m_delete)).write(1, key);
        m_delete.exec();
    }

private:
    static std::optional<qint64> ownerKey(const LMManagedObject& object) {
        const LMManagedObject* owner = object.owner();
        return owner ? std::optional(owner->objectID().key) : std::nullopt;
    }

    /// Answers the failure of the last run again, which was dealt with then.
    static SQLite::Statement& restart(SQLite::Statement& statement) {
        (void)statement.tryReset();
        return statement;
    }

    const LMEntityDescription& m_entity;
    SQLite::Statement m_upsert;
    SQLite::Statement m_delete;
};

} // namespace

struct LMPersistentStore::Private {
    Private(QString filePath, const LMObjectModel& objectModel, LMFolderLock folderLock)
        : path(std::move(filePath)), model(objectModel), lock(std::move(folderLock)),
          database(openDatabase(path)) {}

    void prepareStatements() {
        statements.reserve(model.entities().size());
        for (const LMEntityDescription& entity : model.entities())
            statements.emplace_back(database, entity);
    }

    void readEntity(const LMEntityDescription& entity, const RowHandler& handler);
    std::vector<qint64> readNextKeys();
    void writeNextKeys(const std::vector<qint64>& nextKeys);

    QString path;
    const LMObjectModel& model;
    LMFolderLock lock; // Outlives the connection.
    SQLite::Database database;
    std::vector<EntityStatements> statements; ///< In the order of the entities.
    std::vector<qint64> writtenNextKeys;
};

LMPersistentStore::LMPersistentStore(std::unique_ptr<Private> dIn) : d(std::move(dIn)) {}
LMPersistentStore::~LMPersistentStore() = default;

const QString& LMPersistentStore::path() const {
    return d->path;
}

LMResult<std::unique_ptr<LMPersistentStore>, QString>
LMPersistentStore::open(const QString& path, const LMObjectModel& model, const LMLogger& logger) {
    using Result = LMResult<std::unique_ptr<LMPersistentStore>, QString>;
    const auto kind = LMInspectStoreFile(path, model.version());
    if (!kind)
        return Result::failure(kind.error());
    auto lock = LMFolderLock::lock(QFileInfo(path).path());
    if (!lock)
        return Result::failure(lock.error());
    if (*kind == LMStoreFileKind::Empty)
        logger.warning(QStringLiteral("%@ is empty; a new store is made of it"), {path});
    try {
        auto d = std::make_unique<Private>(path, model, std::move(lock).value());
        if (*kind == LMStoreFileKind::Store)
            checkPages(d->database);
        LMBringSchemaUpToDate(d->database, model);
        d->prepareStatements();
        return Result::success(
            std::unique_ptr<LMPersistentStore>(new LMPersistentStore(std::move(d))));
    } catch (const SQLite::Exception& exception) {
        return Result::failure(errorText(path, exception));
    }
}

// --- reading -------------------------------------------------------------------------------

void LMPersistentStore::Private::readEntity(const LMEntityDescription& entity,
                                            const RowHandler& handler) {
    SQLite::Statement statement(database, LMSelectStatement(entity));
    while (statement.executeStep()) {
        const LMStoreRow row(statement);
        qint64 key = 0;
        qint64 ownerKey = 0;
        row.read(0, key);
        row.read(1, ownerKey);
        if (key >= 1 && key <= maximumKey)
            handler(entity, key, ownerKey, row, 2);
    }
}

std::vector<qint64> LMPersistentStore::Private::readNextKeys() {
    std::vector<qint64> nextKeys(model.entities().size(), 1);
    SQLite::Statement statement(database, "SELECT \"entity\", \"nextKey\" FROM \"NextKey\"");
    while (statement.executeStep()) {
        const LMStoreRow row(statement);
        QString name;
        qint64 nextKey = 0;
        row.read(0, name);
        const LMEntityDescription* entity = model.entityNamed(name);
        if (entity && row.read(1, nextKey) && nextKey >= 1 && nextKey <= maximumKey)
            nextKeys[entity->index] = nextKey;
    }
    return nextKeys;
}

LMResult<std::vector<qint64>, QString> LMPersistentStore::readObjects(const RowHandler& handler) {
    using Result = LMResult<std::vector<qint64>, QString>;
    try {
        SQLite::Transaction transaction(d->database);
        for (const LMEntityDescription& entity : d->model.entities())
            d->readEntity(entity, handler);
        d->writtenNextKeys = d->readNextKeys();
        transaction.commit();
        return Result::success(d->writtenNextKeys);
    } catch (const SQLite::Exception& exception) {
        return Result::failure(errorText(d->path, exception));
    }
}

// --- writing -------------------------------------------------------------------------------

void LMPersistentStore::Private::writeNextKeys(const std::vector<qint64>& nextKeys) {
    if (nextKeys == writtenNextKeys)
        return;
    SQLite::Statement statement(database, "INSERT OR REPLACE INTO \"NextKey\" VALUES(?, ?)");
    for (const LMEntityDescription& entity : model.entities()) {
        LMStoreRowWriter writer(statement);
        writer.write(1, entity.name);
        writer.write(2, nextKeys[entity.index]);
        statement.exec();
        statement.reset();
    }
}

LMResult<void, QString> LMPersistentStore::write(const LMStoreChanges& changes) {
    using Result = LMResult<void, QString>;
    try {
        SQLite::Transaction transaction(d->database, SQLite::TransactionBehavior::IMMEDIATE);
        for (const LMManagedObject* object : changes.updated)
            d->statements[object->entity().index].write(*object);
        for (const LMObjectID& id : changes.deleted)
            d->statements[id.entity].remove(id.key);
        d->writeNextKeys(changes.nextKeys);
        transaction.commit();
    } catch (const SQLite::Exception& exception) {
        return Result::failure(errorText(d->path, exception));
    }
    d->writtenNextKeys = changes.nextKeys;
    return Result::success();
}

bool LMPersistentStore::remakeIfMissing(const LMLogger& logger) {
    const QFileInfo file(d->path);
    // An empty one is what a full disk left of the last attempt.
    if (file.exists() && file.size() > 0)
        return false;
    logger.warning(QStringLiteral("%@ was removed; a new store is made"), {d->path});
    (void)LMCreateDirectory(file.path());
    // The new store takes the lock, which this one has for good.
    (void)LMFolderLock(std::move(d->lock));
    auto made = open(d->path, d->model, logger);
    if (!made)
        return false;
    d = std::move((*made)->d);
    return true;
}
