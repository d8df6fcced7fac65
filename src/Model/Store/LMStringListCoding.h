// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QStringList>

#include <optional>

/// The list as a JSON array in UTF-8 without blanks.
QByteArray LMJSONFromStringList(const QStringList& list);

/// Reads a JSON array of strings; nothing for any other text.
std::optional<QStringList> LMStringListFromJSON(QByteArrayView json);
