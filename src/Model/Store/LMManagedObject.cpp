// SPDX-License-Identifier: MIT
#include "Model/Store/LMManagedObject.h"

#include "Model/Store/LMObjectContext.h"
#include "Model/Store/LMObjectModel.h"

QString LMManagedObject::uriRepresentation() const {
    return m_context->model().uriRepresentation(m_objectID);
}

LMEnvironment& LMManagedObject::environment() const {
    return m_context->environment();
}

void LMManagedObject::didChange() {
    m_context->noteChange(*this);
}

void LMManagedObject::setOwner(LMManagedObject& member, LMManagedObject* owner) {
    if (member.m_owner == owner)
        return;
    member.m_owner = owner;
    member.didChange();
    if (!owner)
        member.m_context->noteUnattached(member);
}
