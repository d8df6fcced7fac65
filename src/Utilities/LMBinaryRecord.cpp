// SPDX-License-Identifier: MIT
#include "Utilities/LMBinaryRecord.h"

#include "Utilities/LMPropertyListPointers.h"

#include <algorithm>

namespace {

constexpr qsizetype largestArchive = 4096;
constexpr quint64 longestShortName = 14;

/// Reads the objects of a binary property list, version 00. The library that writes it gives up the
/// whole process on some damaged ones, and unfolds containers that refer to each other many times.
class Reader {
public:
    explicit Reader(const QByteArray& data) : m_data(data) {}

    std::optional<LMBinaryRecord> record();

private:
    /// The trailer ends the archive: 5 unused bytes, sort version, the widths of an offset and of a
    /// reference, then, 8 bytes each, the number of objects, the top object, the offset table's
    /// place.
    static constexpr qsizetype trailerSize = 32;

    /// Nothing when it is not all there; big-endian.
    std::optional<quint64> number(quint64 position, quint64 width) const;
    /// The object's place and the high and low half of its first byte, which are kind and size.
    struct Object {
        quint64 position;
        quint64 kind;
        quint64 size;
    };
    std::optional<Object> object(std::optional<quint64> reference) const;
    std::optional<QString> name(std::optional<quint64> reference) const;
    std::optional<quint64> wholeNumber(std::optional<quint64> reference) const;

    const QByteArray& m_data;
    quint64 m_offsetWidth = 0, m_referenceWidth = 0, m_objects = 0, m_table = 0;
};

std::optional<quint64> Reader::number(quint64 position, quint64 width) const {
    const auto size = static_cast<quint64>(m_data.size());
    if (width == 0 || width > 8 || position > size || width > size - position)
        return std::nullopt;
    quint64 value = 0;
    for (const char byte :
         m_data.sliced(static_cast<qsizetype>(position), static_cast<qsizetype>(width)))
        value = value << 8 | static_cast<quint8>(byte);
    return value;
}

std::optional<Reader::Object> Reader::object(std::optional<quint64> reference) const {
    if (!reference || *reference >= m_objects)
        return std::nullopt;
    const auto position = number(m_table + *reference * m_offsetWidth, m_offsetWidth);
    const auto marker = position ? number(*position, 1) : std::nullopt;
    return marker ? std::optional(Object{*position + 1, *marker >> 4, *marker & 0xf})
                  : std::nullopt;
}

std::optional<QString> Reader::name(std::optional<quint64> reference) const {
    const auto text = object(reference);
    if (!text || text->kind != 0x5 || text->size > longestShortName)
        return std::nullopt;
    return QString::fromLatin1(
        m_data.mid(static_cast<qsizetype>(text->position), static_cast<qsizetype>(text->size)));
}

std::optional<quint64> Reader::wholeNumber(std::optional<quint64> reference) const {
    const auto value = object(reference);
    if (!value || value->kind != 0x1 || value->size > 3)
        return std::nullopt;
    return number(value->position, quint64(1) << value->size);
}

std::optional<LMBinaryRecord> Reader::record() {
    if (!m_data.startsWith("bplist00") || m_data.size() < trailerSize ||
        m_data.size() > largestArchive)
        return std::nullopt;
    const auto trailer = static_cast<quint64>(m_data.size() - trailerSize);
    m_offsetWidth = number(trailer + 6, 1).value_or(0);
    m_referenceWidth = number(trailer + 7, 1).value_or(0);
    m_objects = std::min<quint64>(number(trailer + 8, 8).value_or(0), largestArchive);
    m_table = std::min<quint64>(number(trailer + 24, 8).value_or(0), largestArchive);
    const auto dictionary = object(number(trailer + 16, 8));
    if (!dictionary || dictionary->kind != 0xd || dictionary->size > longestShortName)
        return std::nullopt;
    LMBinaryRecord record;
    for (quint64 field = 0; field < dictionary->size; ++field) {
        const auto reference = [&](quint64 index) {
            return number(dictionary->position + index * m_referenceWidth, m_referenceWidth);
        };
        const auto key = name(reference(field));
        const auto value = wholeNumber(reference(dictionary->size + field));
        if (!key || !value)
            return std::nullopt;
        record.insert(*key, *value);
    }
    return record;
}

} // namespace

QByteArray LMArchivedRecord(const LMBinaryRecord& record) {
    const LMPropertyListNode dictionary(plist_new_dict());
    for (auto field = record.constBegin(); field != record.constEnd(); ++field)
        plist_dict_set_item(dictionary.get(), field.key().toUtf8().constData(),
                            plist_new_uint(field.value()));
    char* bytes = nullptr;
    std::uint32_t length = 0;
    plist_to_bin(dictionary.get(), &bytes, &length);
    const LMPropertyListAllocation<char> owner(bytes);
    return {bytes, static_cast<qsizetype>(length)};
}

std::optional<LMBinaryRecord> LMUnarchivedRecord(const QByteArray& data) {
    return Reader(data).record();
}
