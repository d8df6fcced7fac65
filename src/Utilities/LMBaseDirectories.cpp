// SPDX-License-Identifier: MIT
#include "Utilities/LMBaseDirectories.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <sys/stat.h>

namespace {

constexpr qsizetype longestPath = 4096;

QString baseDirectory(const char* variable, QLatin1String belowHome) {
    const QString directory = qEnvironmentVariable(variable);
    if (QDir::isAbsolutePath(directory))
        return QDir::cleanPath(directory);
    const QString home = qEnvironmentVariable("HOME");
    return QDir::isAbsolutePath(home) ? QDir::cleanPath(home + belowHome) : QString();
}

QStringList directories(const QString& home, const char* variable, QLatin1String fallback) {
    QString system = qEnvironmentVariable(variable);
    if (system.isEmpty())
        system = fallback;
    QStringList result;
    const QStringList candidates = QStringList(home) + system.split(QLatin1Char(':'));
    for (const QString& candidate : candidates) {
        if (QDir::isAbsolutePath(candidate))
            result.append(QDir::cleanPath(candidate));
    }
    result.removeDuplicates();
    return result;
}

std::error_code makeOneDirectory(const QString& path) {
    const QFileInfo info(path);
    if (info.isDir())
        return {};
    if (info.exists())
        return std::make_error_code(std::errc::not_a_directory);
    if (::mkdir(QFile::encodeName(path).constData(), S_IRWXU) == 0)
        return {};
    const std::error_code error(errno, std::generic_category());
    // Another process may have made it in the meantime.
    return QFileInfo(path).isDir() ? std::error_code() : error;
}

} // namespace

QString LMDataHomeDirectory() {
    return baseDirectory("XDG_DATA_HOME", QLatin1String("/.local/share"));
}

QString LMConfigHomeDirectory() {
    return baseDirectory("XDG_CONFIG_HOME", QLatin1String("/.config"));
}

QString LMActivityFilePath(qint64 processIdentifier) {
    const QString directory = qEnvironmentVariable("XDG_RUNTIME_DIR");
    if (!QDir::isAbsolutePath(directory))
        return {};
    return QStringLiteral("%1/rook-%2.json")
        .arg(QDir::cleanPath(directory), QString::number(processIdentifier));
}

QStringList LMDataDirectories() {
    return directories(LMDataHomeDirectory(), "XDG_DATA_DIRS",
                       QLatin1String("/usr/local/share:/usr/share"));
}

QStringList LMConfigDirectories() {
    return directories(LMConfigHomeDirectory(), "XDG_CONFIG_DIRS", QLatin1String("/etc/xdg"));
}

LMResult<void, std::error_code> LMCreateDirectory(const QString& path) {
    using Result = LMResult<void, std::error_code>;
    if (path.size() > longestPath)
        return Result::failure(std::make_error_code(std::errc::filename_too_long));

    QStringList missing;
    QString ancestor = QDir::cleanPath(QDir::current().absoluteFilePath(path));
    while (!QFileInfo::exists(ancestor)) {
        missing.prepend(ancestor);
        ancestor = QFileInfo(ancestor).path();
    }
    missing.prepend(ancestor);
    for (const QString& directory : std::as_const(missing)) {
        if (const std::error_code error = makeOneDirectory(directory))
            return Result::failure(error);
    }
    return Result::success();
}
