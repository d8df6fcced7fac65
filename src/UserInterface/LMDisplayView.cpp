// SPDX-License-Identifier: MIT
#include "UserInterface/LMDisplayView.h"

#include "Utilities/LMFormat.h"
#include "Utilities/LMRectangle.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

const QColor GroundColour = QColor::fromRgbF(0.95F, 0.95F, 0.95F);
const QColor DisplayColour = QColor::fromRgbF(0.41F, 0.61F, 0.83F);
constexpr double MenuBarHeight = 6;
constexpr double OriginMargin = 3;
constexpr double OriginHeight = 12;
constexpr int OriginFontSize = 9;
constexpr int SizeFontSize = 10;

/// The smallest rectangle in whole points around it. What lies within a rounding error of a whole
/// number is that number.
QRectF integralRect(const QRectF& rect) {
    constexpr double tolerance = 1e-6;
    const QPointF topLeft(std::floor(rect.left() + tolerance), std::floor(rect.top() + tolerance));
    return {topLeft,
            QPointF(std::ceil(rect.right() - tolerance), std::ceil(rect.bottom() - tolerance))};
}

/// A single display on all of the map would look as large as several.
QRectF drawingArea(const QRectF& bounds, qsizetype count) {
    const double part = count == 1 ? 1.0 / 3 : 3.0 / 4;
    const QSizeF size = bounds.size() * part;
    return integralRect({bounds.x() + (bounds.width() - size.width()) / 2,
                         bounds.y() + (bounds.height() - size.height()) / 2, size.width(),
                         size.height()});
}

bool isDrawable(const QRectF& rect) {
    return std::isfinite(rect.right()) && std::isfinite(rect.bottom()) && rect.width() > 0 &&
           rect.height() > 0;
}

QString number(double value) {
    return QString::number(value, 'f', 0);
}

QString originText(const QRectF& display) {
    return QStringLiteral("(%1, %2)").arg(number(display.x()), number(display.y()));
}

QString sizeText(const QRectF& display) {
    return QStringLiteral("%1x%2").arg(number(display.width()), number(display.height()));
}

/// The outline lies inside the rectangle.
void frameRect(QPainter& painter, const QRectF& rect) {
    painter.setPen(Qt::black);
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(rect.adjusted(0.5, 0.5, -0.5, -0.5));
}

void fillAndFrame(QPainter& painter, const QRectF& rect, const QColor& colour) {
    painter.fillRect(rect, colour);
    frameRect(painter, rect);
}

void drawLabels(QPainter& painter, const QRectF& rect, const QRectF& display, bool isMain) {
    painter.setPen(Qt::white);
    QFont font = painter.font();
    font.setBold(false);
    font.setPixelSize(OriginFontSize);
    painter.setFont(font);
    painter.drawText(QRectF(rect.x() + OriginMargin, rect.y() + (isMain ? MenuBarHeight : 0),
                            rect.width() - 2 * OriginMargin, OriginHeight),
                     Qt::AlignLeft | Qt::AlignTop, originText(display));
    font.setBold(true);
    font.setPixelSize(SizeFontSize);
    painter.setFont(font);
    painter.drawText(rect, Qt::AlignCenter | Qt::TextDontClip, sizeText(display));
}

} // namespace

QList<QRectF> LMDisplayRects(const QRectF& bounds, QList<QRectF>& displays) {
    QRectF all;
    for (const QRectF& display : std::as_const(displays)) {
        if (!display.isEmpty())
            all |= display;
    }
    if (!isDrawable(all))
        return {};
    const QRectF area = drawingArea(bounds, displays.size());
    const double scale = std::min(area.width() / all.width(), area.height() / all.height());
    const QPointF origin(area.x() + (area.width() - all.width() * scale) / 2,
                         area.y() + (area.height() - all.height() * scale) / 2);
    QList<QRectF> rects;
    qsizetype main = 0;
    for (const QRectF& display : std::as_const(displays)) {
        if (display.x() == 0 && display.y() == 0)
            main = rects.size();
        rects.append(integralRect(
            {origin + (display.topLeft() - all.topLeft()) * scale, display.size() * scale}));
    }
    displays.move(main, 0);
    rects.move(main, 0);
    return rects;
}

LMDisplayView::LMDisplayView(QWidget* parent) : QWidget(parent) {
    setObjectName(QStringLiteral("displayView"));
    setAccessibleName(LMLocalized("Displays"));
    setSizePolicy(QSizePolicy::MinimumExpanding, QSizePolicy::MinimumExpanding);
}

void LMDisplayView::setDisplays(const QList<QRectF>& displays) {
    if (std::ranges::equal(displays, m_displays, LMRectsEqual))
        return;
    m_displays = displays;
    displayRects();
    setAccessibleDescription(spokenDescription());
    update();
}

QList<QRectF> LMDisplayView::displayRects() {
    return LMDisplayRects(rect(), m_displays);
}

QString LMDisplayView::spokenDescription() const {
    QStringList parts;
    for (const QRectF& display : m_displays)
        parts.append(sizeText(display) + QLatin1Char(' ') + originText(display));
    return parts.join(QStringLiteral("; "));
}

void LMDisplayView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    // Places and numbers are not text: they are not mirrored where people read from right to left.
    painter.setLayoutDirection(Qt::LeftToRight);
    fillAndFrame(painter, rect(), GroundColour);
    const QList<QRectF> rects = displayRects();
    for (qsizetype i = 0; i < rects.size(); ++i) {
        const bool isMain = i == 0;
        const QRectF& rect = rects.at(i);
        fillAndFrame(painter, rect, DisplayColour);
        if (isMain)
            fillAndFrame(painter, {rect.topLeft(), QSizeF(rect.width(), MenuBarHeight)}, Qt::white);
        drawLabels(painter, rect, m_displays.at(i), isMain);
    }
}
