// SPDX-License-Identifier: MIT
#include "Platform/X11/LMX11Atoms.h"
#include "Platform/X11/LMX11Properties.h"
#include "Platform/X11/LMX11WindowAttributes.h"
#include "unit/Utilities/Support.h"

#include <gtest/gtest.h>

#include <cstring>

TEST(LMX11WindowAttributes, ASystemWindowIsKnownByItsPurpose) {
    LMX11Window window;
    window.structure.type = LMX11WindowType::Normal;
    window.states.isAbove = window.states.skipsTaskbar = true;
    const auto subrole = LMX11WindowAttribute(window, {}, LMAttribute::Subrole);
    EXPECT_EQ(std::get<QString>(subrole.value()), u"AXSystemFloatingWindow"_qs);
}

TEST(LMX11WindowAttributes, ChildRolesAreButtonsAndAConstantRole) {
    LMX11WindowStructure structure;
    structure.offersMinimize = false;
    const QStringList buttons{QStringLiteral("AXCloseButton"), QStringLiteral("AXZoomButton")};
    const QStringList constant{u"browser"_qs, u"toolbox-window"_qs, u"Preferences dialog"_qs};
    const QStringList changing{u"gedit-window-1526632342-4512-0-1"_qs, u"MainWindow#1"_qs,
                               u"word\nbreak"_qs, QString(65, u'a')};
    for (const QString& role : constant + changing) {
        structure.role = role;
        const bool isConstant = constant.contains(role);
        EXPECT_EQ(LMX11ChildRoles(structure), isConstant ? buttons + QStringList(role) : buttons)
            << role.toStdString();
    }
}

TEST(LMX11Text, DecodesWhatClientsWrite) {
    LMX11Atoms atoms;
    atoms.utf8String = 300;
    atoms.compoundText = 301;
    const std::tuple<xcb_atom_t, QByteArray, QString> rows[] = {
        {300, "gr\xc3\xbcn", u"gr\u00fcn"_qs},
        {300, QByteArray("a\0b\nc\0", 6), QStringView(u"a\0b\nc\0", 6).toString()},
        {300, "a\xff\xc3(z", u"a\ufffd\ufffd(z"_qs},
        {XCB_ATOM_STRING, "gr\xfcn", u"gr\u00fcn"_qs},
        {301, "gr\xfcn", u"gr\u00fcn"_qs},
        {301, "\x1b-L\xdf\xe0 x", u"\u043f\u0440 x"_qs},
        {301, "a \x1b%G\xf0\x9f\x98\x80\x1b%@ b", u"a \U0001F600 b"_qs},
        {301, "a\x1b%G\xc4\x80", u"a\u0100"_qs}, // The end is missing.
        {XCB_ATOM_CARDINAL, "text", QString()},
    };
    for (const auto& [type, bytes, text] : rows) {
        const auto length = size_t(bytes.size());
        auto* reply = static_cast<xcb_get_property_reply_t*>(
            std::calloc(1, sizeof(xcb_get_property_reply_t) + length));
        reply->format = 8;
        reply->type = type;
        reply->value_len = uint32_t(length);
        std::memcpy(reply + 1, bytes.constData(), length);
        const LMX11Property property{LMXcbReply<xcb_get_property_reply_t>(reply)};
        const QString decoded = LMX11Text(property, atoms);
        EXPECT_EQ(decoded, text) << bytes.toPercentEncoding().constData();
        EXPECT_EQ(decoded.isNull(), text.isNull());
    }
}
