// SPDX-License-Identifier: MIT
#include "UserInterface/WindowLinking/LMStoredWindowPickerWindowView.h"

#include "Categories/LMImageAdditions.h"
#include "Model/LMScreenshots.h"
#include "UserInterface/LMPresentableText.h"
#include "UserInterface/WindowLinking/LMFullscreenWindow.h"
#include "UserInterface/WindowLinking/LMPickerGeometry.h"
#include "UserInterface/WindowLinking/LMScreenshotLoader.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPointer>
#include <QTextOption>

namespace {

constexpr int LabelFontSize = 12;
constexpr double HighlightWidth = 16;
constexpr double LabelRadius = 10;
constexpr QPointF LabelShadow{0, -1}; ///< Light from below: the shadow is above the text.

QColor grey(float white, float alpha) {
    return QColor::fromRgbF(white, white, white, alpha);
}

} // namespace

LMStoredWindowPickerWindowView::LMStoredWindowPickerWindowView(LMScreenshotLoader& loader,
                                                               QWidget* parent)
    : QWidget(parent), m_loader(loader) {
    setObjectName(QStringLiteral("storedWindowPickerWindowView"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void LMStoredWindowPickerWindowView::setStoredWindow(const LMPickableWindow& storedWindow) {
    m_storedWindow = storedWindow;
    m_storedWindow.label = LMPresentableLine(storedWindow.label);
    setAccessibleName(m_storedWindow.label);
    setUpSubviews();
    update();
}

void LMStoredWindowPickerWindowView::setHighlighted(bool isHighlighted) {
    if (m_isHighlighted == isHighlighted)
        return;
    m_isHighlighted = isHighlighted;
    update();
}

QRectF LMStoredWindowPickerWindowView::toolkitRect(const QRectF& rect) const {
    return LMToolkitRect(rect, height());
}

QRectF LMStoredWindowPickerWindowView::screenshotRectInParent() const {
    return toolkitRect(m_screenshotRect).translated(pos());
}

// --- layout ---------------------------------------------------------------------------------

void LMStoredWindowPickerWindowView::setUpSubviews() {
    m_screenshot = {};
    if (!m_storedWindow.hasScreenshot) {
        layOut({});
        return;
    }
    const QString& path = m_storedWindow.screenshotPath;
    layOut(QSizeF(LMScreenshotSize(path)) / devicePixelRatioF());
    m_loader.load(path, LMPickerCell::screenshotArea(size()), devicePixelRatioF(),
                  [cell = QPointer(this)](const LMLoadedScreenshot& screenshot) {
                      if (cell)
                          cell->setScreenshot(screenshot);
                  });
}

void LMStoredWindowPickerWindowView::layOut(const QSizeF& screenshotSize) {
    m_screenshotRect =
        screenshotSize.isEmpty()
            ? QRectF()
            : LMImageAdditions(screenshotSize).frameForRect(LMPickerCell::screenshotArea(size()));
    QFont labelFont = font();
    labelFont.setPixelSize(LabelFontSize);
    setFont(labelFont);
    const QFontMetricsF metrics(labelFont);
    const double room = LMPickerCell::labelWidth(m_screenshotRect);
    m_labelText =
        room > 0 ? metrics.elidedText(m_storedWindow.label, Qt::ElideMiddle, room) : QString();
    m_labelRect = LMPickerCell::labelRect(
        m_screenshotRect, {metrics.horizontalAdvance(m_labelText), metrics.height()});
}

bool LMStoredWindowPickerWindowView::isLabelWhole() const {
    return m_labelText == m_storedWindow.label && m_labelRect.y() >= 0;
}

void LMStoredWindowPickerWindowView::setScreenshot(const LMLoadedScreenshot& screenshot) {
    layOut(screenshot.size);
    m_screenshot = QPixmap::fromImage(screenshot.image);
    update();
}

// --- drawing --------------------------------------------------------------------------------

void LMStoredWindowPickerWindowView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    if (const auto* overlay = qobject_cast<LMFullscreenWindow*>(window()))
        painter.setOpacity(overlay->contentAlpha());
    if (m_isHighlighted)
        drawHighlight(painter);
    drawScreenshot(painter);
    drawLabel(painter);
}

// Half of the line is outside; the screenshot covers the other half.
void LMStoredWindowPickerWindowView::drawHighlight(QPainter& painter) const {
    const QColor blue = QColor::fromRgbF(0, 0, 1, 0.5F);
    painter.setPen(QPen(blue, HighlightWidth, Qt::SolidLine, Qt::SquareCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(toolkitRect(m_screenshotRect));
}

void LMStoredWindowPickerWindowView::drawScreenshot(QPainter& painter) const {
    const QRectF place = toolkitRect(m_screenshotRect);
    if (m_screenshot.isNull())
        painter.fillRect(place, grey(1, 0.06F)); // Until it is loaded.
    else
        painter.drawPixmap(place, m_screenshot, m_screenshot.rect());
}

void LMStoredWindowPickerWindowView::drawLabel(QPainter& painter) const {
    if (m_labelText.size() < 2 && !isLabelWhole())
        return; // An ellipsis alone says nothing.
    painter.setPen(QPen(grey(0.3F, 0.8F), 1));
    painter.setBrush(Qt::NoBrush);
    const QRectF frame = toolkitRect(LMPickerCell::labelFrame(m_labelRect));
    painter.drawRoundedRect(frame, LabelRadius, LabelRadius);
    painter.setPen(Qt::NoPen);
    painter.setBrush(grey(0, 0.2F));
    painter.drawRoundedRect(frame, LabelRadius, LabelRadius);

    QTextOption option(Qt::AlignCenter);
    option.setWrapMode(QTextOption::NoWrap);
    // Titles are in the language of their window, not in that of the user.
    option.setTextDirection(m_labelText.isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
    const QRectF place = toolkitRect(m_labelRect);
    painter.setPen(Qt::black);
    painter.drawText(place.translated(LabelShadow), m_labelText, option);
    painter.setPen(Qt::white);
    painter.drawText(place, m_labelText, option);
}
