// SPDX-License-Identifier: MIT
#include "CommandLine/LMTables.h"

#include "Utilities/LMFormat.h"

#include <QDateTime>
#include <QJsonArray>
#include <QTextBoundaryFinder>

#include <algorithm>
#include <cwchar>

namespace {

constexpr int CellLength = 48;

QString cell(const QJsonValue& value) {
    return LMTables::printable(value.toString(), CellLength);
}

QString number(const QJsonValue& value) {
    return QString::number(value.toDouble(), 'g', 15);
}

QString geometry(const QJsonValue& frame) {
    const QJsonObject object = frame.toObject();
    if (object.isEmpty())
        return QStringLiteral("-");
    return LMFormat(LMLocalized("%@×%@ at %@,%@"),
                    {number(object[u"width"]), number(object[u"height"]), number(object[u"x"]),
                     number(object[u"y"])});
}

QString joined(const QJsonValue& array) {
    QStringList items;
    for (const auto& item : array.toArray())
        items.append(item.toString());
    return LMTables::printable(items.join(QLatin1Char(' ')), CellLength);
}

/// The states and the virtual desktop, which people count from 1.
QString stateText(const QJsonValue& state) {
    QStringList words;
    for (const auto& name : state[u"states"].toArray())
        words.append(name.toString());
    if (const QJsonValue desktop = state[u"desktop"]; desktop.isDouble()) {
        const QString number = QString::number(desktop.toInt() + 1);
        const QString name = state[u"desktopName"].toString();
        // Many managers call it "Workspace 2" or the like.
        const bool saysNothing = name.isEmpty() || name.endsWith(u' ' + number);
        words.append(saysNothing ? LMFormat(LMLocalized("desktop %@"), {number})
                                 : LMFormat(LMLocalized("desktop %@ “%@”"), {number, name}));
    }
    return words.isEmpty() ? QStringLiteral("-")
                           : LMTables::printable(words.join(LMLocalized(", ")), CellLength);
}

/// How a window stands, how it is going to, and what it was stored with that cannot be had.
QString plannedState(const QJsonValue& window) {
    const QString now = stateText(window[u"fromState"]);
    const QString then = window[u"toState"].isObject() ? stateText(window[u"toState"]) : now;
    const QString lacking = joined(window[u"notRestored"]);
    const QString text = now == then ? now : LMFormat(QStringLiteral("%@ → %@"), {now, then});
    return lacking.isEmpty() ? text
                             : LMFormat(LMLocalized("%@ (not to be had: %@)"), {text, lacking});
}

QString yesOrNo(bool answer) {
    return answer ? LMLocalized("yes") : LMLocalized("no");
}

QString displaysTable(const QJsonArray& displays) {
    QList<QStringList> rows{{LMLocalized("DISPLAY"), LMLocalized("BOUNDS"), LMLocalized("PRODUCT"),
                             LMLocalized("MAIN")}};
    for (const auto& display : displays)
        rows.append({cell(display[u"connector"]), geometry(display[u"bounds"]),
                     cell(display[u"product"]), yesOrNo(display[u"main"].toBool())});
    return LMTables::table(rows);
}

QString hotKeyText(const QJsonValue& hotKey) {
    const QString text =
        LMFormat(QStringLiteral("%@ %@"), {cell(hotKey[u"key"]), cell(hotKey[u"shortcut"])});
    const QString reason = hotKey[u"reason"].toString();
    return reason.isEmpty() ? text
                            : LMFormat(LMLocalized("%@: %@"), {text, LMTables::printable(reason)});
}

QString statusText(const QJsonObject& report) {
    const QJsonObject backend = report[u"backend"].toObject();
    const QJsonObject counts = report[u"counts"].toObject();
    QList<QStringList> rows;
    const auto add = [&rows](const QString& name, const QString& value) {
        rows.append({name, value});
    };
    add(LMLocalized("Version"), report[u"version"].toString());
    add(LMLocalized("Process"), number(report[u"process"]));
    add(LMLocalized("Store"), LMTables::printable(report[u"store"].toString()));
    add(LMLocalized("Back end"),
        LMFormat(LMLocalized("%@, window manager %@"),
                 {cell(backend[u"name"]), cell(backend[u"windowManager"])}));
    const QJsonObject capabilities = backend[u"capabilities"].toObject();
    QStringList names;
    for (auto item = capabilities.begin(); item != capabilities.end(); ++item)
        names.append(item.key() + (item->toBool() ? QString() : LMLocalized(" (no)")));
    add(LMLocalized("Capabilities"), names.join(LMLocalized(", ")));
    add(LMLocalized("Permission"), yesOrNo(report[u"permission"][u"trusted"].toBool()));
    for (const auto& missing : report[u"permission"][u"missing"].toArray())
        add(LMLocalized("Missing"), LMTables::printable(missing.toString()));
    const QJsonValue current = report[u"currentWorkspace"];
    add(LMLocalized("Current workspace"), current.isString() ? cell(current) : LMLocalized("none"));
    add(LMLocalized("Stored"),
        LMFormat(LMLocalized("workspaces: %@, applications: %@, windows: %@"),
                 {number(counts[u"workspaces"]), number(counts[u"applications"]),
                  number(counts[u"storedWindows"])}));
    for (const auto& hotKey : report[u"hotKeys"].toArray())
        if (hotKey[u"state"].toString() != u"empty")
            add(LMLocalized("Hot key"), hotKeyText(hotKey));
    for (const auto& entry : report[u"activity"][u"current"].toArray())
        add(LMLocalized("Doing"), LMTables::activity(entry.toObject()));
    const QJsonArray recent = report[u"activity"][u"recent"].toArray();
    for (qsizetype i = 0; i < std::min<qsizetype>(recent.size(), 3); ++i)
        add(LMLocalized("Before"), LMTables::activity(recent[i].toObject()));
    return LMTables::table(rows) + QLatin1Char('\n') + displaysTable(report[u"displays"].toArray());
}

QString listText(const QJsonObject& report) {
    QList<QStringList> rows{{LMLocalized("WORKSPACE"), LMLocalized("APPLICATION"),
                             LMLocalized("WINDOW"), LMLocalized("FRAME"), LMLocalized("STATE"),
                             LMLocalized("PATTERN")}};
    for (const auto& workspace : report[u"workspaces"].toArray()) {
        const QString name = cell(workspace[u"name"]) +
                             (workspace[u"current"].toBool() ? QStringLiteral(" *") : QString());
        for (const auto& application : workspace[u"applications"].toArray())
            for (const auto& window : application[u"windows"].toArray())
                rows.append({name, cell(application[u"identifier"]), cell(window[u"name"]),
                             geometry(window[u"frame"]), stateText(window[u"state"]),
                             cell(window[u"pattern"])});
        if (workspace[u"applications"].toArray().isEmpty())
            rows.append({name,
                         QStringLiteral("-"),
                         QStringLiteral("-"),
                         QStringLiteral("-"),
                         QStringLiteral("-"),
                         {}});
    }
    return LMTables::table(rows);
}

QString windowsText(const QJsonObject& report) {
    QList<QStringList> rows{{LMLocalized("APPLICATION"), LMLocalized("TITLE"),
                             LMLocalized("SUBROLE"), LMLocalized("CHILD ROLES"),
                             LMLocalized("FRAME"), LMLocalized("STATE"), LMLocalized("FLAGS")}};
    for (const auto& application : report[u"applications"].toArray()) {
        for (const auto& window : application[u"windows"].toArray()) {
            QStringList flags;
            for (const char16_t* flag : {u"toolbarButton", u"growArea", u"document"})
                if (window[QStringView(flag)].toBool())
                    flags.append(QString::fromUtf16(flag));
            rows.append({cell(application[u"identifier"]), cell(window[u"title"]),
                         cell(window[u"subrole"]), joined(window[u"childRoles"]),
                         geometry(window[u"frame"]), stateText(window[u"state"]),
                         flags.join(QLatin1Char(' '))});
        }
    }
    return LMTables::table(rows);
}

QString planText(const QJsonObject& report) {
    QList<QStringList> rows{{LMLocalized("APPLICATION"), LMLocalized("WINDOW"),
                             LMLocalized("STORED WINDOW"), LMLocalized("SCORE"), LMLocalized("WHY"),
                             LMLocalized("FROM"), LMLocalized("TO"), LMLocalized("STATE")}};
    for (const auto& application : report[u"applications"].toArray()) {
        const QString name = cell(application[u"identifier"]);
        for (const auto& window : application[u"windows"].toArray()) {
            const bool isMatched = window[u"storedWindow"].isString();
            rows.append({name, cell(window[u"title"]),
                         isMatched ? cell(window[u"storedWindow"]) : LMLocalized("none: stays"),
                         number(window[u"score"]), joined(window[u"reasons"]),
                         geometry(window[u"from"]), geometry(window[u"to"]), plannedState(window)});
        }
        for (const auto& stored : application[u"unmatched"].toArray())
            rows.append({name,
                         LMLocalized("none: not open"),
                         cell(stored[u"name"]),
                         QStringLiteral("0"),
                         {},
                         QStringLiteral("-"),
                         geometry(stored[u"frame"]),
                         QStringLiteral("-")});
    }
    const bool hasErrorOnly = rows.size() == 1 && report.contains(u"error");
    return hasErrorOnly ? QString() : LMTables::table(rows);
}

/// How many columns of a terminal the text takes: signs of East Asia take two, marks on a letter
/// none.
qsizetype columns(const QString& text) {
    qsizetype result = 0;
    for (const char32_t character : text.toUcs4()) {
        const int width = wcwidth(wchar_t(character));
        result += width < 0 ? 1 : width; // Unknown to the locale.
    }
    return result;
}

bool isUnsafe(char32_t character) {
    switch (QChar::category(character)) {
    case QChar::Other_Control:
    case QChar::Other_Format: // Bidirectional overrides would reorder the rest of the table.
    case QChar::Other_Surrogate:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return true;
    default:
        return false;
    }
}

} // namespace

QString LMTables::printable(const QString& text, int maxLength) {
    QString result;
    for (const char32_t character : text.left(qsizetype(maxLength) * 4).toUcs4()) {
        if (isUnsafe(character))
            result += QChar(0xFFFD);
        else
            result += QString::fromUcs4(&character, 1);
    }
    if (result.size() <= maxLength)
        return result;
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, result);
    finder.setPosition(maxLength - 1);
    const qsizetype end = finder.isAtBoundary() ? maxLength - 1 : finder.toPreviousBoundary();
    return result.left(std::max<qsizetype>(end, 0)) + QStringLiteral("…");
}

QString LMTables::activity(const QJsonObject& entry) {
    const auto time = [&entry](QStringView key) {
        return QDateTime::fromString(entry[key].toString(), Qt::ISODateWithMs)
            .toString(QStringLiteral("yyyy-MM-dd hh:mm:ss"));
    };
    const QString label = printable(entry[u"label"].toString());
    return entry.contains(u"end")
               ? LMFormat(LMLocalized("%@ %@ to %@"), {label, time(u"start"), time(u"end")})
               : LMFormat(LMLocalized("%@ since %@"), {label, time(u"start")});
}

QString LMTables::table(const QList<QStringList>& rows) {
    QList<qsizetype> widths;
    for (const QStringList& row : rows) {
        widths.resize(std::max(widths.size(), row.size()));
        for (qsizetype column = 0; column < row.size(); ++column)
            widths[column] = std::max(widths[column], columns(row[column]));
    }
    QStringList lines;
    for (const QStringList& row : rows) {
        QString line;
        for (qsizetype column = 0; column < row.size(); ++column)
            line += row[column] + QString(widths[column] + 2 - columns(row[column]), u' ');
        lines.append(line.trimmed());
    }
    return lines.join(QLatin1Char('\n'));
}

QString LMTables::forReport(const QString& method, const QJsonObject& report) {
    if (method == u"Status")
        return statusText(report);
    if (method == u"List")
        return listText(report);
    if (method == u"Windows")
        return windowsText(report);
    return planText(report);
}
