// SPDX-License-Identifier: MIT
#include "UserInterface/Editing/LMScreenshotView.h"

#include "Utilities/LMFormat.h"

#include <QPainter>

namespace {
constexpr int Margin = 6;
}

LMScreenshotView::LMScreenshotView(QWidget* parent) : QFrame(parent) {
    setFrameStyle(StyledPanel | Sunken);
    setAccessibleName(LMLocalized("Picture of the stored window"));
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
}

void LMScreenshotView::setImage(const QImage& image) {
    m_image = image;
    m_scaled = QPixmap();
    update();
}

QSize LMScreenshotView::sizeHint() const {
    return {240, 180};
}

QSize LMScreenshotView::minimumSizeHint() const {
    return {120, 90};
}

void LMScreenshotView::paintEvent(QPaintEvent* event) {
    QFrame::paintEvent(event);
    const QRect area = contentsRect().adjusted(Margin, Margin, -Margin, -Margin);
    if (m_image.isNull() || area.isEmpty())
        return;
    const qreal ratio = devicePixelRatioF();
    const QSize fitting = m_image.size().scaled(area.size() * ratio, Qt::KeepAspectRatio);
    const QSize pixels = fitting.boundedTo(m_image.size()).expandedTo(QSize(1, 1));
    if (m_scaled.size() != pixels) {
        m_scaled = QPixmap::fromImage(
            m_image.scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
        m_scaled.setDevicePixelRatio(ratio);
    }
    QRectF shown(QPointF(), QSizeF(pixels) / ratio);
    shown.moveCenter(QRectF(area).center());
    QPainter(this).drawPixmap(shown.topLeft(), m_scaled);
}
