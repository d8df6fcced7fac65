// SPDX-License-Identifier: MIT
#pragma once

#include <QHashFunctions>
#include <QString>
#include <QtGlobal>

#include <functional>

class LMObjectModel;

/// Identifies an object of the store for good: assigned on insertion, final before the first save,
/// never given to another object afterwards.
///
/// Its text form is the URI "rook://StoredWindow/17": entity name and key.
struct LMObjectID {
    quint16 entity = 0; ///< Index of the entity in the object model.
    qint64 key = 0;     ///< Primary key in the entity's table; 0 is no object.

    bool isNull() const { return key == 0; }
    bool operator==(const LMObjectID&) const = default;
};

inline size_t qHash(const LMObjectID& id, size_t seed = 0) noexcept {
    return qHashMulti(seed, id.entity, id.key);
}
template <>
struct std::hash<LMObjectID> {
    size_t operator()(const LMObjectID& id) const noexcept { return qHash(id); }
};
