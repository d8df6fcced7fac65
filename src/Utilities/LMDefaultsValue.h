// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVariantMap>

#include <optional>

/// Reads a value of the user defaults as the type asked for. What comes from the settings file is
/// text, whatever was put in; what was registered or just set has its own type. Nothing stands for
/// a value that cannot be read as that type.
namespace LMDefaultsValue {

std::optional<bool> toBool(const QVariant& value);
std::optional<double> toDouble(const QVariant& value);
std::optional<QString> toString(const QVariant& value);
std::optional<QStringList> toStringArray(const QVariant& value);
std::optional<QByteArray> toData(const QVariant& value);
std::optional<QVariantMap> toDictionary(const QVariant& value);

/// The form in which a value is kept in the file: maps and mixed lists become JSON text.
QVariant keptForm(const QVariant& value);

} // namespace LMDefaultsValue
