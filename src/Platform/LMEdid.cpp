// SPDX-License-Identifier: MIT
#include "Platform/LMEdid.h"

#include <QtEndian>

namespace {

constexpr qsizetype VendorOffset = 8;
constexpr qsizetype ModelOffset = 10;
constexpr qsizetype SerialOffset = 12;
constexpr qsizetype FirstDescriptorOffset = 54;
constexpr qsizetype DescriptorSize = 18;
constexpr qsizetype DescriptorTextOffset = 5;
constexpr int DescriptorCount = 4;
constexpr char ProductNameTag = '\xFC';
constexpr char SerialTextTag = '\xFF';

/// The bytes from offset on as a number; 0 when the blob ends before it is complete.
template <class T, T (*fromEndian)(const void*)>
T numberAt(const QByteArray& blob, qsizetype offset) {
    const bool isComplete = blob.size() >= offset + qsizetype(sizeof(T));
    return isComplete ? fromEndian(blob.constData() + offset) : T(0);
}

/// A display descriptor begins with three zeros (a timing never does), its tag and a zero.
bool isDescriptor(const QByteArray& bytes, char tag) {
    return bytes.size() == DescriptorSize && bytes[0] == 0 && bytes[1] == 0 && bytes[2] == 0 &&
           bytes[3] == tag;
}

/// Up to 13 characters, ended by a line feed and filled with spaces. Only printable ASCII is
/// defined; anything else is left out.
QString descriptorText(const QByteArray& bytes) {
    QString text;
    for (const char each : bytes.mid(DescriptorTextOffset)) {
        if (each == '\n')
            break;
        if (each >= ' ' && each <= '~')
            text += QLatin1Char(each);
    }
    return text.trimmed();
}

/// The text of the first descriptor with the tag that has any.
QString firstText(const QByteArray& blob, char tag) {
    for (int i = 0; i < DescriptorCount; ++i) {
        const QByteArray bytes =
            blob.mid(FirstDescriptorOffset + i * DescriptorSize, DescriptorSize);
        if (!isDescriptor(bytes, tag))
            continue;
        if (const QString text = descriptorText(bytes); !text.isEmpty())
            return text;
    }
    return QString();
}

} // namespace

LMEdid LMEdidFromData(const QByteArray& blob) {
    static const QByteArray header = QByteArray::fromHex("00ffffffffffff00");
    if (!blob.startsWith(header))
        return {};
    LMEdid edid;
    edid.vendorNumber = numberAt<quint16, qFromBigEndian<quint16>>(blob, VendorOffset);
    edid.modelNumber = numberAt<quint16, qFromLittleEndian<quint16>>(blob, ModelOffset);
    edid.serialNumber = numberAt<quint32, qFromLittleEndian<quint32>>(blob, SerialOffset);
    edid.productName = firstText(blob, ProductNameTag);
    if (edid.serialNumber == 0) // Many give it as text only; a text in digits is the same number.
        edid.serialNumber = firstText(blob, SerialTextTag).toUInt();
    return edid;
}
