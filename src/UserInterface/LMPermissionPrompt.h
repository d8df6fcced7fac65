// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>
#include <QTimer>

#include <chrono>
#include <memory>

class LMAlertWindow;
class LMDesktop;
class QWidget;

/// The dialog that says why windows of other applications cannot be moved. There is one at most,
/// and nothing waits for it.
class LMPermissionPrompt {
public:
    /// patience: how long what is missing may come late, as a window manager does that starts with
    /// the session or is being replaced.
    explicit LMPermissionPrompt(LMDesktop& desktop,
                                std::chrono::milliseconds patience = std::chrono::seconds(3));
    ~LMPermissionPrompt();
    Q_DISABLE_COPY_MOVE(LMPermissionPrompt)

    /// Shows the dialog if something is still missing after a while, until the user closes it or
    /// nothing is missing any more. With nothing missing, takes it away at once.
    void show(const QString& missing);

    /// Null while it is not shown.
    const QWidget* window() const;

private:
    void look();
    void open(const QStringList& missing);

    LMDesktop& m_desktop;
    QTimer m_patience;
    std::unique_ptr<LMAlertWindow> m_window;
};
