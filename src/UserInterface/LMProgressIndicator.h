// SPDX-License-Identifier: MIT
#pragma once

#include <QElapsedTimer>
#include <QWidget>

/// A horizontal bar: how much of a known number of steps is done, or, when the number is not known,
/// a piece that wanders to and fro, its place a matter of time. It has no timer of its own: whoever
/// does the work, during which no event loop runs, has it drawn.
class LMProgressIndicator final : public QWidget {
    Q_OBJECT
public:
    explicit LMProgressIndicator(QWidget* parent = nullptr);

    double doubleValue() const { return m_value; }
    void setDoubleValue(double value);
    double maxValue() const { return m_maxValue; }
    void setMaxValue(double maxValue);
    bool isIndeterminate() const { return m_isIndeterminate; }
    void setIndeterminate(bool isIndeterminate);

    void startAnimation();
    void stopAnimation();
    bool isAnimating() const { return m_animation.isValid(); }

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QRectF filledPart(const QRectF& bar) const;

    double m_value = 0;
    double m_maxValue = 100;
    bool m_isIndeterminate = false;
    QElapsedTimer m_animation; ///< Valid while it runs.
};
