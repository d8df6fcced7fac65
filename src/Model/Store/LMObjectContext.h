// SPDX-License-Identifier: MIT
#pragma once

#include "Model/Store/LMManagedObject.h"
#include "Utilities/LMResult.h"

#include <memory>
#include <optional>
#include <vector>

class LMObjectModel;
class LMPersistentStore;
class LMStoreRow;
struct LMStoreChanges;

/// The one shared space of all objects of an environment.
///
/// All objects of the store are loaded when the context is attached; changes stay in memory until
/// save. Used on the main thread only.
class LMObjectContext {
public:
    /// Without a store the context works in memory and save fails. The model, the environment and
    /// the store outlive the context.
    LMObjectContext(const LMObjectModel& model, LMEnvironment& environment,
                    LMPersistentStore* store = nullptr);
    ~LMObjectContext();
    Q_DISABLE_COPY_MOVE(LMObjectContext)

    /// Why the objects of the store could not be loaded. The context is then empty and refuses to
    /// save, so that the store keeps what it holds.
    const std::optional<QString>& loadFailure() const { return m_loadFailure; }

    LMEnvironment& environment() const { return m_environment; }
    const LMObjectModel& model() const { return m_model; }

    /// A new object with its final identifier, awoken from insertion, owned by the context.
    template <class T>
    T* insertObject() {
        return static_cast<T*>(insertObjectForEntity(T::entityName()));
    }

    /// Takes the object out of all relationships; what it owned becomes unattached.
    void deleteObject(LMManagedObject* object);

    /// Brings an object back under the identifier it had before it was deleted, as a member of the
    /// owner or of nothing; an object that still lives only becomes that member. Its values are for
    /// the caller to fill in, and so are ordering lists. Null for an identifier that was never
    /// given to an object.
    LMManagedObject* reinsertObjectWithID(const LMObjectID& id, LMManagedObject* owner);

    /// All living objects of an entity, in the order of their keys.
    template <class T>
    std::vector<T*> objects() const {
        std::vector<T*> result;
        for (LMManagedObject* object : objectsForEntity(T::entityName()))
            result.push_back(static_cast<T*>(object));
        return result;
    }

    /// The living object, or none.
    LMManagedObject* existingObjectWithID(const LMObjectID& id) const;
    /// The identifier a URI names, or a null identifier for text that names none.
    LMObjectID managedObjectIDForURIRepresentation(const QString& uri) const;

    /// The result of one of the model's fetch templates ("unattachedWindows", ...); empty for
    /// a name the model does not know.
    std::vector<LMManagedObject*> executeFetchTemplate(const QString& name);

    bool hasChanges() const;
    /// Writes everything that changed in one transaction; touches no file when nothing did. On
    /// failure nothing is written, the changes stay for the next save, and the text says why.
    LMResult<void, QString> save();

    /// A moment in the life of the context: which objects are older, which younger.
    using Mark = std::vector<qint64>;
    Mark mark() const;

    /// Drops objects that were never saved and that nothing owns: live records that only served a
    /// comparison. Pointers to them become invalid. With a mark, those older than it stay.
    void discardTransientObjects(const Mark& since = {});

private:
    friend class LMManagedObject;

    struct Entity {
        std::vector<std::unique_ptr<LMManagedObject>> objects; ///< In the order of their keys.
        /// Holds every unattached object; may hold others, too.
        std::vector<LMManagedObject*> unattached;
        qint64 nextKey = 1;
    };
    struct Loading;

    LMManagedObject* insertObjectForEntity(const QString& entityName);
    std::vector<LMManagedObject*> objectsForEntity(const QString& entityName) const;
    std::vector<LMManagedObject*> unattachedObjects(const LMEntityDescription& entity);
    LMManagedObject* objectWithKey(const Entity& entity, qint64 key) const;

    LMManagedObject& addObject(const LMEntityDescription& entity, qint64 key);
    void detach(LMManagedObject& member);

    // Called by the objects.
    void noteChange(LMManagedObject& object);
    void noteUnattached(LMManagedObject& object);

    void load();
    void loadObject(LMManagedObject& object, qint64 ownerKey, const LMStoreRow& row,
                    int firstAttribute, Loading& loading);
    void attachLoadedObjects(const Loading& loading);
    void reportUnreadAttributes(const Loading& loading);

    LMStoreChanges changesToWrite() const;
    LMResult<void, QString> writeChanges();
    void didSave();

    static bool isYounger(const LMManagedObject& object, const Mark& mark);
    void discard(LMManagedObject* object, const Mark& since, std::vector<LMManagedObject*>& doomed);
    void freeObjects(const std::vector<LMManagedObject*>& doomed);
    static void freeObjectsFrom(std::vector<std::unique_ptr<LMManagedObject>>& objects,
                                qint64 firstKey);

    const LMObjectModel& m_model;
    LMEnvironment& m_environment;
    LMPersistentStore* m_store;
    std::vector<Entity> m_entities;          ///< In the order of the model's entities.
    std::vector<LMManagedObject*> m_changed; ///< Each once, deleted ones included.
    std::vector<LMManagedObject*> m_deleted; ///< Each once, not yet freed.
    std::optional<QString> m_loadFailure;
};
