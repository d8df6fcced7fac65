// SPDX-License-Identifier: MIT
#include "Model/Store/LMObjectContext.h"

#include "Model/Store/LMObjectModel.h"

#include <algorithm>
#include <utility>

LMObjectContext::LMObjectContext(const LMObjectModel& model, LMEnvironment& environment,
                                 LMPersistentStore* store)
    : m_model(model), m_environment(environment), m_store(store),
      m_entities(model.entities().size()) {
    if (m_store)
        load();
}

LMObjectContext::~LMObjectContext() = default;

// --- finding -------------------------------------------------------------------------------

LMManagedObject* LMObjectContext::objectWithKey(const Entity& entity, qint64 key) const {
    const auto found = std::lower_bound(
        entity.objects.begin(), entity.objects.end(), key,
        [](const auto& object, qint64 wanted) { return object->m_objectID.key < wanted; });
    return found != entity.objects.end() && (*found)->m_objectID.key == key ? found->get()
                                                                            : nullptr;
}

LMManagedObject* LMObjectContext::existingObjectWithID(const LMObjectID& id) const {
    if (id.isNull() || id.entity >= m_entities.size())
        return nullptr;
    LMManagedObject* object = objectWithKey(m_entities[id.entity], id.key);
    return object && !object->m_isDeleted ? object : nullptr;
}

LMObjectID LMObjectContext::managedObjectIDForURIRepresentation(const QString& uri) const {
    return m_model.objectIDForURIRepresentation(uri);
}

std::vector<LMManagedObject*> LMObjectContext::objectsForEntity(const QString& entityName) const {
    std::vector<LMManagedObject*> result;
    const LMEntityDescription* entity = m_model.entityNamed(entityName);
    if (!entity)
        return result;
    result.reserve(m_entities[entity->index].objects.size());
    for (const auto& object : m_entities[entity->index].objects) {
        if (!object->m_isDeleted)
            result.push_back(object.get());
    }
    return result;
}

std::vector<LMManagedObject*> LMObjectContext::executeFetchTemplate(const QString& name) {
    const LMFetchTemplate* fetch = m_model.fetchTemplateNamed(name);
    const LMEntityDescription* entity = fetch ? m_model.entityNamed(fetch->entity) : nullptr;
    return entity ? unattachedObjects(*entity) : std::vector<LMManagedObject*>();
}

// Saves ask for what is unattached, and walking all objects for it would cost more than writing.
std::vector<LMManagedObject*>
LMObjectContext::unattachedObjects(const LMEntityDescription& entity) {
    std::vector<LMManagedObject*>& candidates = m_entities[entity.index].unattached;
    std::erase_if(candidates, [](LMManagedObject* object) {
        const bool isUnattached = !object->m_owner && !object->m_isDeleted;
        object->m_isListedAsUnattached = isUnattached;
        return !isUnattached;
    });
    std::sort(candidates.begin(), candidates.end(),
              [](const auto* a, const auto* b) { return a->m_objectID.key < b->m_objectID.key; });
    return candidates;
}

// --- inserting and deleting ----------------------------------------------------------------

LMManagedObject* LMObjectContext::insertObjectForEntity(const QString& entityName) {
    const LMEntityDescription* entity = m_model.entityNamed(entityName);
    Q_ASSERT_X(entity, "insertObject", "the object model has no such entity");
    LMManagedObject& object = addObject(*entity, m_entities[entity->index].nextKey);
    object.m_isInserted = true;
    noteChange(object);
    noteUnattached(object);
    object.awakeFromInsert();
    return &object;
}

LMManagedObject& LMObjectContext::addObject(const LMEntityDescription& entity, qint64 key) {
    Entity& place = m_entities[entity.index];
    std::unique_ptr<LMManagedObject> object = entity.create();
    object->m_objectID = {entity.index, key};
    object->m_entity = &entity;
    object->m_context = this;
    place.nextKey = std::max(place.nextKey, key + 1);
    const auto after =
        std::upper_bound(place.objects.begin(), place.objects.end(), key,
                         [](qint64 k, const auto& other) { return k < other->m_objectID.key; });
    return **place.objects.insert(after, std::move(object));
}

LMManagedObject* LMObjectContext::reinsertObjectWithID(const LMObjectID& id,
                                                       LMManagedObject* owner) {
    if (id.isNull() || id.entity >= m_entities.size() || id.key >= m_entities[id.entity].nextKey)
        return nullptr;
    LMManagedObject* object = objectWithKey(m_entities[id.entity], id.key);
    if (!object) {
        object = &addObject(m_model.entities()[id.entity], id.key);
        object->m_isInserted = true;
    } else if (object->m_isDeleted) {
        // The save that would have freed it has failed or is still to come.
        object->m_isDeleted = false;
        std::erase(m_deleted, object);
    }
    noteChange(*object);
    if (object->m_owner != owner)
        detach(*object);
    if (owner && !object->m_owner) {
        owner->insertPrimitiveMember(*object);
        LMManagedObject::setOwner(*object, owner);
    }
    if (!object->m_owner)
        noteUnattached(*object);
    return object;
}

void LMObjectContext::noteChange(LMManagedObject& object) {
    if (object.m_hasChanges)
        return;
    object.m_hasChanges = true;
    m_changed.push_back(&object);
}

void LMObjectContext::noteUnattached(LMManagedObject& object) {
    if (!object.m_entity->hasOwner() || object.m_isListedAsUnattached)
        return;
    object.m_isListedAsUnattached = true;
    m_entities[object.m_entity->index].unattached.push_back(&object);
}

void LMObjectContext::detach(LMManagedObject& member) {
    if (!member.m_owner)
        return;
    member.m_owner->removePrimitiveMember(member);
    LMManagedObject::setOwner(member, nullptr);
}

void LMObjectContext::deleteObject(LMManagedObject* object) {
    if (!object || object->m_isDeleted)
        return;
    object->prepareForDeletion();
    detach(*object);
    for (LMManagedObject* member : object->ownedObjects())
        detach(*member);
    object->m_isDeleted = true;
    m_deleted.push_back(object);
}

// --- freeing -------------------------------------------------------------------------------

LMObjectContext::Mark LMObjectContext::mark() const {
    Mark mark;
    for (const Entity& entity : m_entities)
        mark.push_back(entity.nextKey);
    return mark;
}

bool LMObjectContext::isYounger(const LMManagedObject& object, const Mark& mark) {
    return mark.empty() || object.m_objectID.key >= mark[object.m_objectID.entity];
}

void LMObjectContext::discardTransientObjects(const Mark& since) {
    std::vector<LMManagedObject*> doomed;
    for (LMManagedObject* object : m_deleted) {
        if (object->m_isInserted && isYounger(*object, since))
            doomed.push_back(object);
    }
    for (const LMEntityDescription& entity : m_model.entities()) {
        for (LMManagedObject* object : unattachedObjects(entity))
            discard(object, since, doomed);
    }
    freeObjects(doomed);
}

void LMObjectContext::discard(LMManagedObject* object, const Mark& since,
                              std::vector<LMManagedObject*>& doomed) {
    if (!object->m_isInserted || object->m_isDeleted || !isYounger(*object, since))
        return;
    const std::vector<LMManagedObject*> members = object->ownedObjects();
    deleteObject(object);
    doomed.push_back(object);
    for (LMManagedObject* member : members)
        discard(member, since, doomed);
}

void LMObjectContext::freeObjects(const std::vector<LMManagedObject*>& doomed) {
    if (doomed.empty())
        return;
    std::vector<qint64> firstKeys(m_entities.size(), 0);
    for (LMManagedObject* object : doomed) {
        object->m_isDoomed = true;
        qint64& first = firstKeys[object->m_objectID.entity];
        first = first == 0 ? object->m_objectID.key : std::min(first, object->m_objectID.key);
    }
    const auto isDoomed = [](const LMManagedObject* object) { return object->m_isDoomed; };
    std::erase_if(m_changed, isDoomed);
    std::erase_if(m_deleted, isDoomed);
    for (std::size_t i = 0; i < m_entities.size(); ++i) {
        if (firstKeys[i] != 0) {
            std::erase_if(m_entities[i].unattached, isDoomed);
            freeObjectsFrom(m_entities[i].objects, firstKeys[i]);
        }
    }
}

// What is freed is mostly young and stands near the end.
void LMObjectContext::freeObjectsFrom(std::vector<std::unique_ptr<LMManagedObject>>& objects,
                                      qint64 firstKey) {
    const auto first = std::lower_bound(
        objects.begin(), objects.end(), firstKey,
        [](const auto& object, qint64 key) { return object->m_objectID.key < key; });
    objects.erase(
        std::remove_if(first, objects.end(), [](const auto& object) { return object->m_isDoomed; }),
        objects.end());
}
