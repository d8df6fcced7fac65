// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include <utility>

struct LMOptionDescription {
    QStringList names; ///< With their dashes, the short ones first: "-h", "--help".
    QString help;      ///< One sentence without a full stop.
};

/// The program itself, or one of its commands.
struct LMCommandDescription {
    QString name;
    QString help;
    QList<LMOptionDescription> options; ///< In the order of the help text, which is the first.
    QString argument;                   ///< The name of the one optional argument; may be empty.
    QString argumentHelp;
};

/// What the command line understands, for everything that explains it elsewhere.
struct LMCommandLineDescription {
    LMCommandDescription program;
    QList<LMCommandDescription> commands;
    QList<std::pair<int, QString>> exitCodes;
};

/// Read from what LMParseCommandLine parses with, so that neither can forget the other.
LMCommandLineDescription LMDescribeCommandLine();
