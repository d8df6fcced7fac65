// SPDX-License-Identifier: MIT
#include "Controller/LMReportValues.h"

namespace LMReportValues {

QJsonObject frame(const QRectF& rectangle) {
    return {{QStringLiteral("x"), rectangle.x()},
            {QStringLiteral("y"), rectangle.y()},
            {QStringLiteral("width"), rectangle.width()},
            {QStringLiteral("height"), rectangle.height()}};
}

QJsonValue text(const QString& text) {
    return text.isNull() ? QJsonValue(QJsonValue::Null) : QJsonValue(text);
}

} // namespace LMReportValues
