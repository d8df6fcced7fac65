// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/LMDesktopEntry.h"

#include <QHash>
#include <QList>

/// Desktop entries, to be found by whatever a window or a process says of itself. A plain value.
///
/// Every lookup answers null rather than a guess when several entries fit equally well. Pointers
/// are valid as long as the table.
class LMDesktopEntryTable {
public:
    LMDesktopEntryTable() = default;

    /// Of several entries with one identifier the first counts, so that the user's own masks the
    /// system's; hidden ones mask and are left out.
    explicit LMDesktopEntryTable(QList<LMDesktopEntry> entries);

    const QList<LMDesktopEntry>& entries() const { return m_entries; }

    /// Exact first, then in any case; with or without ".desktop".
    const LMDesktopEntry* entryWithIdentifier(const QString& identifier) const;

    /// By StartupWMClass: exact before any case, the instance before the class when exact, as
    /// browsers name their application windows by the instance.
    const LMDesktopEntry* entryWithStartupWMClass(const QString& instance,
                                                  const QString& className) const;

    /// By the last part of the identifier, with spaces for dashes and a distributor's prefix left
    /// out: "Gedit" finds org.gnome.gedit, "XTerm" debian-xterm. The class before the instance,
    /// which the user may choose.
    const LMDesktopEntry* entryWithWMClass(const QString& instance, const QString& className) const;

    /// By the program that Exec starts. An entry of the program's name, or the only one that
    /// starts it without arguments, stands before others.
    const LMDesktopEntry* entryWithProgram(const QString& program) const;

    /// By the identifier in Flatpak or the instance name in Snap; the one called so is preferred.
    const LMDesktopEntry* entryWithSandboxName(const QString& name) const;

private:
    using Index = QHash<QString, QList<qsizetype>>;

    const LMDesktopEntry* only(const Index& index, const QString& key) const;
    QList<const LMDesktopEntry*> all(const Index& index, const QString& key) const;

    QList<LMDesktopEntry> m_entries;
    QHash<QString, qsizetype> m_byIdentifier;
    Index m_byLowerIdentifier;
    Index m_byShortName;
    Index m_byStartupWMClass;
    Index m_byLowerStartupWMClass;
    Index m_byProgram;
    Index m_bySandboxName;
};
