// SPDX-License-Identifier: MIT
#pragma once

#include "Model/LMStoredState.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QRectF>
#include <QString>

/// The values reports share.
namespace LMReportValues {

/// {"x", "y", "width", "height"}, pixels.
QJsonObject frame(const QRectF& rectangle);
/// {"states", "desktop", "desktopName", "normalFrame", "stackingPosition"}, each null when it is
/// absent, the states as names; null for no state.
QJsonValue state(const std::optional<LMStoredState>& state);
/// The text, or null when it is absent.
QJsonValue text(const QString& text);

} // namespace LMReportValues
