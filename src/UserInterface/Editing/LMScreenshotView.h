// SPDX-License-Identifier: MIT
#pragma once

#include "UserInterface/WindowLinking/LMScreenshotLoader.h"

#include <QFrame>
#include <QImage>
#include <QTimer>

/// A picture of a window, as large as fits and never enlarged.
class LMScreenshotView final : public QFrame {
    Q_OBJECT
public:
    explicit LMScreenshotView(QWidget* parent = nullptr);

    /// Shows the picture at the path, or the default one where none can be read, once the choice
    /// rests for a moment; nothing for a null path. What is shown already is not read again.
    void showScreenshot(const QString& path);
    /// As it is drawn; null until it is loaded.
    const QImage& image() const { return m_image; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    QRect area() const;
    void load();

    QString m_path;
    QImage m_image;
    QTimer m_timer;
    LMScreenshotLoader m_loader;
};
