// SPDX-License-Identifier: MIT
#pragma once

#include "Model/Store/LMObjectID.h"

#include <any>
#include <functional>
#include <vector>

class LMManagedObject;
class LMObjectContext;

/// A plain copy of a record and of what it owns, from which they can be made again after they were
/// deleted, saved and freed.
class LMRecordSnapshot {
public:
    /// Which of the owned records are copied; a record left out is left out with all it owns.
    using Filter = std::function<bool(const LMManagedObject&)>;

    explicit LMRecordSnapshot(const LMManagedObject& root, const Filter& includes = {});

    LMObjectID root() const { return m_records.front().id; }

    /// Makes the records again, under the identifiers and with the values they had, the root as a
    /// member of the owner. Its ordering list is for the caller to complete. Null, and nothing
    /// done, for a context the records do not come from.
    LMManagedObject* restore(LMObjectContext& context, LMManagedObject* owner) const;

private:
    struct Record {
        LMObjectID id;
        LMObjectID owner;
        std::vector<std::any> values; ///< In the order of the entity's attributes.
    };

    void add(const LMManagedObject& object, const Filter& includes);

    std::vector<Record> m_records; ///< Owners before what they own.
};
