// SPDX-License-Identifier: MIT
#pragma once

#include "Model/Store/LMObjectID.h"

#include <QString>

#include <vector>

class LMObjectContext;
struct LMEnvironment;
struct LMEntityDescription;

/// A record of the object graph. Lives in exactly one object context, which owns it.
///
/// Deleting an object takes it out of every relationship at once; its memory is freed at the end
/// of the context's next save, or when transient objects are discarded. Hold an LMObjectID, not a
/// pointer, across saves.
class LMManagedObject {
public:
    virtual ~LMManagedObject() = default;
    Q_DISABLE_COPY_MOVE(LMManagedObject)

    LMObjectID objectID() const { return m_objectID; }
    /// The identifier as text; resolves to this object as long as it exists.
    QString uriRepresentation() const;
    const LMEntityDescription& entity() const { return *m_entity; }

    LMObjectContext& managedObjectContext() const { return *m_context; }
    LMEnvironment& environment() const;

    bool hasChanges() const { return m_hasChanges; }

    /// The object that owns this one, or none while it is unattached.
    LMManagedObject* owner() const { return m_owner; }

    /// Called once after insertion (not after loading).
    virtual void awakeFromInsert() {}
    /// Called before the object leaves its relationships.
    virtual void prepareForDeletion() {}

    /// The objects this one owns, in a stable order; the context walks them on deletion.
    virtual std::vector<LMManagedObject*> ownedObjects() const { return {}; }

protected:
    LMManagedObject() = default;

    /// Records that a persistent value differs from the store file.
    void didChange();

    /// Assigns a persistent member and records the change; does nothing when the value is the same.
    template <class Value>
    void setAttribute(Value& member, const Value& value) {
        if (isSameValue(member, value))
            return;
        member = value;
        didChange();
    }

    /// Sets a member's owner. The relationship mutators of the owner call it.
    static void setOwner(LMManagedObject& member, LMManagedObject* owner);

    /// Puts a member into (or takes it out of) the plain set without touching any ordering list:
    /// what loading and deleting do.
    virtual void insertPrimitiveMember(LMManagedObject&) {}
    virtual void removePrimitiveMember(LMManagedObject&) {}

    /// Called when the whole graph is loaded, for each attribute whose column could not be read.
    virtual void attributeDidNotLoad(const QString& /*name*/) {}

private:
    friend class LMObjectContext;

    template <class Value>
    static bool isSameValue(const Value& a, const Value& b) {
        return a == b;
    }
    // An absent text is not an empty one.
    static bool isSameValue(const QString& a, const QString& b) {
        return a.isNull() == b.isNull() && a == b;
    }

    LMObjectID m_objectID;
    const LMEntityDescription* m_entity = nullptr;
    LMObjectContext* m_context = nullptr;
    LMManagedObject* m_owner = nullptr;
    bool m_isInserted = false; ///< Not yet in the store file.
    bool m_isDeleted = false;
    bool m_hasChanges = false;
    // Kept by the context.
    bool m_isListedAsUnattached = false;
    bool m_isDoomed = false; ///< About to be freed.
};
