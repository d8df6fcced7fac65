// SPDX-License-Identifier: MIT
#pragma once

#include "Model/Store/LMAttributeDescription.h"

#include <QString>

#include <memory>
#include <vector>

/// One kind of object: its class, its attributes and who owns it.
struct LMEntityDescription {
    QString name; ///< Also the table's name.
    std::vector<LMAttributeDescription> attributes;
    QString ownerEntity;       ///< Empty when objects of this entity are never owned.
    QString ownerRelationship; ///< Name of the to-one relationship and its foreign key column.
    std::unique_ptr<LMManagedObject> (*create)() = nullptr;

    /// Places in the object model; the model fills them in.
    quint16 index = 0;
    quint16 ownerIndex = 0;

    bool hasOwner() const { return !ownerEntity.isEmpty(); }
};

/// A description whose objects are of class T.
template <class T>
LMEntityDescription LMDescribeEntity(std::vector<LMAttributeDescription> attributes,
                                     const QString& ownerEntity = {},
                                     const QString& ownerRelationship = {}) {
    return {T::entityName(), std::move(attributes), ownerEntity, ownerRelationship,
            []() -> std::unique_ptr<LMManagedObject> { return std::make_unique<T>(); }};
}
