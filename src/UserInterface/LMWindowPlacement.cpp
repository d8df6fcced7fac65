// SPDX-License-Identifier: MIT
#include "UserInterface/LMWindowPlacement.h"

#include "Platform/LMDesktop.h"

#include <QCursor>
#include <QEvent>
#include <QGuiApplication>
#include <QScreen>
#include <QWidget>
#include <QWindow>

namespace {

/// About what window managers put around a window, on either side alike. They take the place that a
/// program asks for as the user's, even with the title bar off the screen.
constexpr QSize Decoration(16, 64);

} // namespace

QRect LMCentredFrame(const QSize& size) {
    const QScreen* screen = QGuiApplication::screenAt(QCursor::pos());
    if (screen == nullptr)
        screen = QGuiApplication::primaryScreen();
    const QRect area = screen != nullptr ? screen->availableGeometry() : QRect();
    QRect frame(QPoint(), size.boundedTo(area.size() - Decoration));
    frame.moveCenter(area.center());
    return frame;
}

void LMCentreWindow(QWidget& window) {
    window.setGeometry(LMCentredFrame(window.size()));
}

namespace {

/// Waits for the window's first picture to be asked for, which happens when it is mapped.
class Activation final : public QObject {
public:
    Activation(QWidget& window, LMDesktop& desktop)
        : QObject(&window), m_window(window), m_desktop(desktop) {
        window.windowHandle()->installEventFilter(this);
    }

    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Expose && m_window.windowHandle()->isExposed()) {
            m_window.windowHandle()->removeEventFilter(this);
            deleteLater();
            if (!m_window.isActiveWindow())
                m_desktop.applications().activateOwnWindow(m_window.winId());
        }
        return false;
    }

private:
    QWidget& m_window;
    LMDesktop& m_desktop;
};

} // namespace

void LMBringToFront(QWidget& window, LMDesktop& desktop) {
    window.winId(); // The window must exist for its events to be seen.
    new Activation(window, desktop);
}

void LMPresentWindow(QWidget& window, LMDesktop& desktop) {
    const bool isNew = window.windowHandle() == nullptr;
    // A window that is mapped anew comes to the virtual desktop in use. Whether it is there already
    // cannot be told: the news of a change may still be on its way.
    window.hide();
    if (isNew || QGuiApplication::screenAt(window.geometry().center()) == nullptr)
        LMCentreWindow(window);
    window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
    window.show();
    LMBringToFront(window, desktop);
}
