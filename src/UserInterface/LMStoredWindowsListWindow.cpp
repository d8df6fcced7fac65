// SPDX-License-Identifier: MIT
#include "UserInterface/LMStoredWindowsListWindow.h"

#include "UserInterface/LMDisplayView.h"
#include "UserInterface/LMWorkspaceListModel.h"
#include "Utilities/LMFormat.h"

#include <QAction>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSplitter>
#include <QStyledItemDelegate>
#include <QTreeView>
#include <QVBoxLayout>

namespace {

constexpr int Margin = 12;

/// Rows with room between them.
class RowDelegate final : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        const QSize size = QStyledItemDelegate::sizeHint(option, index);
        return size + QSize(0, option.fontMetrics.height() / 2);
    }

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override {
        QWidget* editor = QStyledItemDelegate::createEditor(parent, option, index);
        editor->setAccessibleName(LMLocalized("Name"));
        return editor;
    }

    /// A name that is being typed stays when its row is read anew.
    void setEditorData(QWidget* editor, const QModelIndex& index) const override {
        const auto* line = qobject_cast<const QLineEdit*>(editor);
        if (line == nullptr || !line->isModified())
            QStyledItemDelegate::setEditorData(editor, index);
    }

    /// Writes each text once: renaming saves, and saving asks for what is being typed.
    void setModelData(QWidget* editor, QAbstractItemModel* model,
                      const QModelIndex& index) const override {
        constexpr const char* Written = "written";
        const auto* line = static_cast<const QLineEdit*>(editor);
        if (!line->isModified() || editor->property(Written) == QVariant(line->text()))
            return;
        editor->setProperty(Written, line->text());
        QStyledItemDelegate::setModelData(editor, model, index);
    }
};

/// Wide enough for a header or a usual text, in a font of any size.
int columnWidth(const QTreeView& view, int column) {
    const QFontMetrics metrics = view.fontMetrics();
    constexpr int Padding = 24; // The mark of the order stands beside the title.
    const QString title =
        view.model()->headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
    const int least = metrics.horizontalAdvance(title) + Padding;
    const int usual = column == LMWorkspaceListModel::Name       ? 24
                      : column == LMWorkspaceListModel::Displays ? 28
                      : column == LMWorkspaceListModel::Status   ? 23
                                                                 : 0;
    return qMax(least, metrics.averageCharWidth() * usual);
}

} // namespace

LMStoredWindowsListWindow::LMStoredWindowsListWindow(QAbstractItemModel& workspaces)
    : m_tableView(new QTreeView), m_rowDelegate(new RowDelegate(m_tableView)),
      m_emptyLabel(new QLabel), m_displayView(new LMDisplayView) {
    setObjectName(QStringLiteral("storedWindowsList"));
    setWindowRole(objectName());
    setWindowTitle(LMLocalized("Stored Windows"));
    makeTableView(workspaces);
    makeActions();

    auto* splitter = new QSplitter;
    splitter->addWidget(m_tableView);
    splitter->addWidget(m_displayView);
    splitter->setStretchFactor(0, 3);
    splitter->setStretchFactor(1, 1);
    splitter->setSizes({m_tableView->header()->length(), m_displayView->sizeHint().width()});
    splitter->setChildrenCollapsible(false);
    splitter->setHandleWidth(Margin);
    auto* row = new QHBoxLayout;
    addButton(*row, *m_deleteAction);
    addButton(*row, *m_renameAction);
    row->addStretch();
    addButton(*row, *m_makeActiveAction);
    addButton(*row, *m_editAction);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(Margin, Margin, Margin, Margin);
    layout->setSpacing(Margin);
    layout->addWidget(splitter, 1);
    layout->addLayout(row);
    m_tableView->setFocus();
}

QSize LMStoredWindowsListWindow::sizeHint() const {
    const int list = m_tableView->header()->length() + 2 * Margin;
    const int height = qMax(340, m_tableView->fontMetrics().height() * 18);
    return {list + m_displayView->sizeHint().width() + 3 * Margin, height};
}

void LMStoredWindowsListWindow::makeTableView(QAbstractItemModel& workspaces) {
    QTreeView& view = *m_tableView;
    view.setObjectName(QStringLiteral("workspaces"));
    view.setAccessibleName(LMLocalized("Display configurations"));
    view.setModel(&workspaces);
    view.setItemDelegate(m_rowDelegate);
    view.setRootIsDecorated(false);
    view.setUniformRowHeights(true);
    view.setAllColumnsShowFocus(true);
    view.setAlternatingRowColors(true);
    view.setSortingEnabled(true);
    view.sortByColumn(LMWorkspaceListModel::Status, Qt::AscendingOrder);
    view.setEditTriggers(QAbstractItemView::NoEditTriggers);
    view.header()->setStretchLastSection(true);
    view.header()->setSectionsMovable(false);
    for (int column = 0; column < LMWorkspaceListModel::ColumnCount; ++column)
        view.setColumnWidth(column, columnWidth(view, column));
    connect(&workspaces, &QAbstractItemModel::layoutChanged, &view,
            [&view] { view.scrollTo(view.currentIndex()); }); // A new name may be elsewhere.
    connect(&view, &QTreeView::doubleClicked, this, &LMStoredWindowsListWindow::editRequested);

    m_emptyLabel->setObjectName(QStringLiteral("emptyLabel"));
    m_emptyLabel->setText(LMLocalized(
        "No windows are stored yet.\nArrange your windows and choose “Store All Windows”."));
    m_emptyLabel->setAlignment(Qt::AlignCenter);
    m_emptyLabel->setWordWrap(true);
    m_emptyLabel->setEnabled(false);
    auto* layout = new QVBoxLayout(view.viewport());
    layout->addWidget(m_emptyLabel);
    for (const auto signal : {&QAbstractItemModel::rowsInserted, &QAbstractItemModel::rowsRemoved})
        connect(&workspaces, signal, this, &LMStoredWindowsListWindow::showWhetherEmpty);
    connect(&workspaces, &QAbstractItemModel::modelReset, this,
            &LMStoredWindowsListWindow::showWhetherEmpty);
    showWhetherEmpty();
}

void LMStoredWindowsListWindow::showWhetherEmpty() {
    m_emptyLabel->setVisible(m_tableView->model()->rowCount() == 0);
}

void LMStoredWindowsListWindow::makeActions() {
    m_editAction = addListAction(QStringLiteral("edit"), LMLocalized("&Edit"),
                                 LMLocalized("Shows applications and windows"),
                                 {Qt::Key_Return, Qt::Key_Enter});
    m_renameAction =
        addListAction(QStringLiteral("rename"), LMLocalized("&Rename"),
                      LMLocalized("Gives the display configuration a name"), {Qt::Key_F2});
    m_makeActiveAction =
        addListAction(QStringLiteral("makeActive"), LMLocalized("Make &Active"),
                      LMLocalized("Arranges the attached displays like these"), {});
    m_deleteAction = addListAction(QStringLiteral("delete"), LMLocalized("&Delete…"),
                                   LMLocalized("Forgets the display configuration and its windows"),
                                   {Qt::Key_Delete});
    connect(m_editAction, &QAction::triggered, this, &LMStoredWindowsListWindow::editRequested);
    connect(m_renameAction, &QAction::triggered, this, [this] {
        const QModelIndex current = m_tableView->currentIndex();
        m_tableView->edit(current.siblingAtColumn(LMWorkspaceListModel::Name));
    });
    connect(m_makeActiveAction, &QAction::triggered, this,
            &LMStoredWindowsListWindow::makeActiveRequested);
    connect(m_deleteAction, &QAction::triggered, this, &LMStoredWindowsListWindow::removeRequested);
    m_tableView->setContextMenuPolicy(Qt::ActionsContextMenu);
    auto* close = new QAction(this);
    close->setShortcut(QKeySequence::Close);
    connect(close, &QAction::triggered, this, &QWidget::close);
    addAction(close);
}

/// The keys belong to the list: while a name is edited in it they are the text field's.
QAction* LMStoredWindowsListWindow::addListAction(const QString& name, const QString& text,
                                                  const QString& toolTip,
                                                  const QList<QKeySequence>& keys) {
    auto* action = new QAction(text, m_tableView);
    action->setObjectName(name);
    action->setToolTip(toolTip);
    action->setShortcuts(keys);
    action->setShortcutContext(Qt::WidgetShortcut);
    m_tableView->addAction(action);
    return action;
}

void LMStoredWindowsListWindow::addButton(QBoxLayout& row, QAction& action) {
    auto* button = new QPushButton(action.text());
    button->setObjectName(action.objectName() + QStringLiteral("Button"));
    button->setToolTip(action.toolTip());
    button->setAccessibleDescription(action.toolTip());
    connect(button, &QPushButton::clicked, &action, &QAction::trigger);
    connect(&action, &QAction::changed, button,
            [button, &action] { button->setEnabled(action.isEnabled()); });
    row.addWidget(button);
}

void LMStoredWindowsListWindow::commitEditing() {
    for (QLineEdit* editor : m_tableView->viewport()->findChildren<QLineEdit*>()) {
        if (editor->isVisible())
            Q_EMIT m_rowDelegate->commitData(editor);
    }
}

void LMStoredWindowsListWindow::setAvailable(bool hasSelection, bool canMakeActive) {
    for (QAction* action : {m_editAction, m_renameAction, m_deleteAction})
        action->setEnabled(hasSelection);
    m_makeActiveAction->setEnabled(hasSelection && canMakeActive);
}

void LMStoredWindowsListWindow::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape && event->modifiers() == Qt::NoModifier)
        close();
    else
        QWidget::keyPressEvent(event);
}
