// SPDX-License-Identifier: MIT
#include "Platform/X11/LMX11Image.h"

#include "Platform/X11/LMX11Connection.h"

#include <QSysInfo>

#include <algorithm>
#include <cstring>
#include <limits>

namespace {

QImage::Format formatOf(uint8_t depth) {
    switch (depth) {
    case 32:
        return QImage::Format_ARGB32_Premultiplied;
    case 30:
        return QImage::Format_RGB30;
    case 24:
        return QImage::Format_RGB32;
    case 16:
        return QImage::Format_RGB16;
    default:
        return QImage::Format_Invalid;
    }
}

bool hasNativeByteOrder(const xcb_setup_t& setup) {
    const bool isLittleEndian = setup.image_byte_order == XCB_IMAGE_ORDER_LSB_FIRST;
    return isLittleEndian == (QSysInfo::ByteOrder == QSysInfo::LittleEndian);
}

} // namespace

QImage LMX11GrabImage(LMX11Connection& connection, xcb_drawable_t drawable, const QRect& rect) {
    if (rect.isEmpty() || !hasNativeByteOrder(*xcb_get_setup(connection.xcb())))
        return {};
    const auto reply = connection.reply(
        xcb_get_image_reply,
        xcb_get_image(connection.xcb(), XCB_IMAGE_FORMAT_Z_PIXMAP, drawable, int16_t(rect.x()),
                      int16_t(rect.y()), uint16_t(rect.width()), uint16_t(rect.height()),
                      std::numeric_limits<uint32_t>::max()));
    if (!reply || formatOf(reply->depth) == QImage::Format_Invalid)
        return {};
    QImage image(rect.size(), formatOf(reply->depth));
    const auto* data = xcb_get_image_data(reply.get());
    const qsizetype available = xcb_get_image_data_length(reply.get());
    const qsizetype stride = available / rect.height();
    const qsizetype used = qsizetype(rect.width()) * image.depth() / 8;
    if (image.isNull() || stride < used)
        return {};
    for (int row = 0; row < rect.height(); ++row)
        std::memcpy(image.scanLine(row), data + row * stride, size_t(used));
    return image;
}
