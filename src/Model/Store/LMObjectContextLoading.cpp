// SPDX-License-Identifier: MIT
#include "Model/Store/LMObjectContext.h"
#include "Model/Store/LMObjectModel.h"
#include "Model/Store/LMPersistentStore.h"
#include "Platform/LMEnvironment.h"
#include "Utilities/LMLogger.h"

/// What is known about the rows read so far, until the graph can be put together.
struct LMObjectContext::Loading {
    struct Member {
        LMManagedObject* object;
        qint64 ownerKey;
    };
    struct Unread {
        LMManagedObject* object;
        const LMAttributeDescription* attribute;
        bool isDamaged; ///< Not merely NULL.
    };
    std::vector<Member> members;
    std::vector<Unread> unread;
};

void LMObjectContext::load() {
    Loading loading;
    const auto nextKeys =
        m_store->readObjects([&](const LMEntityDescription& entity, qint64 key, qint64 ownerKey,
                                 const LMStoreRow& row, int firstAttribute) {
            loadObject(addObject(entity, key), ownerKey, row, firstAttribute, loading);
        });
    if (!nextKeys) {
        m_loadFailure = nextKeys.error();
        m_entities = std::vector<Entity>(m_model.entities().size());
        return;
    }
    for (std::size_t i = 0; i < m_entities.size(); ++i)
        m_entities[i].nextKey = std::max(m_entities[i].nextKey, (*nextKeys)[i]);
    attachLoadedObjects(loading);
    reportUnreadAttributes(loading);
}

void LMObjectContext::loadObject(LMManagedObject& object, qint64 ownerKey, const LMStoreRow& row,
                                 int firstAttribute, Loading& loading) {
    if (object.m_entity->hasOwner())
        loading.members.push_back({&object, ownerKey});
    int column = firstAttribute;
    for (const LMAttributeDescription& attribute : object.m_entity->attributes) {
        if (!attribute.load(object, row, column))
            loading.unread.push_back({&object, &attribute, !row.isNull(column)});
        ++column;
    }
}

void LMObjectContext::attachLoadedObjects(const Loading& loading) {
    std::size_t orphans = 0;
    for (const Loading::Member& member : loading.members) {
        const Entity& owners = m_entities[member.object->m_entity->ownerIndex];
        LMManagedObject* owner = objectWithKey(owners, member.ownerKey);
        member.object->m_owner = owner;
        if (owner) {
            owner->insertPrimitiveMember(*member.object);
        } else {
            noteUnattached(*member.object);
            ++orphans;
        }
    }
    if (orphans > 0)
        m_environment.logger.warning(QStringLiteral("%lu objects of the store have no owner"),
                                     {QString::number(orphans)});
}

// One line for all of them: a store damaged throughout must not flood the log.
void LMObjectContext::reportUnreadAttributes(const Loading& loading) {
    const Loading::Unread* firstDamaged = nullptr;
    std::size_t damaged = 0;
    for (const Loading::Unread& unread : loading.unread) {
        if (unread.isDamaged && damaged++ == 0)
            firstDamaged = &unread;
        unread.object->attributeDidNotLoad(unread.attribute->name);
    }
    if (firstDamaged)
        m_environment.logger.warning(
            QStringLiteral("%lu values of the store cannot be read, the first is %@ of %@"),
            {QString::number(damaged), firstDamaged->attribute->name,
             firstDamaged->object->uriRepresentation()});
}
