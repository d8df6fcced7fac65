// SPDX-License-Identifier: MIT
#include "Platform/LMDesktopEntry.h"

#include "Platform/LMKeyFile.h"

#include <QRegularExpression>

namespace {

QString baseName(const QString& path) {
    return path.section(QLatin1Char('/'), -1);
}

/// Programs that replace themselves by the command that follows.
bool isWrapper(const QString& program) {
    static const QStringList wrappers{QStringLiteral("env"),    QStringLiteral("nice"),
                                      QStringLiteral("nohup"),  QStringLiteral("exec"),
                                      QStringLiteral("pkexec"), QStringLiteral("setsid")};
    return wrappers.contains(program);
}

/// Programs that say nothing about which application they run.
bool isLauncher(const QString& program) {
    static const QStringList launchers{QStringLiteral("flatpak"),    QStringLiteral("snap"),
                                       QStringLiteral("gtk-launch"), QStringLiteral("gio"),
                                       QStringLiteral("xdg-open"),   QStringLiteral("bwrap")};
    return launchers.contains(program);
}

bool isInterpreter(const QString& program) {
    static const QRegularExpression interpreters(QRegularExpression::anchoredPattern(
        QStringLiteral("(python|perl|ruby|lua|php|tclsh|wish)[0-9.]*|(ba|da|k|z|c|tc|fi)?sh|node|"
                       "gjs(-console)?|java|mono|electron[0-9]*|wine(64)?(-preloader)?")));
    return interpreters.match(program).hasMatch();
}

bool isOption(const QString& argument) {
    return argument.startsWith(QLatin1Char('-'));
}

bool isPlaceholder(const QString& argument) {
    return argument.size() == 2 && argument.startsWith(QLatin1Char('%'));
}

} // namespace

std::optional<LMDesktopEntry> LMDesktopEntryFromKeyFile(const LMKeyFile& file,
                                                        const QString& identifier,
                                                        const QStringList& locales) {
    const QString group = QStringLiteral("Desktop Entry");
    const auto value = [&](const char* key) { return file.value(group, QLatin1String(key)); };
    LMDesktopEntry entry;
    entry.identifier = identifier;
    entry.isHidden = file.isTrue(group, QStringLiteral("Hidden"));
    if (entry.isHidden) // Such an entry need hold nothing else.
        return entry;
    if (value("Type") != QLatin1String("Application"))
        return std::nullopt;

    entry.localizedName = file.localizedValue(group, QStringLiteral("Name"), locales).simplified();
    if (entry.localizedName.isEmpty())
        entry.localizedName = identifier;
    entry.icon = file.localizedValue(group, QStringLiteral("Icon"), locales);
    entry.startupWMClass = value("StartupWMClass");
    entry.sandboxName = value("X-Flatpak");
    if (entry.sandboxName.isEmpty())
        entry.sandboxName = value("X-SnapInstanceName");
    entry.mimeTypes = file.list(group, QStringLiteral("MimeType"));
    entry.isNoDisplay = file.isTrue(group, QStringLiteral("NoDisplay"));

    const QStringList arguments = LMArgumentsOfExec(value("Exec"));
    // A terminal shows the windows of what runs in it.
    if (!file.isTrue(group, QStringLiteral("Terminal")))
        entry.program = LMProgramName(arguments);
    entry.startsPlainly = std::all_of(arguments.begin() + (arguments.isEmpty() ? 0 : 1),
                                      arguments.end(), isPlaceholder);
    return entry;
}

QStringList LMArgumentsOfExec(const QString& exec) {
    QStringList arguments;
    QString argument;
    bool isQuoted = false;
    bool hasArgument = false;
    for (qsizetype index = 0; index < exec.size(); ++index) {
        const QChar character = exec[index];
        if (character == QLatin1Char('"')) {
            isQuoted = !isQuoted;
            hasArgument = true;
        } else if (character == QLatin1Char('\\') && isQuoted && index + 1 < exec.size()) {
            argument.append(exec[++index]);
        } else if (character.isSpace() && !isQuoted) {
            if (hasArgument)
                arguments.append(std::exchange(argument, QString()));
            hasArgument = false;
        } else {
            argument.append(character);
            hasArgument = true;
        }
    }
    if (hasArgument)
        arguments.append(argument);
    return arguments;
}

QString LMExecOfArgument(const QString& argument) {
    // The rules of the Exec key first, those of string values on top.
    QString quoted;
    for (const QChar character : argument) {
        if (QStringLiteral("\"`$\\").contains(character))
            quoted += u'\\';
        quoted += character;
        if (character == u'%')
            quoted += character;
    }
    quoted = u'"' + quoted + u'"';
    return quoted.replace(u'\\', QLatin1String("\\\\")).replace(u'\n', QLatin1String("\\n"));
}

QString LMProgramName(const QStringList& arguments) {
    bool isScript = false;
    for (const QString& argument : arguments) {
        const QString program = baseName(argument);
        if (isOption(argument)) {
            // What follows is the command itself; a shell's may be anything.
            if (argument == QLatin1String("-c"))
                return {};
            continue;
        }
        if (isScript)
            return program;
        if (isWrapper(program) || argument.contains(QLatin1Char('=')))
            continue;
        if (isLauncher(program))
            return {};
        if (!isInterpreter(program))
            return program;
        isScript = true;
    }
    return {};
}
