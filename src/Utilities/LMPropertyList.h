// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QVariant>

#include <optional>

/// Reads an XML property list from a file or a compiled-in resource (":/…").
///
/// Dictionaries become QVariantMap, arrays QVariantList, data QByteArray, integers qlonglong, reals
/// double; values of other kinds become invalid variants. Answers nothing for a file that is
/// missing, broken, nested more than 32 levels deep or larger than 1 MiB, and says why in error.
std::optional<QVariant> LMPropertyListFromFile(const QString& path, QString* error = nullptr);
