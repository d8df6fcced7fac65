// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>

#include <optional>

/// Whole numbers by name, from zero up, archived as a binary property list with one dictionary.
using LMBinaryRecord = QMap<QString, quint64>;

/// Equal records have equal archives.
QByteArray LMArchivedRecord(const LMBinaryRecord& record);

/// Reads an archive from any source. Nothing for data that is not a binary property list, holds
/// anything but whole numbers, nests, or is larger than 4 KiB.
std::optional<LMBinaryRecord> LMUnarchivedRecord(const QByteArray& data);
