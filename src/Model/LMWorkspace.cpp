// SPDX-License-Identifier: MIT
#include "Model/LMWorkspace.h"

#include "Model/LMAction.h"
#include "Model/LMApplication.h"
#include "Model/LMDisplay.h"
#include "Model/LMOrdering.h"
#include "Model/Store/LMEntityDescription.h"
#include "Utilities/LMFormat.h"

#include <algorithm>

namespace {

/// The order of the keys, in which members are loaded: it stays when one is brought back.
template <class T>
void insertByAge(std::vector<T*>& members, T* member) {
    const auto isOlder = [](const T* a, const T* b) {
        return a->objectID().key < b->objectID().key;
    };
    members.insert(std::upper_bound(members.begin(), members.end(), member, isOlder), member);
}

} // namespace

QString LMWorkspace::entityName() {
    return QStringLiteral("Workspace");
}

LMEntityDescription LMWorkspace::entityDescription() {
    return LMDescribeEntity<LMWorkspace>({
        LMDescribeAttribute<&LMWorkspace::m_name>(QStringLiteral("name")),
    });
}

QString LMWorkspace::name() const {
    if (!m_name.isEmpty())
        return m_name;
    const std::size_t count = m_displays.size();
    return LMFormat(LMLocalized("%lu Display%@"),
                    {QString::number(count), count > 1 ? LMLocalized("s") : QString()});
}

void LMWorkspace::setName(const QString& name) {
    setAttribute(m_name, name);
}

// --- relationships -------------------------------------------------------------------------

LMMutableSet<LMApplication> LMWorkspace::applications() {
    return {m_applications, [this](auto* object) { addApplicationsObject(object); },
            [this](auto* object) { removeApplicationsObject(object); }};
}

LMMutableSet<LMDisplay> LMWorkspace::displays() {
    return {m_displays, [this](auto* object) { addDisplaysObject(object); },
            [this](auto* object) { removeDisplaysObject(object); }};
}

LMMutableSet<LMAction> LMWorkspace::actions() {
    return {m_actions, [this](auto* object) { addActionsObject(object); },
            [this](auto* object) { removeActionsObject(object); }};
}

void LMWorkspace::addApplicationsObject(LMApplication* application) {
    addMember(application);
}
void LMWorkspace::removeApplicationsObject(LMApplication* application) {
    removeMember(application);
}
void LMWorkspace::addDisplaysObject(LMDisplay* display) {
    addMember(display);
}
void LMWorkspace::removeDisplaysObject(LMDisplay* display) {
    removeMember(display);
}
void LMWorkspace::addActionsObject(LMAction* action) {
    addMember(action);
}
void LMWorkspace::removeActionsObject(LMAction* action) {
    removeMember(action);
}

void LMWorkspace::addMember(LMManagedObject* member) {
    if (!member || member->owner() == this)
        return;
    if (auto* previous = static_cast<LMWorkspace*>(member->owner()))
        previous->removeMember(member);
    insertPrimitiveMember(*member);
    setOwner(*member, this);
}

void LMWorkspace::removeMember(LMManagedObject* member) {
    if (!member || member->owner() != this)
        return;
    removePrimitiveMember(*member);
    setOwner(*member, nullptr);
}

void LMWorkspace::insertPrimitiveMember(LMManagedObject& member) {
    if (auto* application = dynamic_cast<LMApplication*>(&member))
        insertByAge(m_applications, application);
    else if (auto* display = dynamic_cast<LMDisplay*>(&member))
        insertByAge(m_displays, display);
    else if (auto* action = dynamic_cast<LMAction*>(&member))
        insertByAge(m_actions, action);
}

void LMWorkspace::removePrimitiveMember(LMManagedObject& member) {
    std::erase(m_applications, &member);
    std::erase(m_displays, &member);
    std::erase(m_actions, &member);
}

std::vector<LMManagedObject*> LMWorkspace::ownedObjects() const {
    std::vector<LMManagedObject*> objects(m_applications.begin(), m_applications.end());
    objects.insert(objects.end(), m_displays.begin(), m_displays.end());
    objects.insert(objects.end(), m_actions.begin(), m_actions.end());
    return objects;
}

// A workspace describes the displays that were attached when it was made.
void LMWorkspace::awakeFromInsert() {
    for (LMDisplay* display : LMDisplay::currentDisplays(managedObjectContext()))
        addDisplaysObject(display);
}
