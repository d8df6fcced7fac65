// SPDX-License-Identifier: MIT
#include "Model/Store/LMRecordSnapshot.h"

#include "Model/Store/LMEntityDescription.h"
#include "Model/Store/LMManagedObject.h"
#include "Model/Store/LMObjectContext.h"

LMRecordSnapshot::LMRecordSnapshot(const LMManagedObject& root, const Filter& includes) {
    add(root, includes);
}

void LMRecordSnapshot::add(const LMManagedObject& object, const Filter& includes) {
    Record& record = m_records.emplace_back();
    record.id = object.objectID();
    record.owner = object.owner() ? object.owner()->objectID() : LMObjectID();
    for (const LMAttributeDescription& attribute : object.entity().attributes)
        record.values.push_back(attribute.value(object));
    for (const LMManagedObject* member : object.ownedObjects()) {
        if (!includes || includes(*member))
            add(*member, includes);
    }
}

LMManagedObject* LMRecordSnapshot::restore(LMObjectContext& context, LMManagedObject* owner) const {
    for (const Record& record : m_records) {
        const bool isRoot = &record == &m_records.front();
        LMManagedObject* object = context.reinsertObjectWithID(
            record.id, isRoot ? owner : context.existingObjectWithID(record.owner));
        if (!object)
            return nullptr;
        auto value = record.values.begin();
        for (const LMAttributeDescription& attribute : object->entity().attributes)
            attribute.setValue(*object, *value++);
    }
    return context.existingObjectWithID(root());
}
