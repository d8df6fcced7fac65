// SPDX-License-Identifier: MIT
#pragma once

#include <QBackingStore>
#include <QWindow>

class QWidget;

/// A window above all others that is on the screen as soon as its functions return, although no
/// event loop runs: a widget draws nothing before it has read from the event queue that its window
/// was mapped.
///
/// The window manager does not manage it. It never has the focus, stands on all virtual desktops,
/// and is nobody's application window.
class LMImmediateWindow final : public QWindow {
    Q_OBJECT
public:
    /// Shows a picture of the widget, which stays hidden itself and outlives the window.
    explicit LMImmediateWindow(QWidget& content);

    /// Shows the window at that place, in global logical pixels, or moves it there.
    void showAt(const QPoint& position);

    /// Draws the content as it is now, brings the window to the front, and sends both to the
    /// screen.
    void draw();

protected:
    void exposeEvent(QExposeEvent* event) override;

private:
    QWidget& m_content;
    QBackingStore m_backingStore{this};
};
