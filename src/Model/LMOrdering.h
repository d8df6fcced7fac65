// SPDX-License-Identifier: MIT
#pragma once

#include "Model/Store/LMManagedObject.h"
#include "Model/Store/LMObjectContext.h"

#include <QSet>
#include <QStringList>

#include <algorithm>
#include <vector>

// An ordered relationship is a plain set of members and, beside it, the list of their URIs in the
// order in which people see them.

/// The URIs of the objects, in their order.
template <class T>
QStringList LMURIsOfObjects(const std::vector<T*>& objects) {
    QStringList uris;
    uris.reserve(static_cast<qsizetype>(objects.size()));
    for (const T* object : objects)
        uris.append(object->uriRepresentation());
    return uris;
}

/// The ordering without the URIs of the objects.
template <class T>
QStringList LMOrderingWithoutObjects(const QStringList& ordering, const std::vector<T*>& objects) {
    const QStringList removed = LMURIsOfObjects(objects);
    const QSet<QString> isRemoved(removed.begin(), removed.end());
    QStringList left;
    std::copy_if(ordering.begin(), ordering.end(), std::back_inserter(left),
                 [&](const QString& uri) { return !isRemoved.contains(uri); });
    return left;
}

/// The members of the owner that the ordering names, in its order. What no longer names a member is
/// taken out of the ordering in place.
template <class T>
std::vector<T*> LMMembersInOrder(const LMManagedObject& owner, QStringList& ordering) {
    const LMObjectContext& context = owner.managedObjectContext();
    std::vector<T*> members;
    members.reserve(static_cast<std::size_t>(ordering.size()));
    ordering.removeIf([&](const QString& uri) {
        LMManagedObject* object =
            context.existingObjectWithID(context.managedObjectIDForURIRepresentation(uri));
        if (!object || object->owner() != &owner)
            return true;
        members.push_back(static_cast<T*>(object));
        return false;
    });
    return members;
}
