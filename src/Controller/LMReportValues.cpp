// SPDX-License-Identifier: MIT
#include "Controller/LMReportValues.h"

namespace LMReportValues {

QJsonObject frame(const QRectF& rectangle) {
    return {{QStringLiteral("x"), rectangle.x()},
            {QStringLiteral("y"), rectangle.y()},
            {QStringLiteral("width"), rectangle.width()},
            {QStringLiteral("height"), rectangle.height()}};
}

QJsonValue state(const std::optional<LMStoredState>& state) {
    if (!state)
        return QJsonValue(QJsonValue::Null);
    const LMWindowState& window = state->window;
    const auto number = [](const std::optional<int>& value) {
        return value ? QJsonValue(*value) : QJsonValue(QJsonValue::Null);
    };
    const QString& name = window.desktopName;
    return QJsonObject{{QStringLiteral("states"), QJsonArray::fromStringList(LMStateNames(window))},
                       {QStringLiteral("desktop"), number(window.desktop)},
                       {QStringLiteral("desktopName"), text(name.isEmpty() ? QString() : name)},
                       {QStringLiteral("normalFrame"), window.normalFrame
                                                           ? QJsonValue(frame(*window.normalFrame))
                                                           : QJsonValue(QJsonValue::Null)},
                       {QStringLiteral("stackingPosition"), number(state->stackingPosition)}};
}

QJsonValue text(const QString& text) {
    return text.isNull() ? QJsonValue(QJsonValue::Null) : QJsonValue(text);
}

} // namespace LMReportValues
