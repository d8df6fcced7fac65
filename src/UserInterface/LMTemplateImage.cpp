// SPDX-License-Identifier: MIT
#include "UserInterface/LMTemplateImage.h"

#include <QFile>
#include <QPainter>
#include <QPainterPath>
#include <QXmlStreamReader>

#include <algorithm>
#include <cmath>

namespace {

qreal number(const QXmlStreamAttributes& attributes, const char* name, qreal absent = 0) {
    bool isNumber = false;
    const qreal value = attributes.value(QLatin1String(name)).toDouble(&isNumber);
    return isNumber ? value : absent;
}

QColor colour(const QXmlStreamAttributes& attributes, const char* name, const char* absent) {
    const QStringView text = attributes.value(QLatin1String(name));
    const QString used = text.isEmpty() ? QLatin1String(absent) : text.toString();
    return used == QLatin1String("none") ? QColor() : QColor(used);
}

/// A length in whole pixels; what is there at all stays visible.
qreal pixels(qreal length) {
    return std::max(1.0, std::round(length));
}

} // namespace

LMTemplateImage::LMTemplateImage(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return;
    QXmlStreamReader xml(&file);
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        const QXmlStreamAttributes attributes = xml.attributes();
        if (xml.name() == QLatin1String("svg")) {
            const QString viewBox = attributes.value(QLatin1String("viewBox")).toString();
            m_side = viewBox.section(QLatin1Char(' '), 2, 2).toDouble();
        } else if (xml.name() == QLatin1String("rect")) {
            m_shapes.append({QRectF(number(attributes, "x"), number(attributes, "y"),
                                    number(attributes, "width"), number(attributes, "height")),
                             number(attributes, "rx"), colour(attributes, "fill", "black"),
                             colour(attributes, "stroke", "none"),
                             number(attributes, "stroke-width", 1)});
        }
    }
    if (xml.hasError() || m_side <= 0)
        m_shapes.clear();
}

void LMTemplateImage::paint(QPainter& painter, const QRectF& rectangle) const {
    if (isNull() || rectangle.isEmpty())
        return;
    // In device pixels from here on: the painter's own scale is taken out.
    const QRectF place = painter.combinedTransform().mapRect(rectangle);
    const qreal ratio = painter.device()->devicePixelRatioF();
    const qreal side = std::floor(std::min(place.width(), place.height()));
    const QPointF origin(std::round(place.center().x() - side / 2),
                         std::round(place.center().y() - side / 2));
    painter.save();
    painter.resetTransform();
    painter.scale(1 / ratio, 1 / ratio);
    painter.setPen(Qt::NoPen);
    painter.setRenderHint(QPainter::Antialiasing);
    for (const Shape& shape : m_shapes)
        paintShape(painter, shape, origin, side / m_side);
    painter.restore();
}

void LMTemplateImage::paintShape(QPainter& painter, const Shape& shape, const QPointF& origin,
                                 qreal scale) const {
    const qreal half = shape.stroke.isValid() ? shape.strokeWidth / 2 : 0;
    const QRectF outline = shape.rectangle.adjusted(-half, -half, half, half);
    const QRectF outer(origin.x() + std::round(outline.x() * scale),
                       origin.y() + std::round(outline.y() * scale),
                       pixels(outline.width() * scale), pixels(outline.height() * scale));
    const qreal width = shape.stroke.isValid() ? pixels(shape.strokeWidth * scale) : 0;
    const QRectF inner = outer.adjusted(width, width, -width, -width);
    const qreal radius = shape.radius * scale;
    if (shape.stroke.isValid()) {
        QPainterPath frame;
        frame.addRoundedRect(outer, radius, radius);
        frame.addRoundedRect(inner, std::max(0.0, radius - width), std::max(0.0, radius - width));
        painter.fillPath(frame, shape.stroke);
    }
    if (shape.fill.isValid()) {
        painter.setBrush(shape.fill);
        painter.drawRoundedRect(inner, std::max(0.0, radius - width),
                                std::max(0.0, radius - width));
    }
}
