// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

#include <optional>

class LMKeyFile;

/// An installed application as its desktop entry describes it.
struct LMDesktopEntry {
    QString identifier;     ///< "org.gnome.gedit"; the path below the folder with "-" for "/".
    QString localizedName;  ///< Never empty.
    QString icon;           ///< A name in icon themes or an absolute path.
    QString program;        ///< What Exec starts, see LMProgramName; empty in a terminal.
    QString startupWMClass; ///< The WM_CLASS its windows are said to have.
    QString sandboxName;    ///< The identifier in Flatpak, or the instance name in Snap.
    QStringList mimeTypes;
    bool isHidden = false;     ///< Deleted by the user: stands for no application.
    bool isNoDisplay = false;  ///< Not in menus; often a second entry of another application.
    bool startsPlainly = true; ///< Exec has no arguments but file placeholders.

    bool operator==(const LMDesktopEntry&) const = default;
};

/// The entry in a file; nothing when it describes no application.
std::optional<LMDesktopEntry> LMDesktopEntryFromKeyFile(const LMKeyFile& file,
                                                        const QString& identifier,
                                                        const QStringList& locales);

/// The arguments of an Exec line, with its quoting resolved.
QStringList LMArgumentsOfExec(const QString& exec);
/// The other way round: one argument, quoted and escaped so that it stands for itself as the value
/// of an Exec key.
QString LMExecOfArgument(const QString& argument);

/// The name of the program that a command line starts, without its folder: interpreters give the
/// script, "env" and its like the program behind them. Empty when the command line does not tell,
/// as for shell commands and sandbox launchers.
QString LMProgramName(const QStringList& arguments);
