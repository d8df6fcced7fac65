// SPDX-License-Identifier: MIT
#include "UserInterface/WindowLinking/LMFullscreenWindow.h"

#include "UserInterface/WindowLinking/LMPickerGeometry.h"

#include <QCloseEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>

namespace {

constexpr double Darkness = 0.8;

} // namespace

LMFullscreenWindow::LMFullscreenWindow(const QString& name)
    : QWidget(nullptr, Qt::Window | Qt::BypassWindowManagerHint | Qt::FramelessWindowHint |
                           Qt::WindowStaysOnTopHint | Qt::WindowDoesNotAcceptFocus |
                           Qt::NoDropShadowWindowHint) {
    setObjectName(name);
    setWindowRole(name);
    setWindowTitle(QStringLiteral("Rook Window Picker"));
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setCursor(Qt::ArrowCursor);
}

void LMFullscreenWindow::setDisplay(QScreen* screen, const QSizeF& pixels) {
    setScreen(screen);
    setGeometry({screen->geometry().topLeft(), LMCoveringSize(pixels, screen->devicePixelRatio())});
}

void LMFullscreenWindow::prepare(bool isComposited) {
    m_isComposited = isComposited;
    // Decides about the visual of the window that is made when it is shown.
    setAttribute(Qt::WA_TranslucentBackground, isComposited);
    m_desktop = isComposited ? QPixmap() : screen()->grabWindow(0);
}

void LMFullscreenWindow::orderFront() {
    show();
    raise();
}

void LMFullscreenWindow::orderOut() {
    hide();
    destroy();
    m_desktop = {};
    m_isPressed = false;
}

void LMFullscreenWindow::setAlpha(double alpha) {
    m_alpha = alpha;
    if (m_isComposited)
        setWindowOpacity(alpha);
    else
        update();
}

void LMFullscreenWindow::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    QColor black(Qt::black);
    black.setAlphaF(float(Darkness * contentAlpha()));
    if (m_isComposited) {
        painter.setCompositionMode(QPainter::CompositionMode_Source);
    } else {
        painter.fillRect(event->rect(), Qt::black);
        painter.drawPixmap(0, 0, m_desktop);
    }
    painter.fillRect(event->rect(), black);
}

void LMFullscreenWindow::mousePressEvent(QMouseEvent* event) {
    m_isPressed = event->button() == Qt::LeftButton;
}

void LMFullscreenWindow::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && std::exchange(m_isPressed, false))
        Q_EMIT clicked();
}

void LMFullscreenWindow::closeEvent(QCloseEvent* event) {
    event->ignore(); // Whoever showed it takes it away, and has more to do then.
}
