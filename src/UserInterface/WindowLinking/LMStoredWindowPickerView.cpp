// SPDX-License-Identifier: MIT
#include "UserInterface/WindowLinking/LMStoredWindowPickerView.h"

#include "UserInterface/LMPresentableText.h"
#include "UserInterface/WindowLinking/LMFullscreenWindow.h"
#include "Utilities/LMFormat.h"

#include <QAccessibleWidget>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>
#include <QWindow>

#include <utility>

namespace {

/// To a screen reader a cell is a button with the label's text.
class CellInterface final : public QAccessibleWidget {
public:
    explicit CellInterface(LMStoredWindowPickerWindowView* cell)
        : QAccessibleWidget(cell, QAccessible::Button), m_cell(cell) {}

    QStringList actionNames() const override { return {pressAction()}; }
    void doAction(const QString& action) override {
        if (action == pressAction())
            Q_EMIT m_cell->activated();
    }

private:
    LMStoredWindowPickerWindowView* m_cell;
};

QAccessibleInterface* makeCellInterface(const QString&, QObject* object) {
    auto* cell = qobject_cast<LMStoredWindowPickerWindowView*>(object);
    return cell ? new CellInterface(cell) : nullptr;
}

} // namespace

LMStoredWindowPickerView::LMStoredWindowPickerView(const LMLogger& logger, QWidget* parent)
    : QWidget(parent), m_keyboard(logger) {
    QAccessible::installFactory(makeCellInterface);
    setObjectName(QStringLiteral("storedWindowPickerView"));
    setAccessibleName(LMLocalized("Stored windows"));
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
}

LMStoredWindowPickerView::~LMStoredWindowPickerView() = default;

// --- cells ----------------------------------------------------------------------------------

void LMStoredWindowPickerView::setWindows(const QList<LMPickableWindow>& windows) {
    m_windows = windows;
    setAccessibleDescription(shownNote());
    setUpSubviews();
}

void LMStoredWindowPickerView::setUsableFrame(const QRectF& usableFrame) {
    if (m_usableFrame == usableFrame)
        return;
    m_usableFrame = usableFrame;
    setUpSubviews();
}

void LMStoredWindowPickerView::setNote(const QString& note) {
    m_note = LMPresentableLine(note);
    setAccessibleDescription(shownNote());
    update();
}

QString LMStoredWindowPickerView::shownNote() const {
    return m_windows.isEmpty() ? m_note : QString();
}

void LMStoredWindowPickerView::paintEvent(QPaintEvent*) {
    if (shownNote().isEmpty())
        return;
    QPainter painter(this);
    if (const auto* overlay = qobject_cast<LMFullscreenWindow*>(window()))
        painter.setOpacity(overlay->contentAlpha());
    painter.setPen(QColor(Qt::lightGray));
    painter.drawText(LMToolkitRect(m_usableFrame, height()), Qt::AlignCenter | Qt::TextWordWrap,
                     m_note);
}

void LMStoredWindowPickerView::resizeEvent(QResizeEvent*) {
    setUpSubviews();
}

void LMStoredWindowPickerView::setUpSubviews() {
    m_highlighted = nullptr;
    m_loader.cancel();
    QToolTip::hideText();
    qDeleteAll(std::exchange(m_windowViews, {}));
    const QList<QRectF> frames = windowFrames();
    for (qsizetype index = 0; index < frames.size(); ++index) {
        auto* cell = new LMStoredWindowPickerWindowView(m_loader, this);
        cell->setGeometry(LMToolkitRect(frames[index], height()).toRect());
        cell->setStoredWindow(m_windows[index]);
        const LMObjectID storedWindow = m_windows[index].storedWindow;
        connect(
            cell, &LMStoredWindowPickerWindowView::activated, this,
            [this, storedWindow] { Q_EMIT selected(storedWindow); }, Qt::QueuedConnection);
        cell->show();
        m_windowViews.append(cell);
    }
    update();
}

// --- mouse ----------------------------------------------------------------------------------

LMStoredWindowPickerWindowView* LMStoredWindowPickerView::windowViewAt(const QPointF& place) const {
    for (LMStoredWindowPickerWindowView* cell : m_windowViews) {
        if (cell->screenshotRectInParent().contains(place))
            return cell;
    }
    return nullptr;
}

void LMStoredWindowPickerView::highlight(LMStoredWindowPickerWindowView* windowView) {
    if (m_highlighted == windowView)
        return;
    if (m_highlighted)
        m_highlighted->setHighlighted(false);
    m_highlighted = windowView;
    if (m_highlighted)
        m_highlighted->setHighlighted(true);
}

/// In many small cells labels are cut beyond recognition.
void LMStoredWindowPickerView::showWholeLabel(const QPoint& globalPlace) {
    if (!m_highlighted || m_highlighted->isLabelWhole())
        return;
    QToolTip::showText(globalPlace, LMPresentableToolTip(m_highlighted->storedWindow().label), this,
                       m_highlighted->screenshotRectInParent().toAlignedRect());
}

void LMStoredWindowPickerView::enterEvent(QEnterEvent* event) {
    highlight(windowViewAt(event->position()));
}

void LMStoredWindowPickerView::leaveEvent(QEvent*) {
    highlight(nullptr);
}

void LMStoredWindowPickerView::mouseMoveEvent(QMouseEvent* event) {
    Q_EMIT touched();
    highlight(windowViewAt(event->position()));
}

// Only what was pressed here is a click: a menu that closes on the press leaves us its release.
void LMStoredWindowPickerView::mousePressEvent(QMouseEvent* event) {
    m_isPressed = event->button() == Qt::LeftButton;
}

void LMStoredWindowPickerView::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || !std::exchange(m_isPressed, false))
        return;
    if (const LMStoredWindowPickerWindowView* cell = windowViewAt(event->position()))
        Q_EMIT selected(LMObjectID(cell->storedWindow().storedWindow));
    else
        Q_EMIT cancelled();
}

// --- keyboard -------------------------------------------------------------------------------

void LMStoredWindowPickerView::lockKeyboardFocus() {
    setFocus(Qt::OtherFocusReason);
    if (QWindow* handle = window()->windowHandle())
        m_keyboard.lock(*handle);
}

bool LMStoredWindowPickerView::event(QEvent* event) {
    // Shortcuts and Tab are keys of windows that are not meant now.
    switch (event->type()) {
    case QEvent::ShortcutOverride:
        event->accept();
        return true;
    case QEvent::KeyPress:
        keyPressEvent(static_cast<QKeyEvent*>(event));
        return true;
    case QEvent::ToolTip:
        showWholeLabel(static_cast<QHelpEvent*>(event)->globalPos());
        return true;
    default:
        return QWidget::event(event);
    }
}

void LMStoredWindowPickerView::keyPressEvent(QKeyEvent* event) {
    event->accept();
    Q_EMIT touched();
    if (event->key() == Qt::Key_Escape)
        Q_EMIT cancelled();
}

void LMStoredWindowPickerView::keyReleaseEvent(QKeyEvent* event) {
    event->accept();
}
