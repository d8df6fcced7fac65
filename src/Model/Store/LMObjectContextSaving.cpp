// SPDX-License-Identifier: MIT
#include "Model/Store/LMObjectContext.h"
#include "Model/Store/LMObjectModel.h"
#include "Model/Store/LMPersistentStore.h"
#include "Platform/LMEnvironment.h"
#include "Utilities/LMFormat.h"

bool LMObjectContext::hasChanges() const {
    return !changesToWrite().isEmpty();
}

LMStoreChanges LMObjectContext::changesToWrite() const {
    LMStoreChanges changes;
    for (const LMManagedObject* object : m_changed) {
        if (!object->m_isDeleted)
            changes.updated.push_back(object);
    }
    for (const LMManagedObject* object : m_deleted) {
        if (!object->m_isInserted)
            changes.deleted.push_back(object->m_objectID);
    }
    changes.nextKeys.reserve(m_entities.size());
    for (const Entity& entity : m_entities)
        changes.nextKeys.push_back(entity.nextKey);
    return changes;
}

LMResult<void, QString> LMObjectContext::save() {
    using Result = LMResult<void, QString>;
    if (!m_store)
        return Result::failure(LMLocalized("There is no store to save to."));
    if (m_loadFailure)
        return Result::failure(*m_loadFailure);
    auto written = writeChanges();
    if (written)
        didSave();
    return written;
}

LMResult<void, QString> LMObjectContext::writeChanges() {
    const LMStoreChanges changes = changesToWrite();
    if (changes.isEmpty())
        return LMResult<void, QString>::success();
    auto written = m_store->write(changes);
    if (written || !m_store->remakeIfMissing(m_environment.logger))
        return written;
    for (const Entity& entity : m_entities)
        for (const auto& object : entity.objects)
            noteChange(*object);
    return m_store->write(changesToWrite());
}

void LMObjectContext::didSave() {
    for (LMManagedObject* object : m_changed) {
        object->m_hasChanges = false;
        object->m_isInserted = false;
    }
    m_changed.clear();
    freeObjects(std::vector(m_deleted));
}
