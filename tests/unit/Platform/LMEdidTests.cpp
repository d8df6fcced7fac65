// SPDX-License-Identifier: MIT
#include "Platform/LMEdid.h"

#include <QList>

#include <gtest/gtest.h>

#include <random>

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
    blob = blob.leftJustified(127, '\0');
    char sum = 0;
    for (const char each : std::as_const(blob))
        sum = char(sum + each);
    return blob + char(-sum);
}

const QByteArray timing = QByteArray::fromHex("023a801871382d40582c4500");
const QByteArray good =
    block("4c353130", {timing, textDescriptor('\xff', "XKV0P9C334FS\n"),
                       textDescriptor('\xfc', "DELL U2415\n"), textDescriptor('\xfd', "8LSQ\x11")});

QByteArray with(QByteArray blob, qsizetype offset, char byte) {
    blob[offset] = byte;
    return blob;
}

TEST(LMEdid, ReadsWhatTheBlobHolds) {
    const LMEdid whole{4268, 0x41b8, 808531276, QStringLiteral("DELL U2415")};
    const LMEdid unnamed{4268, 0x41b8, 808531276, QString()};
    const auto edid = [](quint32 serial, const char* name) {
        return LMEdid{4268, 0x41b8, serial, QString::fromLatin1(name)};
    };
    const auto text = [](char tag, const QByteArray& content) {
        return block(tag == '\xff' ? "00000000" : "01000000", {textDescriptor(tag, content)});
    };
    const QByteArray two =
        block("01000000", {textDescriptor('\xfc', "\n"), textDescriptor('\xfc', "Second\n")});
    // clang-format off
    const struct {
        const char* what;
        QByteArray blob;
        LMEdid edid;
    } cases[] = {
        {"with an extension block", good + QByteArray(128, '\x02'), whole},
        {"wrong checksum", with(good, 127, 0x55), whole},
        {"cut after the descriptors", good.left(126), whole},
        {"cut inside the name", good.left(100), unnamed},
        {"cut inside the serial number", good.left(15), {4268, 0x41b8, 0, QString()}},
        {"cut inside the model number", good.left(11), {4268, 0, 0, QString()}},
        {"header only", good.left(8), {}},
        {"broken header", with(good, 3, 0x7f), {}},
        {"empty", {}, {}},
        {"serial as text", text('\xff', "0012345\n"), edid(12345, "")},
        {"serial as letters", text('\xff', "A1\n"), edid(0, "")},
        {"serial too long", text('\xff', "9999999999999"), edid(0, "")},
        {"name of full length", text('\xfc', "Thirteen char"), edid(1, "Thirteen char")},
        {"name without line feed", text('\xfc', "LG Ultra"), edid(1, "LG Ultra")},
        {"name with rubbish", text('\xfc', "\x01" "A\x80" "B\x1b[0m\n"), edid(1, "AB[0m")},
        {"a blank name before a real one", two, edid(1, "Second")},
    };
    // clang-format on
    for (const auto& row : cases)
        EXPECT_EQ(LMEdidFromData(row.blob), row.edid) << row.what;
}

/// Whatever arrives must neither be read past its end nor let unprintable text through.
TEST(LMEdid, SurvivesAnyBytes) {
    std::mt19937 random(4711);
    for (int round = 0; round < 20000; ++round) {
        QByteArray blob = round % 4 == 0 ? QByteArray(int(random() % 300), '\0') : good;
        const auto changes = random() % 40;
        for (auto change = 0UL; change < changes && !blob.isEmpty(); ++change)
            blob[int(random() % size_t(blob.size()))] = char(random());
        blob.truncate(int(random() % size_t(blob.size() + 1)));
        // A copy of exactly this size on the heap, for the address sanitizer to guard its end.
        const std::vector<char> exact(blob.begin(), blob.end());
        const auto edid = LMEdidFromData(QByteArray::fromRawData(exact.data(), blob.size()));
        EXPECT_LE(edid.vendorNumber, 0xffffU);
        EXPECT_LE(edid.productName.size(), 13);
        for (const QChar each : edid.productName)
            EXPECT_TRUE(each >= u' ' && each <= u'~');
    }
}

} // namespace
