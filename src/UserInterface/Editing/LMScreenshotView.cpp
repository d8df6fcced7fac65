// SPDX-License-Identifier: MIT
#include "UserInterface/Editing/LMScreenshotView.h"

#include "Utilities/LMFormat.h"

#include <QPainter>

namespace {

constexpr int Margin = 6;
/// Longer than a held arrow key takes from one row to the next.
constexpr int Delay = 80; // milliseconds

} // namespace

LMScreenshotView::LMScreenshotView(QWidget* parent) : QFrame(parent) {
    setFrameStyle(StyledPanel | Sunken);
    setAccessibleName(LMLocalized("Picture of the stored window"));
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &LMScreenshotView::load);
}

QSize LMScreenshotView::sizeHint() const {
    return {240, 180};
}

QSize LMScreenshotView::minimumSizeHint() const {
    return {120, 90};
}

QRect LMScreenshotView::area() const {
    return contentsRect().adjusted(Margin, Margin, -Margin, -Margin);
}

void LMScreenshotView::showScreenshot(const QString& path) {
    if (path == m_path && path.isNull() == m_path.isNull())
        return;
    m_path = path;
    m_timer.start(Delay);
}

void LMScreenshotView::load() {
    m_loader.cancel();
    if (m_path.isNull() || area().isEmpty()) {
        m_image = QImage();
        update();
        return;
    }
    m_loader.load(m_path, QRectF(area()), devicePixelRatioF(),
                  [this](const LMLoadedScreenshot& screenshot) {
                      m_image = screenshot.image;
                      m_image.setDevicePixelRatio(devicePixelRatioF());
                      update();
                  });
}

void LMScreenshotView::resizeEvent(QResizeEvent* event) {
    QFrame::resizeEvent(event);
    m_timer.start(Delay);
}

void LMScreenshotView::paintEvent(QPaintEvent* event) {
    QFrame::paintEvent(event);
    if (m_image.isNull())
        return;
    QRectF shown(QPointF(), m_image.deviceIndependentSize());
    shown.moveCenter(QRectF(area()).center());
    QPainter(this).drawImage(shown.topLeft(), m_image);
}
