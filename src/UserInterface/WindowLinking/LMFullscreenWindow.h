// SPDX-License-Identifier: MIT
#pragma once

#include <QPixmap>
#include <QWidget>

class QScreen;

/// A dark, borderless window above all others, docks included, that covers one display.
///
/// The window manager does not manage it: the user's window keeps the focus all along, and nothing
/// has to be given back when this one goes. What stands below shows through. Where no compositing
/// manager sees to that, a picture of the desktop, taken when the window comes up, stands in.
class LMFullscreenWindow final : public QWidget {
    Q_OBJECT
public:
    explicit LMFullscreenWindow(const QString& name);

    /// The display to cover, and its size in pixels.
    void setDisplay(QScreen* screen, const QSizeF& pixels);

    /// Prepares for being shown on a desktop with or without a compositing manager. To be called
    /// for all windows before the first of them is shown, which would be on the pictures.
    void prepare(bool isComposited);
    void orderFront();
    /// Takes the window off the screen and frees what it holds there.
    void orderOut();

    /// From 0, invisible, to 1.
    void setAlpha(double alpha);
    /// What views in the window draw with: where they are not blended by others, they do it.
    double contentAlpha() const { return m_isComposited ? 1 : m_alpha; }

Q_SIGNALS:
    void clicked();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    bool m_isComposited = false;
    bool m_isPressed = false;
    double m_alpha = 1;
    QPixmap m_desktop; ///< Null when composited.
};
