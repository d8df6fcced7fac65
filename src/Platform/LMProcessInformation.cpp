// SPDX-License-Identifier: MIT
#include "Platform/LMProcessInformation.h"

#include "Platform/LMKeyFile.h"

#include <QFile>
#include <QSysInfo>

#include <array>
#include <climits>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr size_t mostBytes = 64U << 10;
constexpr size_t mostBytesOfArguments = 4U << 10;

/// Neither follows a link nor waits for the other end of a pipe.
QByteArray readRegularFile(const QString& path, size_t limit) {
    const int file =
        ::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK);
    if (file < 0)
        return {};
    QByteArray content;
    struct stat status {};
    if (::fstat(file, &status) == 0 && S_ISREG(status.st_mode)) {
        content.resize(static_cast<qsizetype>(limit));
        qsizetype length = 0;
        ssize_t count = 0;
        while (length < content.size() &&
               (count = ::read(file, content.data() + length,
                               static_cast<size_t>(content.size() - length))) > 0)
            length += count;
        content.resize(length);
    }
    ::close(file);
    return content;
}

QString linkTarget(const QString& path) {
    std::array<char, PATH_MAX> target{};
    const ssize_t length =
        ::readlink(QFile::encodeName(path).constData(), target.data(), target.size());
    return length <= 0 ? QString()
                       : QFile::decodeName(QByteArray(target.data(), static_cast<int>(length)));
}

/// Field 22 of proc(5)'s stat. The command name, field 2, may hold spaces and parentheses itself.
quint64 startTimeFromStat(const QByteArray& stat) {
    constexpr qsizetype fieldsAfterName = 22 - 3;
    const QList<QByteArray> fields = stat.mid(stat.lastIndexOf(')') + 2).split(' ');
    return fields.size() > fieldsAfterName ? fields.at(fieldsAfterName).toULongLong() : 0;
}

QStringList argumentsFromCommandLine(const QByteArray& commandLine) {
    QStringList arguments;
    const QList<QByteArray> parts = commandLine.split('\0');
    for (const QByteArray& part : parts)
        arguments.append(QString::fromLocal8Bit(part));
    if (commandLine.endsWith('\0'))
        arguments.removeLast();
    return commandLine.isEmpty() ? QStringList() : arguments;
}

/// Lines read "hierarchy:controllers:path"; the unified hierarchy is 0. Where only the old ones are
/// mounted, systemd has a named one for itself.
QString controlGroupFromText(const QByteArray& text) {
    QString unified;
    QString named;
    const QList<QByteArray> lines = text.split('\n');
    for (const QByteArray& line : lines) {
        const QString path =
            QString::fromUtf8(line.mid(line.indexOf(':', line.indexOf(':') + 1) + 1));
        if (line.startsWith("0::"))
            unified = path;
        else if (line.contains(":name=systemd:"))
            named = path;
    }
    return unified.size() > 1 ? unified : named;
}

} // namespace

std::optional<LMProcessInformation> LMReadProcessInformation(qint64 processIdentifier,
                                                             const QString& processFolder) {
    const QString base = processFolder + QLatin1Char('/') + QString::number(processIdentifier);
    const auto file = [&base](const char* name) { return base + QLatin1String(name); };
    const QByteArray stat = readRegularFile(file("/stat"), mostBytesOfArguments);
    if (processIdentifier <= 0 || stat.isEmpty())
        return std::nullopt;

    LMProcessInformation process;
    process.processIdentifier = processIdentifier;
    process.startTime = startTimeFromStat(stat);
    process.executable = linkTarget(file("/exe"));
    const QLatin1String deleted(" (deleted)"); // The program was updated while it ran.
    if (process.executable.endsWith(deleted))
        process.executable.chop(deleted.size());
    process.arguments =
        argumentsFromCommandLine(readRegularFile(file("/cmdline"), mostBytesOfArguments));
    process.controlGroup = controlGroupFromText(readRegularFile(file("/cgroup"), mostBytes));

    // A process with our own view of the file system is in no sandbox.
    const QString mounts = linkTarget(file("/ns/mnt"));
    if (!mounts.isEmpty() && mounts != linkTarget(processFolder + QLatin1String("/self/ns/mnt"))) {
        const auto sandbox =
            LMKeyFile::fromText(readRegularFile(file("/root/.flatpak-info"), mostBytes));
        process.flatpakIdentifier =
            sandbox.value(QStringLiteral("Application"), QStringLiteral("name"));
    }
    return process;
}

QString LMHostName() {
    return QSysInfo::machineHostName();
}
