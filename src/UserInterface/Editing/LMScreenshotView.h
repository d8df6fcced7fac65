// SPDX-License-Identifier: MIT
#pragma once

#include <QFrame>
#include <QImage>
#include <QPixmap>

/// A picture of a window, as large as fits and never enlarged.
class LMScreenshotView final : public QFrame {
    Q_OBJECT
public:
    explicit LMScreenshotView(QWidget* parent = nullptr);

    /// A null image shows nothing.
    void setImage(const QImage& image);
    const QImage& image() const { return m_image; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QImage m_image;
    QPixmap m_scaled; ///< For the present size; null when it has to be made.
};
