// SPDX-License-Identifier: MIT
#include "Platform/X11/LMX11Properties.h"

#include "Platform/X11/LMX11Connection.h"

#include <algorithm>
#include <unicode/unistr.h>

namespace {

QString decodeSegment(QByteArrayView bytes) {
    const icu::UnicodeString text(bytes.data(), int32_t(bytes.size()), "COMPOUND_TEXT");
    return QString(reinterpret_cast<const QChar*>(text.getBuffer()), text.length());
}

/// ICU knows the classic character sets of compound text but not its UTF-8 segments, which is what
/// libraries of today write for everything outside Latin-1 (Compound Text Encoding 1.1, section 5).
QString decodeCompoundText(QByteArrayView bytes) {
    static constexpr QByteArrayView utf8Begin("\x1b%G");
    static constexpr QByteArrayView utf8End("\x1b%@");
    QString text;
    while (!bytes.isEmpty()) {
        qsizetype begin = bytes.indexOf(utf8Begin);
        if (begin < 0)
            begin = bytes.size();
        text += decodeSegment(bytes.first(begin));
        bytes = bytes.sliced(begin);
        if (bytes.isEmpty())
            break;
        bytes = bytes.sliced(utf8Begin.size());
        const qsizetype end = bytes.indexOf(utf8End);
        text += QString::fromUtf8(end < 0 ? bytes : bytes.first(end));
        bytes = end < 0 ? QByteArrayView() : bytes.sliced(end + utf8End.size());
    }
    return text;
}

} // namespace

uint32_t LMX11Property::size() const {
    return m_reply ? uint32_t(xcb_get_property_value_length(m_reply.get())) : 0;
}

std::span<const uint32_t> LMX11Property::words() const {
    if (!m_reply || m_reply->format != 32)
        return {};
    return {static_cast<const uint32_t*>(xcb_get_property_value(m_reply.get())),
            size() / sizeof(uint32_t)};
}

std::optional<uint32_t> LMX11Property::firstWord() const {
    const auto items = words();
    return items.empty() ? std::nullopt : std::optional(items.front());
}

bool LMX11Property::containsWord(uint32_t word) const {
    return std::ranges::find(words(), word) != words().end();
}

QByteArrayView LMX11Property::bytes() const {
    if (!m_reply || m_reply->format != 8)
        return {};
    return {static_cast<const char*>(xcb_get_property_value(m_reply.get())), qsizetype(size())};
}

LMX11PropertyRequest::LMX11PropertyRequest(LMX11Connection& connection, xcb_window_t window,
                                           xcb_atom_t property, uint32_t maximumBytes)
    : m_cookie(xcb_get_property(connection.xcb(), 0, window, property, XCB_GET_PROPERTY_TYPE_ANY, 0,
                                (std::min(maximumBytes, maximumSize) + 3) / 4)) {}

LMX11Property LMX11PropertyRequest::receive(LMX11Connection& connection) const {
    return LMX11Property(connection.reply(xcb_get_property_reply, m_cookie));
}

QString LMX11Text(const LMX11Property& property, const LMX11Atoms& atoms) {
    if (!property.exists())
        return {};
    const QByteArrayView bytes = property.bytes();
    QString text;
    if (property.type() == atoms.utf8String)
        text = QString::fromUtf8(bytes);
    else if (property.type() == XCB_ATOM_STRING)
        text = QString::fromLatin1(bytes);
    else if (property.type() == atoms.compoundText)
        text = decodeCompoundText(bytes);
    else
        return {};
    return text.isNull() ? QStringLiteral("") : text;
}
