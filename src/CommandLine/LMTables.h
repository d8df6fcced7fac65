// SPDX-License-Identifier: MIT
#pragma once

#include <QJsonObject>
#include <QString>
#include <QStringList>

/// Reports as text for people. Titles come from other programs and may hold anything: what would
/// steer the terminal or break a line is replaced, and long texts are shortened.
namespace LMTables {

/// The report of a D-Bus method ("Status", "List", "Windows", "Plan") as text; empty when it has an
/// error and nothing else.
QString forReport(const QString& method, const QJsonObject& report);

/// One entry of the status report's activity: what, and from when to when.
QString activity(const QJsonObject& entry);

/// Columns padded to their widest cell, as a terminal of the current locale shows them; the first
/// row is the heading.
QString table(const QList<QStringList>& rows);

/// One line that is safe to print; at most maxLength characters.
QString printable(const QString& text, int maxLength = 1000);

} // namespace LMTables
