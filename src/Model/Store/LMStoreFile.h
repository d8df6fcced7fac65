// SPDX-License-Identifier: MIT
#pragma once

#include "Utilities/LMResult.h"

#include <QString>

/// What stands where the store file is wanted.
enum class LMStoreFileKind {
    Missing,
    Empty, ///< No bytes: holds nothing, may become a store.
    Store, ///< Bears this program's mark and a version it knows.
};

/// Looks at a store file without opening it as a database, because opening can already change a
/// file: only what this program's mark says is its own is touched. The error says why the file
/// cannot be used: not a plain file, not writable, damaged, of another program or a newer version.
LMResult<LMStoreFileKind, QString> LMInspectStoreFile(const QString& path, int knownVersion);

/// Marks SQLite files as stores of this program; "Rook" in ASCII.
constexpr qint32 LMStoreApplicationID = 0x526F6F6B;

/// Keeps other processes out of the folder of a store, as long as they ask with the same lock. The
/// kernel drops it with the process, however that ends.
class LMFolderLock {
public:
    /// Fails only when another holder has the lock: some network file systems know no such locks.
    static LMResult<LMFolderLock, QString> lock(const QString& folder);

    LMFolderLock(LMFolderLock&& other) noexcept;
    LMFolderLock& operator=(LMFolderLock&& other) noexcept;
    ~LMFolderLock();

private:
    explicit LMFolderLock(int descriptor) : m_descriptor(descriptor) {}

    int m_descriptor;
};
