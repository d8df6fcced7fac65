// SPDX-License-Identifier: MIT
#include "UserInterface/LMProgressIndicator.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace {

constexpr int Thickness = 8;
constexpr double WanderingPart = 0.25; ///< Of the bar's length.
constexpr qint64 WanderingTime = 1600; ///< Milliseconds to and fro.

} // namespace

LMProgressIndicator::LMProgressIndicator(QWidget* parent) : QWidget(parent) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QSize LMProgressIndicator::sizeHint() const {
    return {200, Thickness};
}

void LMProgressIndicator::setDoubleValue(double value) {
    m_value = value;
    update();
}

void LMProgressIndicator::setMaxValue(double maxValue) {
    m_maxValue = maxValue;
    update();
}

void LMProgressIndicator::setIndeterminate(bool isIndeterminate) {
    m_isIndeterminate = isIndeterminate;
    update();
}

void LMProgressIndicator::startAnimation() {
    m_animation.start();
}

void LMProgressIndicator::stopAnimation() {
    m_animation.invalidate();
}

QRectF LMProgressIndicator::filledPart(const QRectF& bar) const {
    QRectF part = bar;
    if (m_isIndeterminate) {
        const qint64 time = m_animation.isValid() ? m_animation.elapsed() % WanderingTime : 0;
        const double place = 1 - std::abs(2.0 * double(time) / WanderingTime - 1);
        part.setWidth(bar.width() * WanderingPart);
        part.translate(place * (bar.width() - part.width()), 0);
    } else {
        const double share = m_maxValue > 0 ? std::clamp(m_value / m_maxValue, 0.0, 1.0) : 0.0;
        part.setWidth(bar.width() * share);
        if (layoutDirection() == Qt::RightToLeft)
            part.moveRight(bar.right());
    }
    return part;
}

void LMProgressIndicator::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    const QRectF bar = rect();
    const qreal radius = bar.height() / 2;
    QColor groove = palette().color(QPalette::WindowText);
    groove.setAlphaF(0.18F);
    painter.setBrush(groove);
    painter.drawRoundedRect(bar, radius, radius);
    // Cut by the groove, so that a short piece fits its round end.
    QPainterPath shape;
    shape.addRoundedRect(bar, radius, radius);
    painter.setClipPath(shape);
    painter.setBrush(palette().color(QPalette::Highlight));
    painter.drawRoundedRect(filledPart(bar), radius, radius);
}
