// SPDX-License-Identifier: MIT
#include "UserInterface/LMPreferencesViewController.h"

#include "UserInterface/LMTemplateImage.h"

#include <QPainter>

QIcon LMPreferencesImage(const QString& name) {
    const LMTemplateImage image(QStringLiteral(":/rook/%1.svg").arg(name));
    constexpr int ImageEdge = 24;
    QIcon icon;
    for (const int scale : {1, 2, 3}) {
        QPixmap pixmap(ImageEdge * scale, ImageEdge * scale);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        image.paint(painter, pixmap.rect());
        painter.end();
        pixmap.setDevicePixelRatio(scale);
        icon.addPixmap(pixmap);
    }
    return icon;
}
