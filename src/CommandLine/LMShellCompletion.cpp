// SPDX-License-Identifier: MIT
#include "CommandLine/LMShellCompletion.h"

#include "CommandLine/LMCommandLineDescription.h"

namespace {

/// Prints the identifiers of the stored applications: the only key of that name in the report.
/// Programs choose theirs, and bash expands what it completes: only harmless ones pass.
constexpr QLatin1String Identifiers{
    R"sh(rook list --json 2>/dev/null | )sh"
    R"sh(sed -n 's/^ *"identifier": "\([A-Za-z0-9._+-]*\)",\{0,1\}$/\1/p' | sort -u)sh"};

/// One word for bash, zsh and fish, whatever it holds.
QString quoted(QString text) {
    return QLatin1Char('\'') + text.replace(QLatin1Char('\''), QLatin1String("'\\''")) +
           QLatin1Char('\'');
}

QStringList optionNames(const LMCommandDescription& command) {
    QStringList result;
    for (const LMOptionDescription& option : command.options)
        result += option.names;
    return result;
}

QString zshOptions(const LMCommandDescription& command) {
    QString result;
    for (const LMOptionDescription& option : command.options)
        for (const QString& name : option.names)
            result +=
                QStringLiteral(" \\\n        %1")
                    .arg(quoted(QStringLiteral("(%1)%2[%3]")
                                    .arg(option.names.join(QLatin1Char(' ')), name, option.help)));
    return result;
}

QString fishOptions(const LMCommandDescription& command, const QString& condition) {
    QString result;
    for (const LMOptionDescription& option : command.options) {
        result += QStringLiteral("complete -c rook -n %1").arg(quoted(condition));
        for (const QString& name : option.names)
            result += name.startsWith(QLatin1String("--")) ? QLatin1String(" -l ") + name.sliced(2)
                                                           : QLatin1String(" -s ") + name.sliced(1);
        result += QStringLiteral(" -d %1\n").arg(quoted(option.help));
    }
    return result;
}

} // namespace

QString LMShellCompletion::bash(const LMCommandLineDescription& description) {
    QStringList commands;
    QString cases;
    for (const LMCommandDescription& command : description.commands) {
        commands.append(command.name);
        const QString words = optionNames(command).join(QLatin1Char(' '));
        const QString identifiers =
            command.argument.isEmpty() ? QString() : QStringLiteral(" $(_rook_identifiers)");
        cases +=
            QStringLiteral("        %1) words=\"%2%3\" ;;\n").arg(command.name, words, identifiers);
    }
    return QStringLiteral(R"sh(# bash completion for rook(1)

_rook_identifiers() {
    %1
}

_rook() {
    local command='' words='' word index
    for ((index = 1; index < COMP_CWORD; index++)); do
        if [[ ${COMP_WORDS[index]} != -* ]]; then
            command=${COMP_WORDS[index]}
            break
        fi
    done
    case $command in
        '') words=%2 ;;
%3    esac
    COMPREPLY=()
    while read -r word; do
        [[ " ${COMP_WORDS[*]:1:COMP_CWORD-1} " == *" $word "* ]] || COMPREPLY+=("$word")
    done < <(compgen -W "$words" -- "${COMP_WORDS[COMP_CWORD]}")
}

complete -F _rook rook
)sh")
        .arg(Identifiers,
             quoted((commands + optionNames(description.program)).join(QLatin1Char(' '))), cases);
}

QString LMShellCompletion::zsh(const LMCommandLineDescription& description) {
    QString commands;
    QString cases;
    for (const LMCommandDescription& command : description.commands) {
        commands += QStringLiteral("        %1\n")
                        .arg(quoted(command.name + QLatin1Char(':') + command.help));
        QString arguments = zshOptions(command);
        if (!command.argument.isEmpty())
            arguments +=
                QStringLiteral(" \\\n        %1")
                    .arg(quoted(QStringLiteral(":%1:_rook_identifiers").arg(command.argument)));
        cases += QStringLiteral("    (%1) _arguments%2 ;;\n").arg(command.name, arguments);
    }
    return QStringLiteral(R"sh(#compdef rook
# zsh completion for rook(1)

_rook_identifiers() {
    local -a identifiers
    identifiers=(${(f)"$(%1)"})
    compadd -a identifiers
}

_rook() {
    local curcontext=$curcontext state line
    local -a commands
    commands=(
%2    )
    _arguments -C%3 \
        '1: :->command' '*:: :->arguments'
    if [[ $state == command ]]; then
        _describe command commands
        return
    fi
    case $line[1] in
%4    esac
}

_rook "$@"
)sh")
        .arg(Identifiers, commands, zshOptions(description.program), cases);
}

QString LMShellCompletion::fish(const LMCommandLineDescription& description) {
    QString result = QStringLiteral("# fish completion for rook(1)\n\ncomplete -c rook -f\n");
    result += fishOptions(description.program, QStringLiteral("__fish_use_subcommand"));
    for (const LMCommandDescription& command : description.commands) {
        const QString isUsed = QStringLiteral("__fish_seen_subcommand_from %1").arg(command.name);
        result += QStringLiteral("complete -c rook -n __fish_use_subcommand -a %1 -d %2\n")
                      .arg(command.name, quoted(command.help));
        result += fishOptions(command, isUsed);
        if (!command.argument.isEmpty())
            result += QStringLiteral("complete -c rook -n %1 -a %2 -d %3\n")
                          .arg(quoted(isUsed), quoted(QLatin1Char('(') + Identifiers + u')'),
                               quoted(command.argumentHelp));
    }
    return result;
}
