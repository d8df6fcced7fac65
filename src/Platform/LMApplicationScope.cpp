// SPDX-License-Identifier: MIT
#include "Platform/LMApplicationScope.h"

#include <QByteArray>
#include <QRegularExpression>
#include <QStringList>

namespace {

/// Undoes systemd-escape(1): "\x2d" stands for "-".
QString unescaped(const QString& text) {
    QByteArray bytes = text.toUtf8();
    for (qsizetype at = bytes.indexOf("\\x"); at >= 0; at = bytes.indexOf("\\x", at + 1)) {
        bool isNumber = false;
        const uint code = bytes.mid(at + 2, 2).toUInt(&isNumber, 16);
        if (isNumber && at + 4 <= bytes.size())
            bytes.replace(at, 4, QByteArray(1, static_cast<char>(code)));
    }
    return QString::fromUtf8(bytes);
}

/// "NAME.scope" or "NAME.service" -> "NAME"; null for other units.
QString unitName(const QString& unit, bool* isScope) {
    *isScope = unit.endsWith(QLatin1String(".scope"));
    if (*isScope)
        return unit.chopped(QLatin1String(".scope").size());
    return unit.endsWith(QLatin1String(".service")) ? unit.chopped(QLatin1String(".service").size())
                                                    : QString();
}

std::optional<LMApplicationScope> systemdScope(const QString& name, bool isScope) {
    QStringList parts =
        name.section(QLatin1Char('@'), 0, 0).split(QLatin1Char('-'), Qt::SkipEmptyParts);
    if (parts.size() < 2 || parts.takeFirst() != QLatin1String("app"))
        return std::nullopt;
    LMApplicationScope scope;
    if (isScope && parts.size() > 1)
        scope.mainProcess = parts.takeLast().toLongLong();
    scope.identifier = unescaped(parts.last());
    return scope;
}

std::optional<LMApplicationScope> busScope(const QString& name) {
    static const QRegularExpression pattern(
        QRegularExpression::anchoredPattern(QStringLiteral("dbus-:[0-9.]+-(.+)@[0-9]+")));
    const QRegularExpressionMatch match = pattern.match(name);
    if (!match.hasMatch())
        return std::nullopt;
    return LMApplicationScope{
        LMApplicationScope::Kind::Systemd, unescaped(match.captured(1)), {}, 0};
}

std::optional<LMApplicationScope> snapScope(const QString& name) {
    static const QRegularExpression pattern(QRegularExpression::anchoredPattern(
        QStringLiteral("snap\\.([a-z0-9_-]+)\\.([A-Za-z0-9-]+?)([.-][0-9a-f-]{36})?")));
    const QRegularExpressionMatch match = pattern.match(name);
    if (!match.hasMatch())
        return std::nullopt;
    const QString snap = match.captured(1);
    return LMApplicationScope{LMApplicationScope::Kind::Snap,
                              snap + QLatin1Char('_') + match.captured(2), snap, 0};
}

} // namespace

std::optional<LMApplicationScope> LMApplicationScopeFromControlGroup(const QString& path) {
    bool isScope = false;
    const QString name = unitName(path.section(QLatin1Char('/'), -1), &isScope);
    if (name.isEmpty())
        return std::nullopt;
    if (auto scope = snapScope(name))
        return scope;
    if (auto scope = busScope(name))
        return scope;
    return systemdScope(name, isScope);
}
