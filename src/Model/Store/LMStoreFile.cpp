// SPDX-License-Identifier: MIT
#include "Model/Store/LMStoreFile.h"

#include "Utilities/LMFormat.h"

#include <QFile>
#include <QFileInfo>
#include <QtEndian>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>
#include <utility>

namespace {

using Inspection = LMResult<LMStoreFileKind, QString>;

// The database header, https://www.sqlite.org/fileformat2.html#the_database_header
constexpr qsizetype headerSize = 100;
constexpr QByteArrayView magic("SQLite format 3\0", 16);
constexpr qsizetype pageSizeOffset = 16;
constexpr qsizetype userVersionOffset = 60;
constexpr qsizetype applicationIDOffset = 68;

Inspection refusal(const QString& path, const QString& why) {
    return Inspection::failure(path + QStringLiteral(": ") + why);
}

/// The permission bits are asked, too: they bind whoever set them even where the superuser's
/// privileges would let the write pass.
bool isWritable(const QFileInfo& file) {
    constexpr auto anyWrite =
        QFileDevice::WriteOwner | QFileDevice::WriteGroup | QFileDevice::WriteOther;
    return (file.permissions() & anyWrite) && file.isWritable();
}

qint32 headerNumber(const QByteArray& header, qsizetype offset) {
    return qFromBigEndian<qint32>(header.constData() + offset);
}

/// A save was interrupted, and SQLite will undo it.
bool hasJournal(const QString& path) {
    return QFileInfo(QFileInfo(path).canonicalFilePath() + QStringLiteral("-journal")).size() > 0;
}

/// The file's size is a whole number of pages; 1 stands for 65536.
bool isWholePages(const QByteArray& header, qint64 size) {
    const auto raw = qFromBigEndian<quint16>(header.constData() + pageSizeOffset);
    const qint64 pageSize = raw == 1 ? 65536 : raw;
    return pageSize >= 512 && size % pageSize == 0;
}

Inspection inspectContent(const QString& path, qint64 size, int knownVersion) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return refusal(path, file.errorString());
    const QByteArray header = file.read(headerSize);
    if (header.size() < headerSize || !header.startsWith(magic))
        return refusal(path, LMLocalized("not a store file"));
    if (headerNumber(header, applicationIDOffset) != LMStoreApplicationID)
        return refusal(path, LMLocalized("a database of another program"));
    const qint32 version = headerNumber(header, userVersionOffset);
    if (version > knownVersion)
        return refusal(path, LMFormat(LMLocalized("written by a newer version of Rook (store "
                                                  "version %@, known are versions up to %@)"),
                                      {QString::number(version), QString::number(knownVersion)}));
    if (!isWholePages(header, size) && !hasJournal(path))
        return refusal(path, LMLocalized("the file is cut short"));
    return Inspection::success(LMStoreFileKind::Store);
}

} // namespace

LMResult<LMStoreFileKind, QString> LMInspectStoreFile(const QString& path, int knownVersion) {
    const QFileInfo file(path);
    // SQLite keeps its journal beside the file that a link leads to.
    const QFileInfo folder(file.exists() ? QFileInfo(file.canonicalFilePath()).path()
                                         : file.path());
    if (!folder.isDir())
        return refusal(folder.filePath(), LMLocalized("no such folder"));
    if (!isWritable(folder))
        return refusal(folder.filePath(), LMLocalized("the folder is not writable"));
    if (!file.exists())
        return Inspection::success(LMStoreFileKind::Missing);
    if (!file.isFile())
        return refusal(path, LMLocalized("not a file"));
    if (!isWritable(file))
        return refusal(path, LMLocalized("the file is not writable"));
    if (file.size() == 0)
        return Inspection::success(LMStoreFileKind::Empty);
    return inspectContent(path, file.size(), knownVersion);
}

LMResult<LMFolderLock, QString> LMFolderLock::lock(const QString& folder) {
    using Result = LMResult<LMFolderLock, QString>;
    const int descriptor =
        ::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    LMFolderLock lock(descriptor);
    if (descriptor >= 0 && ::flock(descriptor, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK)
        return Result::failure(LMFormat(LMLocalized("%@: in use by another process"), {folder}));
    return Result::success(std::move(lock));
}

LMFolderLock::LMFolderLock(LMFolderLock&& other) noexcept
    : m_descriptor(std::exchange(other.m_descriptor, -1)) {}

LMFolderLock& LMFolderLock::operator=(LMFolderLock&& other) noexcept {
    std::swap(m_descriptor, other.m_descriptor);
    return *this;
}

LMFolderLock::~LMFolderLock() {
    if (m_descriptor >= 0)
        ::close(m_descriptor);
}
