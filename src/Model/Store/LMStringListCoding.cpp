// SPDX-License-Identifier: MIT
#include "Model/Store/LMStringListCoding.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>

namespace {

void appendQuoted(QByteArray& json, const QString& text) {
    static constexpr char hexDigits[] = "0123456789abcdef";
    json += '"';
    for (const char c : text.toUtf8()) {
        const auto byte = static_cast<unsigned char>(c);
        if (c == '"' || c == '\\') {
            json += '\\';
            json += c;
        } else if (byte < 0x20) {
            json += "\\u00";
            json += hexDigits[byte >> 4];
            json += hexDigits[byte & 15];
        } else {
            json += c;
        }
    }
    json += '"';
}

/// Reads what LMJSONFromStringList writes when nothing had to be escaped: nearly every list there
/// is. A store of ten thousand windows is opened in a fraction of the time a full parser takes.
class PlainListReader {
public:
    explicit PlainListReader(QByteArrayView json) : m_at(json.begin()), m_end(json.end()) {}

    std::optional<QStringList> read() {
        QStringList list;
        if (!take('['))
            return std::nullopt;
        if (take(']'))
            return isAtEnd() ? std::optional(list) : std::nullopt;
        do {
            if (!appendString(list))
                return std::nullopt;
        } while (take(','));
        return take(']') && isAtEnd() ? std::optional(list) : std::nullopt;
    }

private:
    bool isAtEnd() const { return m_at == m_end; }

    bool take(char expected) {
        if (isAtEnd() || *m_at != expected)
            return false;
        ++m_at;
        return true;
    }

    bool appendString(QStringList& list) {
        if (!take('"'))
            return false;
        const auto* stop = std::find_if(m_at, m_end, [](char c) {
            return c == '"' || c == '\\' || static_cast<unsigned char>(c) < 0x20;
        });
        list.append(QString::fromUtf8(m_at, stop - m_at));
        m_at = stop;
        return take('"');
    }

    const char* m_at;
    const char* m_end;
};

std::optional<QStringList> listFromDocument(QByteArrayView json) {
    const QJsonDocument document = QJsonDocument::fromJson(json.toByteArray());
    if (!document.isArray())
        return std::nullopt;
    QStringList list;
    const QJsonArray array = document.array();
    for (const QJsonValue value : array) {
        if (!value.isString())
            return std::nullopt;
        list.append(value.toString());
    }
    return list;
}

} // namespace

QByteArray LMJSONFromStringList(const QStringList& list) {
    QByteArray json("[");
    for (const QString& text : list) {
        if (json.size() > 1)
            json += ',';
        appendQuoted(json, text);
    }
    json += ']';
    return json;
}

std::optional<QStringList> LMStringListFromJSON(QByteArrayView json) {
    if (auto list = PlainListReader(json).read())
        return list;
    return listFromDocument(json);
}
