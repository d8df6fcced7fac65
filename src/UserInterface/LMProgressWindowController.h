// SPDX-License-Identifier: MIT
#pragma once

#include "Controller/LMUserInterface.h"

#include <memory>

class LMImmediateWindow;
class LMProgressIndicator;
class QFrame;
class QLabel;

/// The small window above everything, on every virtual desktop, that shows how far a long operation
/// is: a label and a bar that counts steps of 1.
///
/// The operation runs on the main thread and no event loop runs meanwhile, so each change is drawn
/// and sent to the screen at once. Nothing is read from the event queue: no click and no command
/// gets in between.
class LMProgressWindowController final : public LMProgressWindow {
public:
    LMProgressWindowController();
    ~LMProgressWindowController() override;

    const QString& label() const { return m_label; }
    void setLabel(const QString& label) override;
    double maxValue() const { return m_maxValue; }
    /// The number of items: each counts 1.
    void setMaxValue(double maxValue) override;
    bool indeterminate() const { return m_isIndeterminate; }
    void setIndeterminate(bool isIndeterminate) override;

    /// Shows the window in the middle of the screen, with the bar at 0.
    void showWindow() override;
    void close() override;
    void increment(const LMWorkspace* sender) override;

    /// Lets the bar move while the operation waits for something.
    void animate();

    /// The bar; null before the window was shown.
    const LMProgressIndicator* progressIndicator() const { return m_progressIndicator; }

private:
    void windowDidLoad();
    void display();

    QString m_label;
    double m_maxValue = 100;
    bool m_isIndeterminate = false;
    // Made when it is first shown: a process that only waits needs no window.
    std::unique_ptr<QFrame> m_content;
    std::unique_ptr<LMImmediateWindow> m_window;
    QLabel* m_labelTextField = nullptr;
    LMProgressIndicator* m_progressIndicator = nullptr;
};
