// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

class LMLogger;

/// Writes the script to a new file of the temporary directory that only the user can read and
/// execute. Null on failure. The file's name begins with the prefix and a full stop.
QString LMWriteScriptToTemporaryFile(const QString& script, const QString& namePrefix);

/// Runs the file, which names its own interpreter, and returns when its output has ended, which may
/// be never. It gets no arguments and an input that is open and stays empty; the rest it inherits.
/// Whether it succeeds plays no part.
void LMRunShellScriptAtPath(const QString& path, const LMLogger& logger);

/// The next chunk that can be read, waiting for it; empty at the end, nothing on an error.
std::optional<QByteArray> LMAvailableDataOrError(int descriptor);
