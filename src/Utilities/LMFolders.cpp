// SPDX-License-Identifier: MIT
#include "Utilities/LMFolders.h"

#include "Utilities/LMBaseDirectories.h"
#include "Utilities/LMFormat.h"
#include "Utilities/LMLogger.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QUuid>

#include <utility>

namespace {

constexpr QLatin1String applicationFolder("Rook");
constexpr qsizetype longestVersionInName = 100;
constexpr int mostNumberedBackups = 100;

using PathResult = LMResult<QString, LMDirectoryError>;

QString expandingTilde(const QString& path) {
    const bool hasTilde = path == QLatin1String("~") || path.startsWith(QLatin1String("~/"));
    return hasTilde ? QDir::homePath() + path.sliced(1) : path;
}

/// The version comes from a file the user can edit; it must stay one part of one file name.
QString fitForFileName(const QString& version) {
    QString name = version.left(longestVersionInName);
    for (QChar& character : name) {
        if (character == u'/' || !character.isPrint())
            character = u'-';
    }
    return name;
}

/// Someone may have made the folder by hand, and files that were copied into it are open to all.
void closeToOthers(const QString& path) {
    using Device = QFileDevice;
    constexpr auto Owner = Device::ReadOwner | Device::WriteOwner | Device::ExeOwner;
    constexpr auto Others = Device::ReadGroup | Device::WriteGroup | Device::ExeGroup |
                            Device::ReadOther | Device::WriteOther | Device::ExeOther;
    const QFileDevice::Permissions permissions = QFile::permissions(path);
    if (permissions & Others)
        QFile::setPermissions(path, permissions & Owner);
}

} // namespace

LMFolders::LMFolders(QString applicationSupportBase, const LMLogger& logger)
    : m_applicationSupportBase(std::move(applicationSupportBase)), m_logger(&logger) {}

LMFolders LMFolders::forCurrentUser(const LMLogger& logger) {
    return LMFolders(LMDataHomeDirectory(), logger);
}

PathResult LMFolders::findDirectory(LMSearchPathDirectory directory, LMSearchPathDomain domain,
                                    const QString& appendPathComponent,
                                    bool createIfNotFound) const {
    const auto failure = [&](int code, const char* description) {
        return PathResult::failure(
            {QStringLiteral("DirectoryLocationDomain"), code, LMLocalized(description),
             QVariantMap{{QStringLiteral("NSSearchPathDirectory"), static_cast<int>(directory)},
                         {QStringLiteral("NSSearchPathDomainMask"), static_cast<int>(domain)}}});
    };
    // Only the user's own directory is ever written to; the others are the system's.
    if (m_applicationSupportBase.isEmpty() || domain != LMSearchPathDomain::User)
        return failure(LMDirectoryError::NoPathFound,
                       LMLocalizable("No path found for directory in domain."));

    const QString path =
        QDir::cleanPath(expandingTilde(m_applicationSupportBase) + u'/' + appendPathComponent);
    const QFileInfo info(path);
    if (info.isDir())
        return PathResult::success(path);
    if (info.exists()) {
        return failure(LMDirectoryError::FileExists,
                       LMLocalizable("File exists at requested directory location."));
    }
    if (createIfNotFound) {
        if (const auto created = LMCreateDirectory(path); !created) {
            return PathResult::failure({QStringLiteral("POSIXErrorDomain"),
                                        created.error().value(),
                                        QString::fromStdString(created.error().message()),
                                        {}});
        }
    }
    return PathResult::success(path);
}

QString LMFolders::subdirectory(const QString& name) const {
    return findDirectory(LMSearchPathDirectory::ApplicationSupport, LMSearchPathDomain::User,
                         applicationFolder + u'/' + name, true)
        .valueOr({});
}

QString LMFolders::applicationSupportDirectoryURL() const {
    const PathResult found = findDirectory(LMSearchPathDirectory::ApplicationSupport,
                                           LMSearchPathDomain::User, applicationFolder, true);
    if (found) {
        closeToOthers(*found);
        return *found;
    }
    m_logger->error(QStringLiteral("Unable to find or create application support directory: %@"),
                    {found.error().description});
    return {};
}

QString LMFolders::screenshotsDirectoryURL() const {
    return subdirectory(QStringLiteral("Screenshots"));
}

QString LMFolders::backupsDirectoryURL() const {
    return subdirectory(QStringLiteral("Backups"));
}

QString LMFolders::logsDirectoryURL() const {
    return subdirectory(QStringLiteral("Logs"));
}

QString LMFolders::storedWindowsURL() const {
    const QString folder = applicationSupportDirectoryURL();
    return folder.isNull() ? QString() : folder + QLatin1String("/Stored Windows.sqlite");
}

QString LMFolders::uniqueScreenshotURL() const {
    const QString folder = screenshotsDirectoryURL();
    if (folder.isNull())
        return {};
    const QString path = LMFormat(QStringLiteral("%@/%@.png"),
                                  {folder, QUuid::createUuid().toString(QUuid::WithoutBraces)});
    return QFileInfo::exists(path) ? QString() : path;
}

QString LMFolders::currentBackupURL(const QString& storedVersion, const QDate& today) const {
    const QString folder = backupsDirectoryURL();
    if (folder.isNull())
        return {};
    const QString base = folder + u'/' +
                         LMFormat(QStringLiteral("Stored Windows %@ (%@)"),
                                  {fitForFileName(storedVersion), today.toString(Qt::ISODate)});
    const QLatin1String extension(".sqlite");
    QString candidate = base + extension;
    for (int number = 1; QFileInfo::exists(candidate); ++number) {
        if (number > mostNumberedBackups)
            return {};
        candidate = base + LMFormat(QStringLiteral(" %lu"), {QString::number(number)}) + extension;
    }
    return candidate;
}
