// SPDX-License-Identifier: MIT
#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QRectF>
#include <QString>

/// The values reports share.
namespace LMReportValues {

/// {"x", "y", "width", "height"}, pixels.
QJsonObject frame(const QRectF& rectangle);
/// The text, or null when it is absent.
QJsonValue text(const QString& text);

} // namespace LMReportValues
