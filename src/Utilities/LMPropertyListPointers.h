// SPDX-License-Identifier: MIT
#pragma once

#include <plist/plist.h>

#include <cstdlib>
#include <memory>

struct LMPropertyListNodeDeleter {
    void operator()(void* node) const { plist_free(node); }
};
struct LMPropertyListAllocationDeleter {
    void operator()(void* allocation) const { std::free(allocation); }
};

/// A property list with all it holds. For the files that read and write property lists; headers
/// keep the library out.
using LMPropertyListNode = std::unique_ptr<void, LMPropertyListNodeDeleter>;
/// What the library has allocated for its caller: text, archives, iterators.
template <class T>
using LMPropertyListAllocation = std::unique_ptr<T, LMPropertyListAllocationDeleter>;
