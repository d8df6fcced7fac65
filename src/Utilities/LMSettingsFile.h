// SPDX-License-Identifier: MIT
#pragma once

#include "Utilities/LMResult.h"

#include <QByteArray>
#include <QString>
#include <QVariantMap>

class LMLogger;

/// An INI file of settings that survives hand editing, damage and a full disk.
///
/// Values come back as QSettings reads them: text, lists of text, byte arrays. Only a missing file
/// and a sound one are taken as they are; any other is logged and copied aside, as
/// "NAME.malformed-1" and so on, before it is first replaced.
class LMSettingsFile {
public:
    /// The logger must outlive this object. The file need not exist; a null path keeps nothing.
    LMSettingsFile(QString path, const LMLogger& logger);

    QString path() const { return m_path; }

    /// What can be read of the file as it is now.
    QVariantMap load();

    /// Replaces the file, in one step and with mode 0600, or says why it could not and leaves it as
    /// it was.
    LMResult<void> save(const QVariantMap& values);

private:
    QVariantMap takeMalformed(const QString& reason);
    LMResult<void> keepCopyOfMalformedFile();
    LMResult<void> replaceFile(const QVariantMap& values);

    QString m_path;
    const LMLogger* m_logger;
    QByteArray m_text;          ///< Of the file when it was last read or written.
    QVariantMap m_values;       ///< What m_text says.
    bool m_isMalformed = false; ///< And there is no copy of it yet.
};
