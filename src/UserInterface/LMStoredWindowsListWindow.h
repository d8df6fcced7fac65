// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

class LMDisplayView;
class QAbstractItemModel;
class QAction;
class QBoxLayout;
class QLabel;
class QStyledItemDelegate;
class QTreeView;

/// The window of the stored windows list: the workspaces beside the map of the selected one's
/// displays, and what can be done with it, by buttons, menu and keys.
class LMStoredWindowsListWindow final : public QWidget {
    Q_OBJECT
public:
    /// The workspaces outlive the window.
    explicit LMStoredWindowsListWindow(QAbstractItemModel& workspaces);

    QTreeView& tableView() { return *m_tableView; }
    LMDisplayView& displayView() { return *m_displayView; }

    /// What can be done with the selection now.
    void setAvailable(bool hasSelection, bool canMakeActive);

    /// Writes a name that is being typed into its record.
    void commitEditing();

    QSize sizeHint() const override;

Q_SIGNALS:
    void removeRequested();
    void editRequested();
    void makeActiveRequested();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void makeTableView(QAbstractItemModel& workspaces);
    void makeActions();
    QAction* addListAction(const QString& name, const QString& text, const QString& toolTip,
                           const QList<QKeySequence>& keys);
    void addButton(QBoxLayout& row, QAction& action);
    void showWhetherEmpty();

    QTreeView* m_tableView;
    QStyledItemDelegate* m_rowDelegate;
    QLabel* m_emptyLabel;
    LMDisplayView* m_displayView;
    QAction* m_editAction = nullptr;
    QAction* m_renameAction = nullptr;
    QAction* m_makeActiveAction = nullptr;
    QAction* m_deleteAction = nullptr;
};
