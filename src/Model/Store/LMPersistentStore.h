// SPDX-License-Identifier: MIT
#pragma once

#include "Model/Store/LMObjectID.h"
#include "Model/Store/LMStoreRow.h"
#include "Utilities/LMResult.h"

#include <QString>

#include <functional>
#include <memory>
#include <vector>

class LMLogger;
class LMManagedObject;
class LMObjectModel;
struct LMEntityDescription;

/// What one save writes.
struct LMStoreChanges {
    std::vector<const LMManagedObject*> updated; ///< Inserted or changed.
    std::vector<LMObjectID> deleted;
    std::vector<qint64> nextKeys; ///< For each entity the next key to give away.

    bool isEmpty() const { return updated.empty() && deleted.empty(); }
};

/// An object graph's SQLite file: a table per entity, a column per attribute, the owner as foreign
/// key, and a table of the keys given away.
///
/// A rollback journal with full sync guards each save, so the file holds the state before or after
/// a save whatever happens to the process. While a store is open its folder is locked, so that two
/// processes never write the same file; the kernel drops the lock with the process.
class LMPersistentStore {
public:
    /// Opens the store file, which is made when it is missing or empty, and brings an older one to
    /// the model's version. What is not a store of this program, or belongs to a newer version of
    /// it, is damaged, locked or read-only, is refused and left as it is. The error says why.
    static LMResult<std::unique_ptr<LMPersistentStore>, QString>
    open(const QString& path, const LMObjectModel& model, const LMLogger& logger);

    ~LMPersistentStore();
    Q_DISABLE_COPY_MOVE(LMPersistentStore)

    const QString& path() const;

    /// Receives a row: its entity, its key, the key of its owner (0 for none), and the attributes,
    /// which begin at the given column in the order of the entity's description.
    using RowHandler =
        std::function<void(const LMEntityDescription& entity, qint64 key, qint64 ownerKey,
                           const LMStoreRow& row, int firstAttribute)>;
    /// Reads all rows of one state of the file, entity by entity, in the order of their keys. A row
    /// whose key cannot be an object's is left out and stays in the file. Answers with the next key
    /// to give away for each entity.
    LMResult<std::vector<qint64>, QString> readObjects(const RowHandler& handler);

    /// Writes all changes in one transaction, or nothing at all.
    LMResult<void, QString> write(const LMStoreChanges& changes);

    /// Makes a new file when somebody has removed the one that was open, and answers whether it
    /// did: then the caller has everything to write, not only what changed.
    bool remakeIfMissing(const LMLogger& logger);

    /// Keys are 1 … maximumKey.
    static constexpr qint64 maximumKey = qint64(1) << 62;

private:
    struct Private;
    explicit LMPersistentStore(std::unique_ptr<Private> d);

    std::unique_ptr<Private> d;
};
