// SPDX-License-Identifier: MIT
#include "Utilities/LMBinaryRecord.h"

#include <plist/plist.h>

#include <cstdlib>
#include <memory>

namespace {

constexpr qsizetype largestArchive = 4096;
constexpr quint64 mostObjects = 256;
// The trailer ends the archive: 5 unused bytes, sort version, the widths of an offset and of a
// reference, then, 8 bytes each, the number of objects, the top object, the offset table's place.
constexpr qsizetype trailerSize = 32;

struct PropertyListDeleter {
    void operator()(void* node) const { plist_free(node); }
};
struct AllocationDeleter {
    void operator()(void* allocation) const { std::free(allocation); }
};
using PropertyListPointer = std::unique_ptr<void, PropertyListDeleter>;
template <class T>
using Allocation = std::unique_ptr<T, AllocationDeleter>;

quint8 byteAt(const QByteArray& data, qsizetype position) {
    return static_cast<quint8>(data[position]);
}

quint64 numberAt(const QByteArray& data, qsizetype position, qsizetype width) {
    quint64 number = 0;
    for (qsizetype index = 0; index < width; ++index)
        number = number << 8 | byteAt(data, position + index);
    return number;
}

bool isContainer(quint8 marker) {
    const int kind = marker >> 4;
    return kind >= 0xa && kind <= 0xd; // Array, (ordered) set, dictionary.
}

/// The reader copies an object wherever it is referred to: a few containers that refer to each
/// other many times would fill the memory.
bool hasOneContainer(const QByteArray& data) {
    if (!data.startsWith("bplist00") || data.size() < trailerSize + 8)
        return false;
    const qsizetype trailer = data.size() - trailerSize;
    const auto limit = static_cast<quint64>(trailer);
    const quint8 width = byteAt(data, trailer + 6);
    const quint64 objects = numberAt(data, trailer + 8, 8);
    const quint64 table = numberAt(data, trailer + 24, 8);
    if (width == 0 || width > 8 || objects > mostObjects || table > limit ||
        objects * width > limit - table)
        return false;
    int containers = 0;
    for (quint64 object = 0; object < objects; ++object) {
        const auto entry = static_cast<qsizetype>(table + object * width);
        const quint64 offset = numberAt(data, entry, width);
        if (offset >= limit)
            return false;
        if (isContainer(byteAt(data, static_cast<qsizetype>(offset))))
            ++containers;
    }
    return containers == 1;
}

} // namespace

QByteArray LMArchivedRecord(const LMBinaryRecord& record) {
    const PropertyListPointer dictionary(plist_new_dict());
    for (auto field = record.constBegin(); field != record.constEnd(); ++field)
        plist_dict_set_item(dictionary.get(), field.key().toUtf8().constData(),
                            plist_new_uint(field.value()));
    char* bytes = nullptr;
    std::uint32_t length = 0;
    plist_to_bin(dictionary.get(), &bytes, &length);
    const Allocation<char> owner(bytes);
    return {bytes, static_cast<qsizetype>(length)};
}

std::optional<LMBinaryRecord> LMUnarchivedRecord(const QByteArray& data) {
    if (data.size() > largestArchive || !hasOneContainer(data))
        return std::nullopt;
    plist_t root = nullptr;
    plist_from_bin(data.constData(), static_cast<std::uint32_t>(data.size()), &root);
    const PropertyListPointer owner(root);
    if (!root || plist_get_node_type(root) != PLIST_DICT)
        return std::nullopt;
    plist_dict_iter iterator = nullptr;
    plist_dict_new_iter(root, &iterator);
    const Allocation<void> iteratorOwner(iterator);
    LMBinaryRecord record;
    for (;;) {
        char* name = nullptr;
        plist_t item = nullptr;
        plist_dict_next_item(root, iterator, &name, &item);
        const Allocation<char> nameOwner(name);
        if (!item)
            return record;
        if (plist_get_node_type(item) != PLIST_UINT)
            return std::nullopt;
        std::uint64_t number = 0;
        plist_get_uint_val(item, &number);
        record.insert(QString::fromUtf8(name), number);
    }
}
