// SPDX-License-Identifier: MIT
#include "Platform/LMEdid.h"

#include <QList>

#include <gtest/gtest.h>

namespace {

QByteArray textDescriptor(char tag, const QByteArray& text) {
    return QByteArray("\0\0\0", 3) + tag + '\0' + text.leftJustified(13, ' ', true);
}

/// The base block of a monitor with the four descriptors; the serial number is little-endian.
QByteArray block(const QByteArray& serial, const QList<QByteArray>& descriptors) {
    QByteArray blob = QByteArray::fromHex("00ffffffffffff0010acb841" + serial);
    blob += QByteArray(38, '\x01');
    for (const QByteArray& descriptor : descriptors)
        blob += descriptor.leftJustified(18, '\0', true);
    return blob.leftJustified(128, '\0'); // The checksum is not looked at: many are wrong.
}

const QByteArray timing = QByteArray::fromHex("023a801871382d40582c4500");
const QByteArray good =
    block("4c353130", {timing, textDescriptor('\xff', "XKV0P9C334FS\n"),
                       textDescriptor('\xfc', "DELL U2415\n"), textDescriptor('\xfd', "8LSQ\x11")});

TEST(LMEdid, ReadsWhatTheBlobHolds) {
    const auto edid = [](quint32 serial, const char* name) {
        return LMEdid{4268, 0x41b8, serial, QString::fromLatin1(name)};
    };
    const LMEdid whole = edid(808531276, "DELL U2415");
    const auto serial = [](const QByteArray& text) {
        return block("00000000", {textDescriptor('\xff', text)});
    };
    const auto name = [](const QByteArray& text) {
        return block("01000000", {textDescriptor('\xfc', "\n"), textDescriptor('\xfc', text)});
    };
    const std::tuple<const char*, QByteArray, LMEdid> rows[] = {
        {"whole", good, whole},
        {"cut after the descriptors", good.left(126), whole},
        {"cut inside the name", good.left(100), edid(808531276, "")},
        {"cut inside the serial number", good.left(15), edid(0, "")},
        {"broken header", QByteArray(good).replace(3, 1, "U"), {}},
        {"empty", {}, {}},
        {"serial as text", serial("0012345\n"), edid(12345, "")},
        {"serial too long", serial("9999999999999"), edid(0, "")},
        {"name of full length", name("Thirteen char"), edid(1, "Thirteen char")},
        {"name with rubbish", name("\1A\x80\x42\x1b[0m\n"), edid(1, "AB[0m")},
    };
    for (const auto& [what, blob, expected] : rows)
        EXPECT_EQ(LMEdidFromData(blob), expected) << what;
}

} // namespace
