// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>

#include <optional>

/// Whole numbers by name, from zero up, archived as a binary property list with one dictionary. Up
/// to 14 of them, with ASCII names of up to 14 characters.
using LMBinaryRecord = QMap<QString, quint64>;

/// Equal records have equal archives.
QByteArray LMArchivedRecord(const LMBinaryRecord& record);

/// Reads an archive from any source. Nothing for data that is no such property list or is larger
/// than 4 KiB.
std::optional<LMBinaryRecord> LMUnarchivedRecord(const QByteArray& data);
