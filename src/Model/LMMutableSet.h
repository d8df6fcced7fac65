// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cstddef>
#include <functional>
#include <vector>

/// A to-many relationship as its readers see it: members in a stable order, and additions and
/// removals that go through the owner's mutators. A view: valid as long as the owner lives. Do not
/// change the set while walking it; take a copy with allObjects() first.
template <class T>
class LMMutableSet {
public:
    using Mutator = std::function<void(T*)>;

    LMMutableSet(const std::vector<T*>& members, Mutator add, Mutator remove)
        : m_members(&members), m_add(std::move(add)), m_remove(std::move(remove)) {}

    auto begin() const { return m_members->begin(); }
    auto end() const { return m_members->end(); }
    std::size_t count() const { return m_members->size(); }
    bool isEmpty() const { return m_members->empty(); }
    bool contains(const T* object) const { return std::find(begin(), end(), object) != end(); }
    std::vector<T*> allObjects() const { return *m_members; }

    void addObject(T* object) { m_add(object); }
    void removeObject(T* object) { m_remove(object); }

private:
    const std::vector<T*>* m_members;
    Mutator m_add;
    Mutator m_remove;
};
