// SPDX-License-Identifier: MIT
#include "Platform/LMDesktopEntries.h"

#include "Platform/LMKeyFile.h"
#include "Utilities/LMBaseDirectories.h"

#include <QDir>
#include <QFileInfo>

namespace {

constexpr qsizetype mostEntries = 10000;
constexpr int deepestFolder = 4;

QDateTime folderTime(const QString& folder) {
    const QFileInfo info(folder);
    return info.isDir() ? info.lastModified() : QDateTime();
}

} // namespace

LMDesktopEntries::LMDesktopEntries() : LMDesktopEntries(LMDataDirectories(), LMMessageLocales()) {}

LMDesktopEntries::LMDesktopEntries(QStringList dataDirectories, QStringList locales,
                                   std::chrono::milliseconds interval)
    : m_dataDirectories(std::move(dataDirectories)), m_locales(std::move(locales)),
      m_interval(interval) {}

std::shared_ptr<const LMDesktopEntryTable> LMDesktopEntries::table() {
    if (m_table && m_sinceCheck.elapsed() < m_interval.count())
        return m_table;
    m_sinceCheck.start();
    if (!m_table || haveFoldersChanged())
        read();
    return m_table;
}

bool LMDesktopEntries::haveFoldersChanged() const {
    for (auto folder = m_folderTimes.cbegin(); folder != m_folderTimes.cend(); ++folder) {
        if (folderTime(folder.key()) != folder.value())
            return true;
    }
    return false;
}

void LMDesktopEntries::read() {
    m_folderTimes.clear();
    QList<LMDesktopEntry> entries;
    for (const QString& directory : std::as_const(m_dataDirectories))
        readFolder(directory + QLatin1String("/applications"), QString(), 0, entries);
    m_table = std::make_shared<const LMDesktopEntryTable>(std::move(entries));
}

void LMDesktopEntries::readFolder(const QString& folder, const QString& prefix, int depth,
                                  QList<LMDesktopEntry>& entries) {
    m_folderTimes.insert(folder, folderTime(folder));
    const QFileInfoList files =
        QDir(folder).entryInfoList(QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
    for (const QFileInfo& info : files) {
        const QString name = prefix + info.fileName();
        if (info.isDir()) {
            if (depth < deepestFolder)
                readFolder(info.filePath(), name + QLatin1Char('-'), depth + 1, entries);
            continue;
        }
        const QLatin1String suffix(".desktop");
        if (!name.endsWith(suffix) || entries.size() >= mostEntries)
            continue;
        const auto file = LMKeyFile::fromFile(info.filePath());
        const auto entry =
            file ? LMDesktopEntryFromKeyFile(*file, name.chopped(suffix.size()), m_locales)
                 : std::nullopt;
        if (entry)
            entries.append(*entry);
    }
}
