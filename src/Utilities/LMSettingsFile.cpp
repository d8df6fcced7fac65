// SPDX-License-Identifier: MIT
#include "Utilities/LMSettingsFile.h"

#include "Utilities/LMBaseDirectories.h"
#include "Utilities/LMLogger.h"

#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <QTemporaryFile>

#include <algorithm>
#include <filesystem>
#include <new>
#include <optional>
#include <utility>

namespace {

constexpr qint64 largestFile = 1'048'576;
constexpr int mostCopies = 100;

using Status = LMResult<void>;

QByteArray readText(QFile& file) {
    return file.open(QIODevice::ReadOnly) ? file.read(largestFile + 1) : QByteArray();
}

/// QSettings reports broken lines too, but not again while it has the file in its cache.
bool hasBrokenLine(const QByteArray& text) {
    bool isContinued = false;
    for (const QByteArray& line : text.split('\n')) {
        const QByteArray content = line.trimmed();
        const bool isSection = content.startsWith('[') && content.endsWith(']');
        const bool isComment = content.startsWith(';');
        if (!isContinued && !content.isEmpty() && !isSection && !isComment &&
            content.indexOf('=') <= 0)
            return true;
        isContinued = content.endsWith('\\');
    }
    return false;
}

/// Whether the text holds all the settings; QSettings does not notice when only the front of what
/// it writes fits on the disk.
bool isComplete(const QByteArray& text, qsizetype expectedSettings) {
    const QList<QByteArray> lines = text.split('\n');
    const auto settings = std::count_if(lines.begin(), lines.end(), [](const QByteArray& line) {
        return !line.isEmpty() && !line.startsWith('[');
    });
    return settings == expectedSettings && lines.back().isEmpty();
}

/// Nothing when a damaged binary value ("@Variant(…)") asks for more memory than there is.
std::optional<QVariantMap> readSettings(const QString& path) {
    try {
        QVariantMap values;
        const QSettings reader(path, QSettings::IniFormat);
        const QStringList keys = reader.allKeys();
        for (const QString& key : keys) {
            if (!key.isEmpty()) // It reads these, but writes none.
                values.insert(key, reader.value(key));
        }
        return values;
    } catch (const std::bad_alloc&) {
        return std::nullopt;
    }
}

bool writeSettings(const QString& path, const QVariantMap& values) {
    QSettings writer(path, QSettings::IniFormat);
    for (auto value = values.constBegin(); value != values.constEnd(); ++value)
        writer.setValue(value.key(), value.value());
    writer.sync();
    return writer.status() == QSettings::NoError;
}

/// Where a file must be put to take the place of this one; links of the user's stay.
QString replaceablePath(const QString& path) {
    const QString target = QFileInfo(path).canonicalFilePath();
    return target.isEmpty() ? path : target;
}

std::filesystem::path nativePath(const QString& path) {
    return {QFile::encodeName(path).toStdString()};
}

} // namespace

LMSettingsFile::LMSettingsFile(QString path, const LMLogger& logger)
    : m_path(std::move(path)), m_logger(&logger) {}

QVariantMap LMSettingsFile::load() {
    if (m_path.isEmpty())
        return {};
    // A pipe would keep its reader waiting, and a device would be replaced by a file.
    if (const QFileInfo info(m_path); info.exists() && !info.isFile())
        return takeMalformed(QStringLiteral("not a file"));
    QFile file(m_path);
    const QByteArray text = readText(file);
    if (!file.isOpen() && QFileInfo::exists(m_path))
        return takeMalformed(file.errorString());
    // QSettings tells versions of a file apart by size and time only, and two of ours may have both
    // in common; so it is asked for nothing but what others wrote.
    if (text == m_text)
        return m_values;
    m_text = text;
    m_values.clear();
    m_isMalformed = false;
    if (text.isEmpty())
        return m_values;
    if (text.size() > largestFile)
        return takeMalformed(QStringLiteral("larger than 1 MiB"));
    const std::optional<QVariantMap> values = readSettings(m_path);
    if (!values)
        return takeMalformed(QStringLiteral("values too large"));
    m_values = *values;
    return hasBrokenLine(text) ? takeMalformed(QStringLiteral("some lines are not settings"))
                               : m_values;
}

QVariantMap LMSettingsFile::takeMalformed(const QString& reason) {
    if (!m_isMalformed)
        m_logger->error(QStringLiteral("Settings file \"%@\" is malformed: %@"), {m_path, reason});
    m_isMalformed = true;
    return m_values;
}

Status LMSettingsFile::save(const QVariantMap& values) {
    if (m_path.isEmpty())
        return Status::failure(QStringLiteral("there is no home directory"));
    if (const auto made = LMCreateDirectory(QFileInfo(m_path).path()); !made)
        return Status::failure(QString::fromStdString(made.error().message()));
    if (m_isMalformed) {
        if (Status kept = keepCopyOfMalformedFile(); !kept)
            return kept;
    }
    return replaceFile(values);
}

Status LMSettingsFile::keepCopyOfMalformedFile() {
    if (!QFileInfo::exists(m_path))
        return Status::success();
    if (!QFileInfo(m_path).isFile())
        return Status::failure(QStringLiteral("not a file"));
    for (int number = 1; number <= mostCopies; ++number) {
        const QString copy = m_path + QLatin1String(".malformed-") + QString::number(number);
        if (QFileInfo::exists(copy))
            continue;
        QFile file(m_path);
        if (!file.copy(copy))
            return Status::failure(file.errorString());
        QFile::setPermissions(copy, QFile::ReadOwner | QFile::WriteOwner);
        m_logger->info(QStringLiteral("Kept the malformed settings file as \"%@\""), {copy});
        m_isMalformed = false;
        return Status::success();
    }
    return Status::failure(QStringLiteral("too many copies of malformed files"));
}

Status LMSettingsFile::replaceFile(const QVariantMap& values) {
    const QString target = replaceablePath(m_path);
    QTemporaryFile scratch(target + QLatin1String(".XXXXXX")); // Made with mode 0600.
    if (!scratch.open())
        return Status::failure(scratch.errorString());
    scratch.close();
    if (!writeSettings(scratch.fileName(), values))
        return Status::failure(QStringLiteral("the text could not be written"));
    QFile written(scratch.fileName());
    const QByteArray text = readText(written);
    if (!isComplete(text, values.size()))
        return Status::failure(QStringLiteral("the text does not fit on the disk"));
    std::error_code error;
    std::filesystem::rename(nativePath(scratch.fileName()), nativePath(target), error);
    if (error)
        return Status::failure(QString::fromStdString(error.message()));
    scratch.setAutoRemove(false);
    m_text = text;
    m_values = values;
    m_isMalformed = false;
    return Status::success();
}
