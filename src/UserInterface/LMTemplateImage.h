// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QList>
#include <QRectF>
#include <QString>

class QPainter;

/// A drawing made of upright rectangles, read from an SVG file, that is sharp at every size: edges
/// stand on whole pixels and lines of equal width stay equal, which scaling alone does not give.
///
/// Of SVG it understands a square viewBox at the origin, and "rect" with x, y, width, height, rx,
/// fill, stroke and stroke-width.
class LMTemplateImage {
public:
    /// An image that draws nothing when the file cannot be read.
    explicit LMTemplateImage(const QString& path);

    bool isNull() const { return m_shapes.isEmpty(); }

    /// Draws the image into the largest square in the middle of the rectangle, which counts in the
    /// painter's logical pixels; device pixels decide where the edges stand.
    void paint(QPainter& painter, const QRectF& rectangle) const;

private:
    struct Shape {
        QRectF rectangle; ///< In units of the viewBox; the stroke's middle runs on it.
        qreal radius = 0;
        QColor fill;   ///< Invalid for none.
        QColor stroke; ///< Invalid for none.
        qreal strokeWidth = 0;
    };

    void paintShape(QPainter& painter, const Shape& shape, const QPointF& origin,
                    qreal scale) const;

    qreal m_side = 0; ///< Of the viewBox.
    QList<Shape> m_shapes;
};
