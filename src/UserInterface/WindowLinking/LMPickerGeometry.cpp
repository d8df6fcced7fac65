// SPDX-License-Identifier: MIT
#include "UserInterface/WindowLinking/LMPickerGeometry.h"

#include "Categories/LMImageAdditions.h"
#include "Platform/LMScreens.h"

#include <cmath>

namespace {

// Around each window's cell.
constexpr double HorizontalInset = 20;
constexpr double VerticalInset = 5;
// In the cell.
constexpr double LabelStrip = 30;
constexpr double ScreenshotInset = 8;
constexpr double LowestPicture = 40;
// Around the label's text.
constexpr double LabelMargin = 8;
constexpr double LabelPaddingX = 8;
constexpr double LabelPaddingY = 2;

} // namespace

unsigned LMPickerGrid::columns() const {
    if (m_count == 2)
        return 1; // One above the other: two wide windows side by side would be small.
    return static_cast<unsigned>(std::ceil(std::sqrt(static_cast<double>(m_count))));
}

unsigned LMPickerGrid::rows() const {
    if (m_count == 0 || m_count == 2)
        return static_cast<unsigned>(m_count);
    const unsigned side = columns();
    return m_count > qsizetype(side) * (side - 1) ? side : side - 1;
}

float LMPickerGrid::columnWidth() const {
    const unsigned count = columns();
    return count == 0 ? 0.0F : static_cast<float>(m_usableFrame.width() / count);
}

float LMPickerGrid::rowHeight() const {
    const unsigned count = rows();
    return count == 0 ? 0.0F : static_cast<float>(m_usableFrame.height() / count);
}

QList<QRectF> LMPickerGrid::windowFrames() const {
    QList<QRectF> frames;
    if (m_count == 0)
        return frames;
    frames.reserve(m_count);
    const qsizetype inRow = columns();
    const qsizetype remainder = m_count - qsizetype(rows() - 1) * inRow;
    const float width = columnWidth();
    const float height = rowHeight();
    const float x = static_cast<float>(m_usableFrame.x());
    const float y = static_cast<float>(m_usableFrame.y());
    const float centring = static_cast<float>(inRow - remainder) * width * 0.5F;
    for (qsizetype index = 0; index < m_count; ++index) {
        const bool isBottom = index < remainder;
        const qsizetype row = isBottom ? 0 : 1 + (index - remainder) / inRow;
        const qsizetype column = isBottom ? index : (index - remainder) % inRow;
        const float left = x + static_cast<float>(column) * width + (isBottom ? centring : 0.0F);
        const float bottom = y + static_cast<float>(row) * height;
        frames.append(
            QRectF(double(left), double(bottom), double(width), double(height))
                .adjusted(HorizontalInset, VerticalInset, -HorizontalInset, -VerticalInset));
    }
    return frames;
}

QRectF LMUsableFrame(const LMScreen& screen, double scale) {
    const QRectF& whole = screen.displayBounds;
    const QRectF& visible = screen.visibleFrame;
    return {(visible.x() - whole.x()) / scale,
            (whole.y() + whole.height() - visible.y() - visible.height()) / scale,
            visible.width() / scale, visible.height() / scale};
}

QSize LMCoveringSize(const QSizeF& pixels, double scale) {
    return {static_cast<int>(std::ceil(pixels.width() / scale)),
            static_cast<int>(std::ceil(pixels.height() / scale))};
}

QRectF LMPickerCell::screenshotArea(const QSizeF& cell) {
    const QRectF inner =
        QRectF(QPointF(), cell)
            .adjusted(ScreenshotInset, ScreenshotInset, -ScreenshotInset, -ScreenshotInset);
    const QRectF area = inner.adjusted(0, LabelStrip, 0, 0);
    if (area.height() - LMImageAdditions::FreeBottom >= LowestPicture)
        return area;
    return inner.adjusted(0, -LMImageAdditions::FreeBottom, 0, 0);
}

double LMPickerCell::labelWidth(const QRectF& screenshotRect) {
    return screenshotRect.width() - 2 * LabelMargin;
}

QRectF LMPickerCell::labelRect(const QRectF& screenshotRect, const QSizeF& measuredText) {
    return {QPointF(screenshotRect.x() + (screenshotRect.width() - measuredText.width()) * 0.5,
                    screenshotRect.y() - LabelStrip),
            measuredText};
}

QRectF LMPickerCell::labelFrame(const QRectF& labelRect) {
    return labelRect.adjusted(-LabelPaddingX, -LabelPaddingY, LabelPaddingX, LabelPaddingY);
}

QRectF LMToolkitRect(const QRectF& rect, double containerHeight) {
    return {rect.x(), containerHeight - rect.y() - rect.height(), rect.width(), rect.height()};
}
