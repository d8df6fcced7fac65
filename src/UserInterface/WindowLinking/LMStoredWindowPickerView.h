// SPDX-License-Identifier: MIT
#pragma once

#include "UserInterface/WindowLinking/LMKeyboardLock.h"
#include "UserInterface/WindowLinking/LMPickerGeometry.h"
#include "UserInterface/WindowLinking/LMScreenshotLoader.h"
#include "UserInterface/WindowLinking/LMStoredWindowPickerWindowView.h"

#include <QList>
#include <QWidget>

/// The picker's grid: one cell for each stored window, the mouse, and the keyboard of the whole
/// session.
class LMStoredWindowPickerView final : public QWidget {
    Q_OBJECT
public:
    /// The logger outlives the view.
    LMStoredWindowPickerView(const LMLogger& logger, QWidget* parent);
    ~LMStoredWindowPickerView() override;

    /// In grid order: the first fill the bottom row.
    const QList<LMPickableWindow>& windows() const { return m_windows; }
    void setWindows(const QList<LMPickableWindow>& windows);

    /// Stands in the middle as long as there are no windows, unless it is empty.
    void setNote(const QString& note);

    /// What docks and panels leave free, with its origin at the bottom left of the view.
    const QRectF& usableFrame() const { return m_usableFrame; }
    void setUsableFrame(const QRectF& usableFrame);

    unsigned columns() const { return grid().columns(); }
    unsigned rows() const { return grid().rows(); }
    float columnWidth() const { return grid().columnWidth(); }
    float rowHeight() const { return grid().rowHeight(); }
    /// In the view's coordinates, origin at the bottom left.
    QList<QRectF> windowFrames() const { return grid().windowFrames(); }

    /// One per window, in their order.
    const QList<LMStoredWindowPickerWindowView*>& windowViews() const { return m_windowViews; }
    /// The cell with the mouse over its screenshot, or none.
    LMStoredWindowPickerWindowView* highlightedWindowView() const { return m_highlighted; }

    /// From here on no key of the session reaches another window. The view is on the screen.
    void lockKeyboardFocus();
    void unlockKeyboardFocus() { m_keyboard.unlock(); }

Q_SIGNALS:
    void selected(const LMObjectID& storedWindow);
    /// A click beside the screenshots, or Escape.
    void cancelled();
    /// The user moves the mouse or types.
    void touched();

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;

private:
    LMPickerGrid grid() const { return LMPickerGrid(m_windows.size(), m_usableFrame); }
    void setUpSubviews();
    LMStoredWindowPickerWindowView* windowViewAt(const QPointF& place) const;
    QString shownNote() const;
    void highlight(LMStoredWindowPickerWindowView* windowView);
    void showWholeLabel(const QPoint& globalPlace);

    QList<LMPickableWindow> m_windows;
    QString m_note; ///< Shown in place of windows.
    QRectF m_usableFrame;
    QList<LMStoredWindowPickerWindowView*> m_windowViews; ///< Children.
    LMStoredWindowPickerWindowView* m_highlighted = nullptr;
    LMScreenshotLoader m_loader;
    LMKeyboardLock m_keyboard;
    bool m_isPressed = false;
};
