// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QRectF>
#include <QSize>
#include <QSizeF>

struct LMScreen;

/// Where things stand in the window picker, in device-independent pixels.
///
/// All rectangles have their origin at the *bottom left* of what contains them, y up: the first
/// windows of the list fill the bottom row. LMToolkitRect is the one way out of this space.
class LMPickerGrid {
public:
    /// Places for so many windows in a frame, which is given in the coordinates of the overlay.
    explicit LMPickerGrid(qsizetype count = 0, const QRectF& usableFrame = {})
        : m_count(count), m_usableFrame(usableFrame) {}

    unsigned columns() const;
    unsigned rows() const;
    /// 0 when there is nothing to show.
    float columnWidth() const;
    float rowHeight() const;
    const QRectF& usableFrame() const { return m_usableFrame; }

    /// One cell per window, in the order of the windows.
    QList<QRectF> windowFrames() const;

private:
    qsizetype m_count;
    QRectF m_usableFrame;
};

/// What docks and panels leave free of the display, in the coordinates of a window that covers the
/// display. The scale is the number of the screen's pixels per device-independent pixel.
QRectF LMUsableFrame(const LMScreen& screen, double scale);

/// The size of a window that covers the display to the last pixel, at any scale.
QSize LMCoveringSize(const QSizeF& pixels, double scale);

/// The parts of a cell, in the cell's coordinates.
namespace LMPickerCell {

/// The room for the screenshot, above the label. In cells too low for a picture that tells anything
/// and a label, the picture gets all of it.
QRectF screenshotArea(const QSizeF& cell);
/// How wide a label may be that stands below the screenshot.
double labelWidth(const QRectF& screenshotRect);
QRectF labelRect(const QRectF& screenshotRect, const QSizeF& measuredText);
/// The rounded frame around the label.
QRectF labelFrame(const QRectF& labelRect);

} // namespace LMPickerCell

/// The rectangle in the toolkit's coordinates, origin at the top left, y down, of a container of
/// that height.
QRectF LMToolkitRect(const QRectF& rect, double containerHeight);
