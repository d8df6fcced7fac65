// SPDX-License-Identifier: MIT
#include "Platform/LMDefaultApplications.h"

#include "Platform/LMKeyFile.h"

#include <vector>

namespace {

const LMDesktopEntry* firstInstalled(const QStringList& identifiers, const QStringList& excluded,
                                     const LMDesktopEntryTable& table) {
    for (const QString& identifier : identifiers) {
        const LMDesktopEntry* entry = table.entryWithIdentifier(identifier);
        if (entry != nullptr && !excluded.contains(entry->identifier))
            return entry;
    }
    return nullptr;
}

} // namespace

QStringList LMAssociationFiles(const QStringList& configDirectories,
                               const QStringList& dataDirectories, const QStringList& desktops) {
    QStringList folders = configDirectories;
    for (const QString& directory : dataDirectories)
        folders.append(directory + QLatin1String("/applications"));
    QStringList files;
    for (const QString& folder : std::as_const(folders)) {
        for (const QString& desktop : desktops)
            files.append(folder + QLatin1Char('/') + desktop.toLower() +
                         QLatin1String("-mimeapps.list"));
        files.append(folder + QLatin1String("/mimeapps.list"));
    }
    return files;
}

const LMDesktopEntry* LMDefaultApplication(const QString& mimeType,
                                           const QStringList& associationFiles,
                                           const LMDesktopEntryTable& table) {
    std::vector<LMKeyFile> files;
    for (const QString& path : associationFiles) {
        if (auto file = LMKeyFile::fromFile(path))
            files.push_back(std::move(*file));
    }
    for (const LMKeyFile& file : files) {
        const QStringList defaults = file.list(QStringLiteral("Default Applications"), mimeType);
        if (const LMDesktopEntry* entry = firstInstalled(defaults, {}, table))
            return entry;
    }
    // A file takes associations away from those that come after it.
    QStringList removed;
    for (const LMKeyFile& file : files) {
        const QStringList added = file.list(QStringLiteral("Added Associations"), mimeType);
        if (const LMDesktopEntry* entry = firstInstalled(added, removed, table))
            return entry;
        const QStringList gone = file.list(QStringLiteral("Removed Associations"), mimeType);
        for (const QString& identifier : gone) {
            if (const LMDesktopEntry* entry = table.entryWithIdentifier(identifier))
                removed.append(entry->identifier);
        }
    }
    for (const LMDesktopEntry& entry : table.entries()) {
        if (!entry.isHidden && entry.mimeTypes.contains(mimeType) &&
            !removed.contains(entry.identifier) &&
            table.entryWithIdentifier(entry.identifier) == &entry)
            return &entry;
    }
    return nullptr;
}
