// SPDX-License-Identifier: MIT
#include "UserInterface/LMImmediateWindow.h"

#include <QPainter>
#include <QWidget>

LMImmediateWindow::LMImmediateWindow(QWidget& content) : m_content(content) {
    setFlags(Qt::Window | Qt::BypassWindowManagerHint | Qt::FramelessWindowHint |
             Qt::WindowDoesNotAcceptFocus | Qt::WindowTransparentForInput);
    setTitle(content.windowTitle());
    setObjectName(content.objectName());
}

void LMImmediateWindow::showAt(const QPoint& position) {
    setGeometry(QRect(position, m_content.size()));
    show();
    draw();
}

void LMImmediateWindow::draw() {
    if (!isVisible())
        return;
    raise();
    const QRect area(QPoint(), size());
    m_backingStore.resize(area.size());
    m_backingStore.beginPaint(area);
    {
        QPainter painter(m_backingStore.paintDevice());
        m_content.render(&painter);
    }
    m_backingStore.endPaint();
    m_backingStore.flush(area);
}

void LMImmediateWindow::exposeEvent(QExposeEvent*) {
    if (isExposed())
        draw();
}
