// SPDX-License-Identifier: MIT
#pragma once

#include "Utilities/LMResult.h"

#include <QString>
#include <QStringList>

#include <system_error>

/// The user's base directories by the XDG base-directory rules: the environment
/// variable when it holds an absolute path, else the default below the home directory. Null when
/// there is no home directory either.
QString LMDataHomeDirectory();   ///< $XDG_DATA_HOME, else ~/.local/share
QString LMConfigHomeDirectory(); ///< $XDG_CONFIG_HOME, else ~/.config

/// Where to look for data and settings files, most important folder first: the user's own base
/// directory, then the system's. Folders need not exist.
QStringList LMDataDirectories();   ///< Then $XDG_DATA_DIRS, else /usr/local/share:/usr/share
QStringList LMConfigDirectories(); ///< Then $XDG_CONFIG_DIRS, else /etc/xdg

/// Where the resident process notes what it is doing, in $XDG_RUNTIME_DIR; null without one.
QString LMActivityFilePath(qint64 processIdentifier);

/// Makes a directory and those above it, each with mode 0700 as those rules ask. One that
/// exists already is left as it is; a file in its place is an error.
LMResult<void, std::error_code> LMCreateDirectory(const QString& path);
