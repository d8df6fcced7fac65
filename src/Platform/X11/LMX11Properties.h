// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/X11/LMXcbReply.h"

#include <QByteArray>
#include <QString>

#include <optional>
#include <span>

class LMX11Connection;
struct LMX11Atoms;

/// The value of a window property, or its absence.
class LMX11Property {
public:
    LMX11Property() = default;
    explicit LMX11Property(LMXcbReply<xcb_get_property_reply_t> reply)
        : m_reply(std::move(reply)) {}

    bool exists() const { return m_reply && m_reply->type != XCB_ATOM_NONE; }
    xcb_atom_t type() const { return m_reply ? m_reply->type : xcb_atom_t(XCB_ATOM_NONE); }
    /// How much of the value lies beyond what was asked for.
    uint32_t bytesMissing() const { return m_reply ? m_reply->bytes_after : 0; }
    uint32_t size() const;

    /// The items of a property of format 32; empty for other formats.
    std::span<const uint32_t> words() const;
    std::optional<uint32_t> firstWord() const;
    bool containsWord(uint32_t word) const;

    /// The content of a property of format 8; empty for other formats.
    QByteArrayView bytes() const;

    /// The reply itself, for the parsers of the ICCCM library.
    xcb_get_property_reply_t* reply() const { return m_reply.get(); }

private:
    LMXcbReply<xcb_get_property_reply_t> m_reply;
};

/// A question for a property: asked together with others, answered later.
class LMX11PropertyRequest {
public:
    /// Values of up to this many bytes arrive with the first answer.
    static constexpr uint32_t ordinarySize = 4096;
    /// What is longer is cut here: no client can make us read without end.
    static constexpr uint32_t maximumSize = 1u << 20;

    LMX11PropertyRequest() = default;
    LMX11PropertyRequest(LMX11Connection& connection, xcb_window_t window, xcb_atom_t property,
                         uint32_t maximumBytes = ordinarySize);

    LMX11Property receive(LMX11Connection& connection) const;

private:
    xcb_get_property_cookie_t m_cookie{};
};

/// The text of a property of type UTF8_STRING, STRING (Latin-1) or COMPOUND_TEXT. Whatever is
/// invalid is replaced; zero bytes and line breaks stay. Null when there is no text.
QString LMX11Text(const LMX11Property& property, const LMX11Atoms& atoms);
