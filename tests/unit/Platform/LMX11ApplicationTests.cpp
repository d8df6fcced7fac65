// SPDX-License-Identifier: MIT
// How windows become applications, without an X server.
#include "Platform/LMAppearance.h"
#include "Platform/X11/LMX11ApplicationTable.h"
#include "Platform/X11/LMX11Settings.h"
#include "Platform/X11/LMX11WindowIcon.h"
#include "Platform/X11/LMX11WindowProcess.h"
#include "unit/Utilities/Support.h"

#include <vector>

namespace {

LMX11ApplicationWindow window(xcb_window_t number, const QString& name, qint64 process,
                              quint64 startTime, bool isListed = true) {
    return {number, name, name, process, startTime, isListed};
}

TEST(LMX11ApplicationTests, GathersWindowsOfManyProcesses) {
    LMX11ApplicationTable table;
    // Process 20 is older than 10: process identifiers come round again.
    table.update({window(1, u"b"_qs, 30, 300), window(2, u"a"_qs, 10, 200),
                  window(3, u"a"_qs, 20, 100), window(4, u"a"_qs, 20, 100, false)},
                 {4, 3, 1, 2});
    ASSERT_EQ(table.applications().size(), 2);
    EXPECT_EQ(table.applications().at(1), (LMX11Application{u"a"_qs, u"a"_qs, 20, {3, 2}, {4}}));
    EXPECT_EQ(table.application(10), &table.applications().at(1)) << "by its younger process";

    // The oldest process ends; what was handed out still leads to the application.
    table.update({window(2, u"a"_qs, 10, 200), window(1, u"b"_qs, 30, 300)}, {1, 2});
    EXPECT_EQ(table.applications().at(0).bundleIdentifier, u"b"_qs) << "launched first";
    EXPECT_EQ(table.applications().at(1).processIdentifier, 10);
    EXPECT_EQ(table.application(20), table.applicationWithIdentifier(u"a"_qs));
    table.update({window(5, u"b"_qs, 30, 0), window(6, u"b"_qs, 40, 5)}, {5, 6});
    EXPECT_EQ(table.application(20), nullptr);
    EXPECT_EQ(table.applications().at(0).processIdentifier, 40)
        << "an unknown start is no early one";
}

TEST(LMX11ApplicationTests, FindsTheProcessOfAWindow) {
    const auto read = [](qint64 process) -> std::optional<LMProcessInformation> {
        if (process > 100) // Ended, or another user's.
            return std::nullopt;
        LMProcessInformation information;
        information.executable = process == 66 ? u"/usr/bin/ssh"_qs : u"/usr/bin/prog"_qs;
        return information;
    };
    const qint64 leader = LMX11ApplicationTable::processOfClientLeader(7);
    // What the server knows, what the window claims, and the computer it claims it of.
    const std::tuple<const char*, qint64, qint64, const char*, qint64, bool> rows[] = {
        {"container with a name of its own", 10, 2, "elsewhere", 10, true},
        {"the server has no such extension", 0, 20, "here", 20, true},
        {"full name of the computer", 0, 20, "HERE.example.org", 20, true},
        {"claim from another computer", 0, 20, "there", leader, false},
        {"the process that connected has ended", 500, 20, "here", 20, true},
        {"both have ended", 500, 600, "here", 500, false},
        {"forwarded", 66, 20, "there", leader, false},
        {"nothing known", 0, 0, "", leader, false},
    };
    for (const auto& [what, ofServer, claimed, machine, expected, isReadable] : rows) {
        const auto process = LMX11ProcessOfWindow(
            {{}, ofServer, claimed, QLatin1String(machine), 7}, u"here"_qs, read);
        EXPECT_EQ(process.identifier, expected) << what;
        EXPECT_EQ(process.information.has_value(), isReadable) << what;
    }
}

TEST(LMX11ApplicationTests, PicksTheBestOfAWindowsIcons) {
    std::vector<uint32_t> icons;
    for (const auto& [width, height] : {std::pair(32u, 32u), {64u, 48u}, {16u, 16u}}) {
        icons.insert(icons.end(), {width, height});
        icons.insert(icons.end(), size_t(width) * height, width);
    }
    for (const auto& [wanted, width] : {std::pair(8, 16), {17, 32}, {256, 64}})
        EXPECT_EQ(LMX11BestIcon(icons, wanted).pixel(0, 0), QRgb(width)) << wanted;
    icons.pop_back();
    EXPECT_EQ(LMX11BestIcon(icons, 16).size(), QSize(32, 32)) << "the last one is cut off";
    for (const std::vector<uint32_t>& malformed : std::initializer_list<std::vector<uint32_t>>{
             {}, {16}, {16, 16, 1}, {0, 0, 1}, {~0u, ~0u, 1}, {0x10000, 0x10000, 1}})
        EXPECT_TRUE(LMX11BestIcon(malformed, 16).isNull());
}

TEST(LMX11ApplicationTests, ReadsSettingsOfTheSession) {
    const QByteArray integer("\0\0\3\0abc\0\0\0\0\0\1\0\0\0", 16);
    const QByteArray color("\2\0\1\0c\0\0\0\0\0\0\0rrggbbaa", 20);
    const QByteArray text("\1\0\4\0Name\0\0\0\0\5\0\0\0Value\0\0\0", 24);
    const QByteArray all = QByteArray("\0\0\0\0\1\0\0\0\3\0\0\0", 12) + integer + color + text;
    EXPECT_EQ(LMX11StringSettingInBytes(all, u"Name"_qs), u"Value"_qs);
    for (qsizetype length = 0; length < all.size() - 3; ++length) // The padding may be missing.
        EXPECT_TRUE(LMX11StringSettingInBytes(all.first(length), u"Name"_qs).isNull()) << length;

    const QByteArray bigEndian("\1\0\0\0\0\0\0\1\0\0\0\1\1\0\0\4Name\0\0\0\0\0\0\0\2ok\0\0", 32);
    EXPECT_EQ(LMX11StringSettingInBytes(bigEndian, u"Name"_qs), u"ok"_qs);
}

} // namespace

TEST(Appearance, IsReadFromThemeAndFontNames) {
    const std::tuple<QString, QString, LMAppearance> rows[] = {
        {u"Adwaita-dark"_qs, u"Noto Sans Medium 10"_qs, {true, u"Noto Sans"_qs, 10}},
        {u"Greybird"_qs, u"Cantarell, 10.5"_qs, {false, u"Cantarell"_qs, 10.5}},
        {u"Darkroom"_qs, u"Sans 999"_qs, {}},
        {u"HighContrastBlack Dark"_qs, {}, {true, {}, 0}},
    };
    for (const auto& [theme, font, expected] : rows)
        EXPECT_EQ(LMAppearanceFromTheme(theme, font), expected) << theme.toStdString();
}
