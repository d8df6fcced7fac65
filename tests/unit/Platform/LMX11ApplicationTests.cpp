// SPDX-License-Identifier: MIT
// How windows become applications, without an X server.
#include "Platform/X11/LMX11ApplicationTable.h"
#include "Platform/X11/LMX11Settings.h"
#include "Platform/X11/LMX11WindowIcon.h"
#include "Platform/X11/LMX11WindowProcess.h"
#include "unit/Utilities/Support.h"

#include <vector>

namespace {

LMX11ApplicationWindow window(xcb_window_t number, const char* identifier, qint64 process,
                              quint64 startTime, bool isListed = true) {
    const QString name = QLatin1String(identifier);
    return {number, name, name, process, startTime, isListed};
}

TEST(LMX11ApplicationTests, GathersWindowsOfManyProcesses) {
    LMX11ApplicationTable table;
    // Process 20 is older than 10: process identifiers come round again.
    table.update({window(1, "b", 30, 300), window(2, "a", 10, 200), window(3, "a", 20, 100),
                  window(4, "a", 20, 100, false)},
                 {4, 3, 1, 2});
    ASSERT_EQ(table.applications().size(), 2);
    EXPECT_EQ(table.applications().at(1), (LMX11Application{u"a"_qs, u"a"_qs, 20, {3, 2}, {4}}));
    EXPECT_EQ(table.application(10), &table.applications().at(1)) << "by its younger process";

    // The oldest process ends; what was handed out still leads to the application.
    table.update({window(2, "a", 10, 200), window(1, "b", 30, 300)}, {1, 2});
    EXPECT_EQ(table.applications().at(0).bundleIdentifier, u"b"_qs) << "launched first";
    EXPECT_EQ(table.applications().at(1).processIdentifier, 10);
    EXPECT_EQ(table.application(20), table.applicationWithIdentifier(u"a"_qs));
    table.update({window(5, "b", 30, 0), window(6, "b", 40, 5)}, {5, 6});
    EXPECT_EQ(table.application(20), nullptr);
    EXPECT_EQ(table.applications().at(0).processIdentifier, 40)
        << "an unknown start is no early one";
}

TEST(LMX11ApplicationTests, FindsTheProcessOfAWindow) {
    const auto read = [](qint64 process) -> std::optional<LMProcessInformation> {
        if (process > 100) // Ended, or another user's.
            return std::nullopt;
        LMProcessInformation information;
        information.processIdentifier = process;
        information.executable = process == 66 ? u"/usr/bin/ssh"_qs : u"/usr/bin/prog"_qs;
        return information;
    };
    const struct {
        const char* what;
        qint64 ofServer;
        qint64 claimed;
        const char* machine;
        qint64 expected; ///< 0 for that of the client leader.
        bool isReadable;
    } rows[] = {
        {"the server knows best", 10, 20, "here", 10, true},
        {"container with a name of its own", 10, 2, "elsewhere", 10, true},
        {"the server has no such extension", 0, 20, "here", 20, true},
        {"full name of the computer", 0, 20, "HERE.example.org", 20, true},
        {"claim from another computer", 0, 20, "there", 0, false},
        {"claim without a computer", 0, 20, "", 0, false},
        {"the process that connected has ended", 500, 20, "here", 20, true},
        {"both have ended", 500, 600, "here", 500, false},
        {"forwarded", 66, 20, "there", 0, false},
        {"forwarding to oneself", 66, 20, "here", 20, true},
        {"nothing known", 0, 0, "", 0, false},
    };
    const qint64 leader = LMX11ApplicationTable::processOfClientLeader(7);
    for (const auto& row : rows) {
        LMX11ApplicationFacts facts;
        facts.serverProcess = row.ofServer;
        facts.claimedProcess = row.claimed;
        facts.clientMachine = QLatin1String(row.machine);
        facts.leader = 7;
        const LMX11WindowProcess process = LMX11ProcessOfWindow(facts, u"here"_qs, read);
        EXPECT_EQ(process.identifier, row.expected != 0 ? row.expected : leader) << row.what;
        EXPECT_EQ(process.information.has_value(), row.isReadable) << row.what;
    }
}

TEST(LMX11ApplicationTests, PicksTheBestOfAWindowsIcons) {
    std::vector<uint32_t> icons;
    const auto add = [&icons](uint32_t width, uint32_t height, uint32_t pixel) {
        icons.insert(icons.end(), {width, height});
        icons.insert(icons.end(), size_t(width) * height, pixel);
    };
    add(16, 16, 0xff000010);
    add(64, 48, 0xff000040);
    add(32, 32, 0xff000020);
    const std::pair<int, QRgb> rows[] = {{8, 0xff000010}, {17, 0xff000020}, {256, 0xff000040}};
    for (const auto& [size, pixel] : rows)
        EXPECT_EQ(LMX11BestIcon(icons, size).pixel(0, 0), pixel) << size;
    EXPECT_EQ(LMX11BestIcon(icons, 64).size(), QSize(64, 48));

    // clang-format off
    const std::vector<uint32_t> malformed[] = {{}, {16}, {16, 16}, {16, 16, 1}, {0, 0, 1}, {0xffffffff, 0xffffffff, 1}, {0x10000, 0x10000, 1}};
    // clang-format on
    for (const auto& words : malformed)
        EXPECT_TRUE(LMX11BestIcon(words, 16).isNull());
    icons.resize(icons.size() - 1);
    EXPECT_EQ(LMX11BestIcon(icons, 32).size(), QSize(64, 48)) << "the last one is cut off";
}

TEST(LMX11ApplicationTests, ReadsSettingsOfTheSession) {
    const QByteArray integer("\0\0\3\0abc\0\0\0\0\0\1\0\0\0", 16);
    const QByteArray color("\2\0\1\0c\0\0\0\0\0\0\0rrggbbaa", 20);
    const QByteArray text("\1\0\4\0Name\0\0\0\0\5\0\0\0Value\0\0\0", 24);
    const QByteArray all = QByteArray("\0\0\0\0\1\0\0\0\3\0\0\0", 12) + integer + color + text;
    EXPECT_EQ(LMX11StringSettingInBytes(all, u"Name"_qs), u"Value"_qs);
    EXPECT_TRUE(LMX11StringSettingInBytes(all, u"abc"_qs).isNull());
    for (qsizetype length = 0; length < all.size() - 3; ++length) // The padding may be missing.
        EXPECT_TRUE(LMX11StringSettingInBytes(all.first(length), u"Name"_qs).isNull()) << length;

    const QByteArray bigEndian("\1\0\0\0\0\0\0\1\0\0\0\1\1\0\0\4Name\0\0\0\0\0\0\0\2ok\0\0", 32);
    EXPECT_EQ(LMX11StringSettingInBytes(bigEndian, u"Name"_qs), u"ok"_qs);
}

} // namespace
