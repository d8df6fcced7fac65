// SPDX-License-Identifier: MIT
#include "Platform/X11/LMX11Settings.h"

#include "Platform/X11/LMX11Connection.h"
#include "Platform/X11/LMX11Properties.h"

#include <QDataStream>
#include <QIODevice>

#include <algorithm>

namespace {

enum class SettingType : quint8 { Integer = 0, String = 1, Color = 2 };

qsizetype padded(qsizetype length) {
    return (length + 3) & ~qsizetype(3);
}

QByteArray readPadded(QDataStream& stream, qsizetype length) {
    QByteArray text(std::min(length, stream.device()->bytesAvailable()), Qt::Uninitialized);
    stream.readRawData(text.data(), static_cast<int>(text.size()));
    stream.skipRawData(static_cast<int>(padded(length) - length));
    return text;
}

} // namespace

QString LMX11StringSettingInBytes(QByteArrayView bytes, const QString& name) {
    QDataStream stream(bytes.toByteArray());
    quint8 byteOrder = 0;
    quint32 serial = 0;
    quint32 count = 0;
    stream >> byteOrder;
    stream.setByteOrder(byteOrder == 0 ? QDataStream::LittleEndian : QDataStream::BigEndian);
    stream.skipRawData(3);
    stream >> serial >> count;
    for (quint32 index = 0; index < count && stream.status() == QDataStream::Ok; ++index) {
        quint8 type = 0;
        quint16 nameLength = 0;
        stream >> type;
        stream.skipRawData(1);
        stream >> nameLength;
        const QByteArray key = readPadded(stream, nameLength);
        stream >> serial;
        quint32 length = 0;
        switch (SettingType(type)) {
        case SettingType::Integer:
            stream.skipRawData(4);
            break;
        case SettingType::Color:
            stream.skipRawData(8);
            break;
        case SettingType::String: {
            stream >> length;
            const QByteArray value = readPadded(stream, length);
            if (QString::fromUtf8(key) == name && stream.status() == QDataStream::Ok)
                return QString::fromUtf8(value);
            break;
        }
        default:
            return {};
        }
    }
    return {};
}

QString LMX11StringSetting(LMX11Connection& connection, const QString& name) {
    xcb_connection_t* xcb = connection.xcb();
    const QByteArray selection = "_XSETTINGS_S" + QByteArray::number(connection.screenNumber());
    const QByteArray property = "_XSETTINGS_SETTINGS";
    const auto intern = [xcb](const QByteArray& atom) {
        return xcb_intern_atom(xcb, 1, static_cast<uint16_t>(atom.size()), atom.constData());
    };
    const auto selectionCookie = intern(selection);
    const auto propertyCookie = intern(property);
    const auto selectionAtom = connection.reply(xcb_intern_atom_reply, selectionCookie);
    const auto propertyAtom = connection.reply(xcb_intern_atom_reply, propertyCookie);
    if (!selectionAtom || !propertyAtom || selectionAtom->atom == XCB_ATOM_NONE)
        return {};
    const auto owner = connection.reply(xcb_get_selection_owner_reply,
                                        xcb_get_selection_owner(xcb, selectionAtom->atom));
    if (!owner || owner->owner == XCB_WINDOW_NONE)
        return {};
    const auto settings = LMX11PropertyRequest(connection, owner->owner, propertyAtom->atom,
                                               LMX11PropertyRequest::maximumSize)
                              .receive(connection);
    return LMX11StringSettingInBytes(settings.bytes(), name);
}

bool LMX11IsComposited(LMX11Connection& connection) {
    xcb_connection_t* xcb = connection.xcb();
    const QByteArray selection = "_NET_WM_CM_S" + QByteArray::number(connection.screenNumber());
    const auto atom = connection.reply(
        xcb_intern_atom_reply,
        xcb_intern_atom(xcb, 1, static_cast<uint16_t>(selection.size()), selection.constData()));
    if (!atom || atom->atom == XCB_ATOM_NONE)
        return false;
    const auto owner =
        connection.reply(xcb_get_selection_owner_reply, xcb_get_selection_owner(xcb, atom->atom));
    return owner && owner->owner != XCB_WINDOW_NONE;
}
