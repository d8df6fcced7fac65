// SPDX-License-Identifier: MIT
#pragma once

#include "Model/Store/LMObjectID.h"

#include <QPixmap>
#include <QRectF>
#include <QString>
#include <QWidget>

class LMScreenshotLoader;
struct LMLoadedScreenshot;

/// What the picker shows of a stored window. Plain values: the record itself may be deleted while
/// it is looked at.
struct LMPickableWindow {
    LMObjectID storedWindow;
    QString label; ///< Anything a window may be titled with.
    bool hasScreenshot = false;
    QString screenshotPath; ///< The default picture stands in for one that cannot be read.
};

/// One cell of the picker: a stored window's screenshot, its highlight and its label. Leaves the
/// mouse to the view it stands in.
class LMStoredWindowPickerWindowView final : public QWidget {
    Q_OBJECT
public:
    /// The loader outlives the cell or is cancelled before the cell goes.
    LMStoredWindowPickerWindowView(LMScreenshotLoader& loader, QWidget* parent);

    const LMPickableWindow& storedWindow() const { return m_storedWindow; }
    void setStoredWindow(const LMPickableWindow& storedWindow);

    bool isHighlighted() const { return m_isHighlighted; }
    void setHighlighted(bool isHighlighted);

    /// Where the screenshot is drawn, origin at the bottom left of the cell; zero when there is
    /// none. Known before the screenshot is loaded.
    const QRectF& screenshotRect() const { return m_screenshotRect; }
    /// The same in the parent's coordinates, as the toolkit counts.
    QRectF screenshotRectInParent() const;
    bool isScreenshotLoaded() const { return !m_screenshot.isNull(); }

    /// The label as it is shown: one line, cut in the middle where it is too long.
    const QString& labelText() const { return m_labelText; }
    bool isLabelWhole() const;

Q_SIGNALS:
    /// Chosen by other means than the mouse.
    void activated();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void setUpSubviews();
    void layOut(const QSizeF& screenshotSize);
    void setScreenshot(const LMLoadedScreenshot& screenshot);
    QRectF toolkitRect(const QRectF& rect) const;
    void drawHighlight(QPainter& painter) const;
    void drawScreenshot(QPainter& painter) const;
    void drawLabel(QPainter& painter) const;

    LMScreenshotLoader& m_loader;
    LMPickableWindow m_storedWindow;
    QPixmap m_screenshot; ///< Null until it is loaded.
    QRectF m_screenshotRect;
    QString m_labelText;
    QRectF m_labelRect;
    bool m_isHighlighted = false;
};
