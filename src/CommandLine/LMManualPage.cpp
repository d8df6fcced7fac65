// SPDX-License-Identifier: MIT
#include "CommandLine/LMManualPage.h"

#include "CommandLine/LMCommandLineDescription.h"

namespace {

/// Text that troff takes as it is: no escapes, no requests, and dashes that can be copied.
QString escaped(QString text) {
    text.replace(QLatin1Char('\\'), QLatin1String("\\e"));
    text.replace(QLatin1Char('-'), QLatin1String("\\-"));
    if (text.startsWith(QLatin1Char('.')) || text.startsWith(QLatin1Char('\'')))
        text.prepend(QLatin1String("\\&"));
    return text;
}

QString entry(const QString& heading, const QString& text) {
    return QStringLiteral(".TP\n%1\n%2.\n").arg(heading, escaped(text));
}

QString bold(const QString& text) {
    return QStringLiteral("\\fB%1\\fR").arg(escaped(text));
}

QString optionEntry(const LMOptionDescription& option) {
    QStringList names;
    for (const QString& name : option.names)
        names.append(bold(name));
    return entry(names.join(QLatin1String(", ")), option.help);
}

QString commandEntry(const LMCommandDescription& command) {
    QString heading = bold(command.name);
    QString details;
    for (const LMOptionDescription& option : command.options) {
        if (option.names.contains(QLatin1String("--help")))
            continue; // Every command has it; said once.
        heading += QStringLiteral(" [%1]").arg(bold(option.names.constLast()));
        details += optionEntry(option);
    }
    if (!command.argument.isEmpty()) {
        const QString name = QStringLiteral("\\fI%1\\fR").arg(escaped(command.argument));
        heading += QStringLiteral(" [%1]").arg(name);
        details += entry(name, command.argumentHelp);
    }
    QString result = entry(heading, command.help);
    if (!details.isEmpty())
        result += QStringLiteral(".RS\n%1.RE\n").arg(details);
    return result;
}

} // namespace

QString LMManualPage(const QString& pageTemplate, const LMCommandLineDescription& description) {
    QString options;
    for (const LMOptionDescription& option : description.program.options)
        options += optionEntry(option);
    QString commands;
    for (const LMCommandDescription& command : description.commands)
        commands += commandEntry(command);
    QString exitCodes;
    for (const auto& [code, meaning] : description.exitCodes)
        exitCodes += entry(bold(QString::number(code)), meaning);
    QString page = pageTemplate;
    return page.replace(QLatin1String("%OPTIONS%\n"), options)
        .replace(QLatin1String("%COMMANDS%\n"), commands)
        .replace(QLatin1String("%EXIT STATUS%\n"), exitCodes);
}
