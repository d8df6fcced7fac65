// SPDX-License-Identifier: MIT
#include "Platform/X11/LMX11Atoms.h"
#include "Platform/X11/LMX11Properties.h"
#include "Platform/X11/LMX11WindowAttributes.h"
#include "unit/Utilities/Support.h"

#include <gtest/gtest.h>

#include <cstring>

namespace {

constexpr QMargins decorations(5, 29, 5, 6);
constexpr QMargins shadow(26, 23, 26, 29);

QString text(const LMPlatformResult<LMAttributeValue>& value) {
    return value ? std::get<QString>(*value) : QString();
}

} // namespace

// What a request sets must be what the next reading gives, whatever surrounds the window.
TEST(LMX11Geometry, RequestsLeadToTheFrameAskedFor) {
    const QMargins none;
    const struct {
        QMargins decorations, shadow;
        QRect frame;
    } rows[] = {
        {none, none, QRect(100, 200, 640, 480)},
        {decorations, none, QRect(95, 171, 650, 515)},
        {none, shadow, QRect(126, 223, 588, 428)},
        {decorations, shadow,
         QRect(95, 171, 650, 515)}, // The client only believes it has a shadow.
    };
    for (const auto& row : rows) {
        const LMX11Geometry geometry{QRect(100, 200, 640, 480), row.decorations, row.shadow};
        EXPECT_EQ(geometry.frame(), row.frame);
        EXPECT_EQ(geometry.clientSize(row.frame.size()), geometry.client.size());
        // North-west gravity: the request names the corner of the client with its decorations.
        const QPoint place = geometry.requestOrigin(QPoint(-40, 7));
        LMX11Geometry moved = geometry;
        moved.client.moveTopLeft(place + QPoint(row.decorations.left(), row.decorations.top()));
        EXPECT_EQ(moved.frame().topLeft(), QPoint(-40, 7));
    }
}

TEST(LMX11WindowAttributes, SubroleFollowsTypeAndPurpose) {
    const struct {
        LMX11WindowType type;
        bool isAbove, skipsTaskbar;
        const char* subrole;
    } rows[] = {
        {LMX11WindowType::Normal, false, false, "AXStandardWindow"},
        {LMX11WindowType::Normal, true, false, "AXStandardWindow"},
        {LMX11WindowType::Normal, true, true, "AXSystemFloatingWindow"},
        {LMX11WindowType::Dialog, true, true, "AXDialog"},
        {LMX11WindowType::Utility, false, false, "AXFloatingWindow"},
        {LMX11WindowType::Toolbar, false, true, "AXFloatingWindow"},
        {LMX11WindowType::Unknown, false, false, ""},
    };
    for (const auto& row : rows) {
        LMX11Window window;
        window.structure.type = row.type;
        window.states.isAbove = row.isAbove;
        window.states.skipsTaskbar = row.skipsTaskbar;
        const QString subrole = text(LMX11WindowAttribute(window, {}, LMAttribute::Subrole));
        EXPECT_FALSE(subrole.isNull());
        EXPECT_EQ(subrole.toStdString(), row.subrole);
    }
}

TEST(LMX11WindowAttributes, ChildRolesAreButtonsAndAConstantRole) {
    LMX11WindowStructure structure;
    structure.offersMinimize = false;
    const QStringList buttons{QStringLiteral("AXCloseButton"), QStringLiteral("AXZoomButton")};
    const struct {
        const char* role;
        bool isConstant;
    } rows[] = {
        {"browser", true},
        {"toolbox-window", true},
        {"Preferences dialog", true},
        {"", false},
        {"gedit-window-1526632342-4512-0-1", false},
        {"MainWindow#1", false},
        {"0x55d0c8a4f2b0", false},
        {"2f1c9a4e-7b0d-4c55-9a53-0d6a1f7f9e11", false},
        {"word\nbreak", false},
    };
    for (const auto& row : rows) {
        structure.role = QString::fromLatin1(row.role);
        EXPECT_EQ(LMX11ChildRoles(structure),
                  row.isConstant ? buttons + QStringList(structure.role) : buttons)
            << row.role;
    }
    structure.role = QString(65, QLatin1Char('a'));
    EXPECT_EQ(LMX11ChildRoles(structure), buttons);
}

TEST(LMX11Text, DecodesWhatClientsWrite) {
    LMX11Atoms atoms;
    atoms.utf8String = 300;
    atoms.compoundText = 301;
    const struct {
        xcb_atom_t type;
        QByteArray bytes;
        QString text;
    } rows[] = {
        {300, "gr\xc3\xbcn", u"gr\u00fcn"_qs},
        {300, QByteArray("a\0b\nc\0", 6), QStringView(u"a\0b\nc\0", 6).toString()},
        {300, "a\xff\xc3(z", u"a\ufffd\ufffd(z"_qs},
        {300, "", u""_qs},
        {XCB_ATOM_STRING, "gr\xfcn", u"gr\u00fcn"_qs},
        {301, "gr\xfcn", u"gr\u00fcn"_qs},
        {301, "\x1b-L\xdf\xe0 x", u"\u043f\u0440 x"_qs},
        {301, "a \x1b%G\xf0\x9f\x98\x80\x1b%@ b", u"a \U0001F600 b"_qs},
        {301, "a\x1b%G\xc4\x80", u"a\u0100"_qs}, // The end is missing.
        {XCB_ATOM_CARDINAL, "text", QString()},
        {XCB_ATOM_NONE, "", QString()},
    };
    for (const auto& row : rows) {
        const size_t size = sizeof(xcb_get_property_reply_t) + size_t(row.bytes.size());
        auto* reply = static_cast<xcb_get_property_reply_t*>(std::calloc(1, size));
        reply->format = 8;
        reply->type = row.type;
        reply->value_len = uint32_t(row.bytes.size());
        std::memcpy(reply + 1, row.bytes.constData(), size_t(row.bytes.size()));
        const LMX11Property property{LMXcbReply<xcb_get_property_reply_t>(reply)};
        const QString decoded = LMX11Text(property, atoms);
        EXPECT_EQ(decoded, row.text) << row.bytes.toPercentEncoding().constData();
        EXPECT_EQ(decoded.isNull(), row.text.isNull());
    }
}
