// SPDX-License-Identifier: MIT
#include "Utilities/LMPropertyList.h"

#include "Utilities/LMFormat.h"
#include "Utilities/LMPropertyListPointers.h"

#include <QFile>
#include <QVariantMap>

namespace {

constexpr qint64 largestFile = 1'048'576;
constexpr int deepestNesting = 32;

class Converter {
public:
    QVariant convert(plist_t node, int depth = 0);
    bool isTooDeep() const { return m_isTooDeep; }

private:
    QVariant convertArray(plist_t node, int depth);
    QVariant convertDictionary(plist_t node, int depth);

    bool m_isTooDeep = false;
};

QVariant booleanValue(plist_t node) {
    std::uint8_t value = 0;
    plist_get_bool_val(node, &value);
    return value != 0;
}

QVariant integerValue(plist_t node) {
    std::uint64_t value = 0;
    plist_get_uint_val(node, &value);
    return static_cast<qlonglong>(value);
}

QVariant realValue(plist_t node) {
    double value = 0.0;
    plist_get_real_val(node, &value);
    return value;
}

QVariant stringValue(plist_t node) {
    std::uint64_t length = 0;
    const char* text = plist_get_string_ptr(node, &length);
    return QString::fromUtf8(text ? text : "", static_cast<qsizetype>(length));
}

QVariant dataValue(plist_t node) {
    std::uint64_t length = 0;
    const char* bytes = plist_get_data_ptr(node, &length);
    return QByteArray(bytes, static_cast<qsizetype>(length));
}

QVariant Converter::convertArray(plist_t node, int depth) {
    QVariantList values;
    plist_array_iter iterator = nullptr;
    plist_array_new_iter(node, &iterator);
    const LMPropertyListAllocation<void> owner(iterator);
    plist_t item = nullptr;
    while (plist_array_next_item(node, iterator, &item), item)
        values.append(convert(item, depth + 1));
    return values;
}

QVariant Converter::convertDictionary(plist_t node, int depth) {
    QVariantMap values;
    plist_dict_iter iterator = nullptr;
    plist_dict_new_iter(node, &iterator);
    const LMPropertyListAllocation<void> owner(iterator);
    for (;;) {
        char* key = nullptr;
        plist_t item = nullptr;
        plist_dict_next_item(node, iterator, &key, &item);
        const LMPropertyListAllocation<char> keyOwner(key);
        if (!item)
            return values;
        values.insert(QString::fromUtf8(key), convert(item, depth + 1));
    }
}

QVariant Converter::convert(plist_t node, int depth) {
    if (depth > deepestNesting) {
        m_isTooDeep = true;
        return {};
    }
    switch (plist_get_node_type(node)) {
    case PLIST_BOOLEAN:
        return booleanValue(node);
    case PLIST_UINT:
        return integerValue(node);
    case PLIST_REAL:
        return realValue(node);
    case PLIST_STRING:
        return stringValue(node);
    case PLIST_DATA:
        return dataValue(node);
    case PLIST_ARRAY:
        return convertArray(node, depth);
    case PLIST_DICT:
        return convertDictionary(node, depth);
    default:
        return {};
    }
}

std::optional<QVariant> parse(const QByteArray& bytes, QString& error) {
    plist_t root = nullptr;
    plist_from_xml(bytes.constData(), static_cast<std::uint32_t>(bytes.size()), &root);
    const LMPropertyListNode owner(root);
    if (!root) {
        error = QStringLiteral("not an XML property list");
        return std::nullopt;
    }
    Converter converter;
    QVariant value = converter.convert(root);
    if (converter.isTooDeep()) {
        error = QStringLiteral("nested too deeply");
        return std::nullopt;
    }
    return value;
}

std::optional<QVariant> readAndParse(QFile& file, QString& error) {
    if (!file.open(QIODevice::ReadOnly)) {
        error = file.errorString();
        return std::nullopt;
    }
    const QByteArray bytes = file.read(largestFile + 1);
    if (bytes.size() > largestFile) {
        error = QStringLiteral("larger than 1 MiB");
        return std::nullopt;
    }
    return parse(bytes, error);
}

} // namespace

std::optional<QVariant> LMPropertyListFromFile(const QString& path, QString* error) {
    QFile file(path);
    QString reason;
    std::optional<QVariant> value = readAndParse(file, reason);
    if (!value && error)
        *error = LMFormat(QStringLiteral("%@: %@"), {path, reason});
    return value;
}
