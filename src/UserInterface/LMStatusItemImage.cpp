// SPDX-License-Identifier: MIT
#include "UserInterface/LMStatusItemImage.h"

#include <QPainter>
#include <QPixmap>
#include <QStandardPaths>

namespace {

constexpr QLatin1String Name{"org.rook.Rook-status"};

QString nameIfInstalled() {
    const QString file =
        QLatin1String("icons/hicolor/scalable/status/") + Name + QLatin1String(".svg");
    const bool isInstalled =
        !QStandardPaths::locate(QStandardPaths::GenericDataLocation, file).isEmpty();
    return isInstalled ? QString(Name) : QString();
}

} // namespace

LMStatusItemImage::LMStatusItemImage()
    : m_image(QStringLiteral(":/rook/StatusItemTemplate.svg")), m_installedName(nameIfInstalled()) {
}

void LMStatusItemImage::paint(QPainter* painter, const QRect& rectangle, QIcon::Mode,
                              QIcon::State) {
    m_image.paint(*painter, rectangle);
}

QPixmap LMStatusItemImage::pixmap(const QSize& size, QIcon::Mode, QIcon::State) {
    QPixmap result(size);
    result.fill(Qt::transparent);
    QPainter painter(&result);
    m_image.paint(painter, QRectF(QPointF(), size));
    return result;
}

QList<QSize> LMStatusItemImage::availableSizes(QIcon::Mode, QIcon::State) {
    // The usual edges of panels at 1x, 2x and 3x. Qt sends those up to 32 over the bus.
    QList<QSize> sizes;
    for (const int edge : {16, 22, 24, 32, 44, 48, 64, 72})
        sizes.append(QSize(edge, edge));
    return sizes;
}
