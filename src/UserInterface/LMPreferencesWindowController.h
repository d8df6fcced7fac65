// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

#include <memory>
#include <vector>

class LMDesktop;
class LMPreferencesViewController;
class QTabWidget;

/// The window of the preferences: one tab for each pane.
class LMPreferencesWindowController final : public QObject {
    Q_OBJECT
public:
    using Panes = std::vector<std::unique_ptr<LMPreferencesViewController>>;

    /// The panes in their order; the first is selected. The desktop outlives the controller.
    LMPreferencesWindowController(Panes panes, QString title, LMDesktop& desktop);
    ~LMPreferencesWindowController() override;

    /// Shows the window where the user is.
    void showWindow();
    /// The window, null before it was shown.
    QWidget* window() const { return m_window.get(); }

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    void makeWindow();
    void showPane(int index);
    void fitWindow();

    Panes m_panes;
    QString m_title;
    LMDesktop& m_desktop;
    int m_shownPane = -1; ///< Below 0 while the window is closed.
    std::unique_ptr<QWidget> m_window;
    QTabWidget* m_tabs = nullptr;
};
