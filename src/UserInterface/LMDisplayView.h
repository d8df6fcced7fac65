// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QRectF>
#include <QWidget>

/// Where displays stand on a map of the given bounds: one rectangle for each, in whole points and
/// in the order of the displays, to one scale and in the middle.
///
/// Displays are given by their bounds in global coordinates, y down. The main display, the last one
/// that stands at (0, 0), is moved to the front of the list, and so its rectangle comes first.
/// Displays that cannot be drawn to scale (all without extent, or beyond any number) give none.
QList<QRectF> LMDisplayRects(const QRectF& bounds, QList<QRectF>& displays);

/// A small map of a display configuration: each display a labelled rectangle, the main one with a
/// menu bar. It looks the same whatever the desktop's colours and reading direction are.
class LMDisplayView final : public QWidget {
    Q_OBJECT
public:
    explicit LMDisplayView(QWidget* parent = nullptr);

    /// The displays' bounds in global coordinates, y down. A layout may bring the main one to the
    /// front.
    const QList<QRectF>& displays() const { return m_displays; }
    void setDisplays(const QList<QRectF>& displays);

    /// One for each display, in the same order as displays() after the call.
    QList<QRectF> displayRects();

    QSize sizeHint() const override { return {300, 200}; }
    QSize minimumSizeHint() const override { return {180, 120}; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString spokenDescription() const;

    QList<QRectF> m_displays;
};
