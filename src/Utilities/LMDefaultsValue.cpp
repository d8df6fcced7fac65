// SPDX-License-Identifier: MIT
#include "Utilities/LMDefaultsValue.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cmath>

namespace {

bool isType(const QVariant& value, QMetaType::Type type) {
    return value.typeId() == type;
}

bool isNumber(const QVariant& value) {
    switch (value.typeId()) {
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Double:
    case QMetaType::Float:
        return true;
    default:
        return false;
    }
}

} // namespace

std::optional<double> LMDefaultsValue::toDouble(const QVariant& value) {
    const bool isText = isType(value, QMetaType::QString);
    if (!isNumber(value) && !isText && !isType(value, QMetaType::Bool))
        return std::nullopt;
    bool isReadable = true;
    const double number =
        isText ? value.toString().trimmed().toDouble(&isReadable) : value.toDouble();
    return isReadable && std::isfinite(number) ? std::optional(number) : std::nullopt;
}

std::optional<bool> LMDefaultsValue::toBool(const QVariant& value) {
    if (isType(value, QMetaType::QString)) {
        const QString text = value.toString().trimmed().toLower();
        for (const char* word : {"true", "yes", "on"}) {
            if (text == QLatin1String(word))
                return true;
        }
        for (const char* word : {"false", "no", "off"}) {
            if (text == QLatin1String(word))
                return false;
        }
    }
    const std::optional<double> number = toDouble(value);
    return number ? std::optional(*number != 0.0) : std::nullopt;
}

std::optional<QString> LMDefaultsValue::toString(const QVariant& value) {
    if (isType(value, QMetaType::QString) || isType(value, QMetaType::Bool) || isNumber(value))
        return value.toString();
    return std::nullopt;
}

std::optional<QStringList> LMDefaultsValue::toStringArray(const QVariant& value) {
    if (!value.isValid()) // The file's form of an empty list.
        return QStringList();
    if (isType(value, QMetaType::QStringList))
        return value.toStringList();
    if (isType(value, QMetaType::QVariantList)) {
        const QVariantList elements = value.toList();
        QStringList strings;
        for (const QVariant& element : elements) {
            const std::optional<QString> text = toString(element);
            if (!text)
                return std::nullopt;
            strings.append(*text);
        }
        return strings;
    }
    const std::optional<QString> text = toString(value);
    if (!text)
        return std::nullopt;
    return text->isEmpty() ? QStringList() : QStringList(*text);
}

std::optional<QByteArray> LMDefaultsValue::toData(const QVariant& value) {
    if (isType(value, QMetaType::QByteArray))
        return value.toByteArray();
    return std::nullopt;
}

std::optional<QVariantMap> LMDefaultsValue::toDictionary(const QVariant& value) {
    if (isType(value, QMetaType::QVariantMap))
        return value.toMap();
    if (!isType(value, QMetaType::QString))
        return std::nullopt;
    const QJsonDocument document = QJsonDocument::fromJson(value.toString().toUtf8());
    return document.isObject() ? std::optional(document.object().toVariantMap()) : std::nullopt;
}

QVariant LMDefaultsValue::keptForm(const QVariant& value) {
    if (isType(value, QMetaType::QVariantMap)) {
        const QJsonDocument document(QJsonObject::fromVariantMap(value.toMap()));
        return QString::fromUtf8(document.toJson(QJsonDocument::Compact));
    }
    if (isType(value, QMetaType::QVariantList)) {
        if (const std::optional<QStringList> strings = toStringArray(value))
            return *strings;
        const QJsonDocument document(QJsonArray::fromVariantList(value.toList()));
        return QString::fromUtf8(document.toJson(QJsonDocument::Compact));
    }
    const bool isPlain =
        isNumber(value) || isType(value, QMetaType::Bool) || isType(value, QMetaType::QString) ||
        isType(value, QMetaType::QStringList) || isType(value, QMetaType::QByteArray);
    return isPlain ? value : QVariant(value.toString());
}
