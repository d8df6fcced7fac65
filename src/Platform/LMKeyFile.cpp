// SPDX-License-Identifier: MIT
#include "Platform/LMKeyFile.h"

#include <QFile>
#include <QFileInfo>

namespace {

constexpr qint64 largestFile = 1 << 20;

QString unescaped(const QString& text) {
    if (!text.contains(QLatin1Char('\\')))
        return text;
    QString result;
    for (qsizetype index = 0; index < text.size(); ++index) {
        if (text[index] != QLatin1Char('\\') || index + 1 == text.size()) {
            result.append(text[index]);
            continue;
        }
        switch (text[++index].unicode()) {
        case 's':
            result.append(QLatin1Char(' '));
            break;
        case 'n':
            result.append(QLatin1Char('\n'));
            break;
        case 't':
            result.append(QLatin1Char('\t'));
            break;
        case 'r':
            result.append(QLatin1Char('\r'));
            break;
        default:
            result.append(text[index]);
            break;
        }
    }
    return result;
}

} // namespace

LMKeyFile LMKeyFile::fromText(const QByteArray& text) {
    LMKeyFile file;
    QHash<QString, QString>* group = nullptr;
    const QList<QByteArray> lines = text.split('\n');
    for (const QByteArray& rawLine : lines) {
        const QByteArray line = rawLine.trimmed();
        if (line.isEmpty() || line.startsWith('#'))
            continue;
        if (line.startsWith('[')) {
            const qsizetype end = line.indexOf(']');
            const QString name = QString::fromUtf8(line.mid(1, end < 0 ? -1 : end - 1));
            if (!file.m_groups.contains(name))
                file.m_groups.append(name);
            group = &file.m_values[name];
            continue;
        }
        const qsizetype equals = line.indexOf('=');
        if (group == nullptr || equals <= 0)
            continue;
        const QString key = QString::fromUtf8(line.left(equals).trimmed());
        if (!group->contains(key))
            group->insert(key, QString::fromUtf8(line.mid(equals + 1).trimmed()));
    }
    return file;
}

std::optional<LMKeyFile> LMKeyFile::fromFile(const QString& path) {
    if (!QFileInfo(path).isFile()) // Opening a pipe would block.
        return std::nullopt;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly) || file.size() > largestFile)
        return std::nullopt;
    return fromText(file.read(largestFile));
}

QStringList LMKeyFile::keys(const QString& group) const {
    return m_values.value(group).keys();
}

QString LMKeyFile::rawValue(const QString& group, const QString& key) const {
    const auto values = m_values.constFind(group);
    return values == m_values.cend() ? QString() : values->value(key);
}

QString LMKeyFile::value(const QString& group, const QString& key) const {
    return unescaped(rawValue(group, key));
}

QString LMKeyFile::localizedValue(const QString& group, const QString& key,
                                  const QStringList& locales) const {
    for (const QString& locale : locales) {
        const QString found = value(group, key + QLatin1Char('[') + locale + QLatin1Char(']'));
        if (!found.isEmpty())
            return found;
    }
    return value(group, key);
}

QStringList LMKeyFile::list(const QString& group, const QString& key, QLatin1Char separator) const {
    QStringList result;
    QString part;
    const QString text = rawValue(group, key) + separator;
    for (qsizetype index = 0; index < text.size(); ++index) {
        if (text[index] == QLatin1Char('\\') && index + 1 < text.size() - 1) {
            part.append(text[index]);
            part.append(text[++index]);
        } else if (text[index] == separator) {
            const QString item = unescaped(part).trimmed();
            if (!item.isEmpty())
                result.append(item);
            part.clear();
        } else {
            part.append(text[index]);
        }
    }
    return result;
}

bool LMKeyFile::isTrue(const QString& group, const QString& key) const {
    const QString text = rawValue(group, key);
    return text.compare(QLatin1String("true"), Qt::CaseInsensitive) == 0 ||
           text == QLatin1String("1");
}

QStringList LMMessageLocales() {
    for (const char* variable : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        const QString name = qEnvironmentVariable(variable);
        if (!name.isEmpty())
            return LMMessageLocales(name);
    }
    return {};
}

QStringList LMMessageLocales(const QString& localeName) {
    const QString modifier = localeName.section(QLatin1Char('@'), 1, 1);
    const QString place =
        localeName.section(QLatin1Char('@'), 0, 0).section(QLatin1Char('.'), 0, 0);
    const QString language = place.section(QLatin1Char('_'), 0, 0);
    if (language.isEmpty() || language == QLatin1String("C") || language == QLatin1String("POSIX"))
        return {};
    QStringList locales;
    for (const QString& base : {place, language}) {
        if (!modifier.isEmpty())
            locales.append(base + QLatin1Char('@') + modifier);
        locales.append(base);
    }
    locales.removeDuplicates();
    return locales;
}
