// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/LMDesktopEntryTable.h"

#include <QDateTime>
#include <QElapsedTimer>
#include <QHash>

#include <chrono>
#include <memory>

/// The desktop entries installed on this system, read on first use and read again when one of
/// their folders has changed.
///
/// Folders are looked at again on use, at most once per interval; a file that is overwritten in
/// place, which installers do not do, is noticed with the next change of its folder. At most
/// 10,000 files and four levels of sub-folders are read.
class LMDesktopEntries {
public:
    /// The entries of the user who runs the program, in his language.
    LMDesktopEntries();

    /// The data directories, most important first (see LMDataDirectories), whose "applications"
    /// folders hold the entries.
    explicit LMDesktopEntries(QStringList dataDirectories, QStringList locales,
                              std::chrono::milliseconds interval = std::chrono::seconds(5));

    /// Changes only here: a pass over many windows that takes the table once sees one state. The
    /// table lives as long as someone holds it.
    std::shared_ptr<const LMDesktopEntryTable> table();

    QStringList dataDirectories() const { return m_dataDirectories; }

private:
    bool haveFoldersChanged() const;
    void read();
    void readFolder(const QString& folder, const QString& prefix, int depth,
                    QList<LMDesktopEntry>& entries);

    QStringList m_dataDirectories;
    QStringList m_locales;
    std::chrono::milliseconds m_interval;
    QElapsedTimer m_sinceCheck;
    QHash<QString, QDateTime> m_folderTimes; ///< Invalid for a folder that does not exist.
    std::shared_ptr<const LMDesktopEntryTable> m_table;
};
