// SPDX-License-Identifier: MIT
#pragma once

#include <QMenu>

/// A button's menu that loses no key: those that follow fast on the one that chooses an entry are
/// still sent to the menu, which is closed by then. They are meant for what the entry has opened,
/// and go to whatever has the focus in the button's window.
class LMPassingMenu final : public QMenu {
    Q_OBJECT
public:
    explicit LMPassingMenu(QWidget* button) : QMenu(button) {}

protected:
    /// Closing destroys the window of the platform, and the toolkit drops what is sent to it.
    void closeEvent(QCloseEvent* event) override;
    bool event(QEvent* event) override;
};
