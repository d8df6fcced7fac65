// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>
#include <QStringList>

#include <optional>

/// A file of groups with keys and values as the freedesktop.org standards use them: desktop
/// entries, icon themes, application associations.
///
/// Reading is tolerant: lines that are none, groups out of place and bytes that are not UTF-8 are
/// taken as far as they make sense. The first of several equal keys holds.
class LMKeyFile {
public:
    static LMKeyFile fromText(const QByteArray& text);

    /// Nothing when the file cannot be read, is no regular file, or is larger than 1 MiB.
    static std::optional<LMKeyFile> fromFile(const QString& path);

    QStringList groups() const { return m_groups; } ///< In the order of the file.
    QStringList keys(const QString& group) const;

    /// With escapes resolved; null when there is no such key.
    QString value(const QString& group, const QString& key) const;
    /// The value for the first locale that has one ("de_DE", "de"), else the plain value.
    QString localizedValue(const QString& group, const QString& key,
                           const QStringList& locales) const;
    /// Parts between the separators, empty ones left out. Semicolons by the rules, commas in icon
    /// themes.
    QStringList list(const QString& group, const QString& key,
                     QLatin1Char separator = QLatin1Char(';')) const;
    bool isTrue(const QString& group, const QString& key) const;

private:
    QString rawValue(const QString& group, const QString& key) const;

    QStringList m_groups;
    QHash<QString, QHash<QString, QString>> m_values;
};

/// The locale names to look up translations by, best first, from the environment's LC_ALL,
/// LC_MESSAGES or LANG: "sr_RS@latin", "sr_RS", "sr@latin", "sr". Empty for "C" and "POSIX".
QStringList LMMessageLocales();
QStringList LMMessageLocales(const QString& localeName);
