// SPDX-License-Identifier: MIT
#pragma once

#include "Controller/LMAlert.h"

#include <QString>

#include <optional>

/// A script from a file, or what to tell the user when there is none in it.
struct LMImportedScript {
    QString label;  ///< The file's name without its extension.
    QString runAs;  ///< "Shell Script"
    QString script; ///< Empty when the import failed.
    LMAlert failure;
};

/// Reads a shell script from a text file. Compiled AppleScripts (".scpt") need a host that can load
/// them; there is none.
LMImportedScript LMImportScript(const QString& path);

/// The text of a file whose encoding nobody tells: that of a byte order mark, else UTF-8, else that
/// of the locale, else Latin-1. Null when it cannot be read or is no text.
QString LMTextFromFile(const QString& path);
