// SPDX-License-Identifier: MIT
// How the editor's window is put together.
#include "Platform/LMDesktop.h"
#include "Platform/LMEnvironment.h"
#include "UserInterface/Editing/LMActionsModel.h"
#include "UserInterface/Editing/LMApplicationsModel.h"
#include "UserInterface/Editing/LMPassingMenu.h"
#include "UserInterface/Editing/LMRegularExpressionValidationFormatter.h"
#include "UserInterface/Editing/LMScreenshotView.h"
#include "UserInterface/Editing/LMScriptEditor.h"
#include "UserInterface/Editing/LMStateMenu.h"
#include "UserInterface/Editing/LMStoredWindowsEditorWindow.h"
#include "UserInterface/Editing/LMStoredWindowsModel.h"
#include "UserInterface/Editing/LMTableView.h"
#include "Utilities/LMFormat.h"

#include <QAction>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QShortcut>
#include <QSplitter>
#include <QUndoStack>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace {

constexpr QSize DefaultSize(1040, 680);
constexpr int Margin = 12;
constexpr int Spacing = 6;

/// A titled pane; the title's mnemonic leads to the buddy.
QVBoxLayout* makePane(QWidget* pane, const QString& title, QWidget* buddy) {
    auto* layout = new QVBoxLayout(pane);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(Spacing);
    auto* label = new QLabel(title, pane);
    label->setBuddy(buddy);
    layout->addWidget(label);
    return layout;
}

QHBoxLayout* makeButtonRow(const QList<QPushButton*>& buttons) {
    auto* row = new QHBoxLayout;
    row->setSpacing(Spacing);
    for (QPushButton* button : buttons)
        row->addWidget(button);
    row->addStretch(1);
    return row;
}

QSplitter* makeSplitter(Qt::Orientation orientation, QList<QWidget*> panes, QList<int> sizes) {
    auto* splitter = new QSplitter(orientation);
    // Left to itself a splitter that runs from the right cuts a bit off each pane's edge.
    if (orientation == Qt::Horizontal && QGuiApplication::isRightToLeft()) {
        std::reverse(panes.begin(), panes.end());
        std::reverse(sizes.begin(), sizes.end());
        splitter->setLayoutDirection(Qt::LeftToRight);
        for (QWidget* pane : panes)
            pane->setLayoutDirection(Qt::RightToLeft);
    }
    splitter->setChildrenCollapsible(false);
    splitter->setHandleWidth(Margin);
    for (QWidget* pane : panes)
        splitter->addWidget(pane);
    splitter->setSizes(sizes);
    for (int index = 0; index < sizes.size(); ++index)
        splitter->setStretchFactor(index, sizes[index]);
    return splitter;
}

} // namespace

LMStoredWindowsEditorWindow::LMStoredWindowsEditorWindow(LMEnvironment& environment,
                                                         LMObjectContext& context,
                                                         QUndoStack& undoStack)
    : m_context(context), m_applications(new LMApplicationsModel(context, this)),
      m_windows(new LMStoredWindowsModel(context, this)),
      m_actions(new LMActionsModel(context, this)), m_screenshotView(new LMScreenshotView(this)),
      m_scriptEditor(new LMScriptEditor(context, environment.scriptHost, this)) {
    setObjectName(QStringLiteral("storedWindowsEditor"));
    setWindowRole(objectName());
    resize(DefaultSize);
    makeTables();
    makeButtons(undoStack);
    makeStateButton(environment.desktop.windowStates());
    makeLayout();
    for (const QKeySequence& key :
         {QKeySequence(QKeySequence::Close), QKeySequence(Qt::Key_Escape)})
        connect(new QShortcut(key, this), &QShortcut::activated, this, &QWidget::close);
    reload(nullptr);
}

// --- tables -------------------------------------------------------------------------------------

void LMStoredWindowsEditorWindow::makeTables() {
    using Width = LMTableView::Width;
    m_applicationsTableView = new LMTableView(m_applications, LMLocalized("Applications"), this);
    m_applicationsTableView->setObjectName(QStringLiteral("applicationsTableView"));
    m_applicationsTableView->horizontalHeader()->hide();
    m_applicationsTableView->setColumnWidths({{Width::Rest, {}}});

    m_windowsTableView = new LMTableView(m_windows, LMLocalized("Stored windows"), this);
    m_windowsTableView->setObjectName(QStringLiteral("windowsTableView"));
    m_windowsTableView->setPlaceholderText(LMLocalized("No stored windows"));
    m_windowsTableView->setItemDelegateForColumn(
        LMStoredWindowsModel::Pattern,
        new LMRegularExpressionValidationFormatter(m_windowsTableView));
    // Windows are known by their titles.
    m_windowsTableView->setColumnWidths(
        {{Width::Text, QStringLiteral("A name of it")},
         {Width::Rest, QStringLiteral("A title that can be read")},
         {Width::Contents, QStringLiteral("^A pattern.*of it$")},
         {Width::Contents, QStringLiteral("1920 × 1080 at -1920, 1080")},
         {Width::Contents, QStringLiteral("Maximized, on desktop 2 “Mail”")}});
    m_windowsTableView->setDragDropMode(QAbstractItemView::InternalMove);
    m_windowsTableView->setDragDropOverwriteMode(false);

    m_actionsTableView = new LMTableView(m_actions, LMLocalized("Actions"), this);
    m_actionsTableView->setObjectName(QStringLiteral("actionsTableView"));
    const QString box =
        m_actions->headerData(LMActionsModel::OnDisplayChange, Qt::Horizontal, Qt::DisplayRole)
            .toString();
    m_actionsTableView->setColumnWidths(
        {{Width::Text, QStringLiteral("m")}, {Width::Rest, {}}, {Width::Text, box}});
    m_actionsTableView->setPlaceholderText(
        LMLocalized("Actions are scripts that run before the windows are restored."));

    connectTable(m_applicationsTableView);
    connectTable(m_windowsTableView);
    connectTable(m_actionsTableView);
    connect(m_applicationsTableView, &LMTableView::selectedRecordChanged, this,
            &LMStoredWindowsEditorWindow::showWindowsOfApplication);
    connect(m_windowsTableView, &LMTableView::selectedRecordChanged, this, [this] {
        showScreenshot();
        updateButtons();
    });
    connect(m_actionsTableView, &LMTableView::selectedRecordChanged, this,
            &LMStoredWindowsEditorWindow::showScript);
    connect(m_windows, &LMStoredWindowsModel::orderRequested, this,
            &LMStoredWindowsEditorWindow::orderRequested);
    connect(m_actions, &LMActionsModel::boxChanged, this,
            &LMStoredWindowsEditorWindow::editingEnded);
    connect(m_scriptEditor, &LMScriptEditor::editingEnded, this,
            &LMStoredWindowsEditorWindow::editingEnded);
}

void LMStoredWindowsEditorWindow::connectTable(LMTableView* table) {
    connect(table, &LMTableView::removeRequested, this,
            [this, table] { Q_EMIT removeRequested(table); });
    for (QAbstractItemDelegate* delegate : table->findChildren<QAbstractItemDelegate*>())
        connect(delegate, &QAbstractItemDelegate::closeEditor, this,
                &LMStoredWindowsEditorWindow::editingEnded);
}

// --- buttons ------------------------------------------------------------------------------------

QPushButton* LMStoredWindowsEditorWindow::makeRemoveButton(const char* text, const char* name,
                                                           LMTableView* table) {
    auto* button = new QPushButton(LMLocalized(text), this);
    button->setAccessibleName(LMLocalized(name));
    connect(button, &QPushButton::clicked, this, [this, table] { Q_EMIT removeRequested(table); });
    return button;
}

QPushButton* LMStoredWindowsEditorWindow::makeMoveButton(const char* text, Qt::Key key, int rows) {
    auto* button = new QPushButton(LMLocalized(text), this);
    const QKeySequence shortcut(QKeyCombination(Qt::AltModifier, key));
    button->setToolTip(shortcut.toString(QKeySequence::NativeText));
    const auto move = [this, rows] { moveSelectedWindow(rows); };
    connect(button, &QPushButton::clicked, this, move);
    connect(new QShortcut(shortcut, m_windowsTableView, nullptr, nullptr, Qt::WidgetShortcut),
            &QShortcut::activated, this, move);
    return button;
}

void LMStoredWindowsEditorWindow::makeButtons(QUndoStack& undoStack) {
    m_removeApplicationButton = makeRemoveButton(
        LMLocalizable("&Remove"), LMLocalizable("Remove Application"), m_applicationsTableView);
    m_removeWindowButton = makeRemoveButton(LMLocalizable("R&emove"),
                                            LMLocalizable("Remove Window"), m_windowsTableView);
    m_removeActionButton = makeRemoveButton(LMLocalizable("Re&move"),
                                            LMLocalizable("Remove Action"), m_actionsTableView);
    m_moveUpButton = makeMoveButton(LMLocalizable("Move &Up"), Qt::Key_Up, -1);
    m_moveDownButton = makeMoveButton(LMLocalizable("Move &Down"), Qt::Key_Down, 1);

    m_addActionButton = new QPushButton(LMLocalized("&Add"), this);
    m_addActionButton->setAccessibleName(LMLocalized("Add Action"));
    auto* menu = new LMPassingMenu(m_addActionButton);
    const auto add = [this, menu](const QIcon& icon, const QString& text, int tag) {
        connect(menu->addAction(icon, text), &QAction::triggered, this,
                [this, tag] { Q_EMIT addActionRequested(tag); });
    };
    add(shellScriptActionIcon(), LMLocalized("&Shell Script"), 2);
    add(appleScriptActionIcon(), LMLocalized("&AppleScript"), 1);
    menu->addSeparator();
    add({}, LMLocalized("&Import Script…"), 3);
    m_addActionButton->setMenu(menu);

    m_runButton = new QPushButton(LMLocalized("Ru&n"), this);
    m_runButton->setAccessibleName(LMLocalized("Run Action"));
    m_runButton->setToolTip(LMLocalized("Runs the action now and waits until it has ended"));
    connect(m_runButton, &QPushButton::clicked, this,
            &LMStoredWindowsEditorWindow::runActionRequested);

    m_undoButton = new QPushButton(this);
    const auto updateUndo = [this, &undoStack] {
        m_undoButton->setEnabled(undoStack.canUndo());
        m_undoButton->setText(undoStack.canUndo()
                                  ? LMFormat(LMLocalized("Und&o %@"), {undoStack.undoText()})
                                  : LMLocalized("Und&o"));
    };
    connect(&undoStack, &QUndoStack::indexChanged, m_undoButton, updateUndo);
    connect(m_undoButton, &QPushButton::clicked, &undoStack, &QUndoStack::undo);
    connect(new QShortcut(QKeySequence::Undo, this), &QShortcut::activated, &undoStack,
            &QUndoStack::undo);
    connect(new QShortcut(QKeySequence::Redo, this), &QShortcut::activated, &undoStack,
            &QUndoStack::redo);
    updateUndo();
}

void LMStoredWindowsEditorWindow::makeStateButton(LMWindowStates& windowStates) {
    m_stateButton = new QPushButton(LMLocalized("S&tate"), this);
    m_stateButton->setAccessibleName(LMLocalized("State to restore"));
    auto* menu = new LMStateMenu(
        windowStates, [this] { return selectedState(); }, m_stateButton);
    connect(menu, &LMStateMenu::stateRequested, this, &LMStoredWindowsEditorWindow::stateRequested);
    m_stateButton->setMenu(menu);
}

// --- layout -------------------------------------------------------------------------------------

QWidget* LMStoredWindowsEditorWindow::makeApplicationsPane() {
    auto* pane = new QWidget;
    QVBoxLayout* layout = makePane(pane, LMLocalized("A&pplications"), m_applicationsTableView);
    layout->addWidget(m_applicationsTableView, 1);
    layout->addLayout(makeButtonRow({m_removeApplicationButton}));
    return pane;
}

QWidget* LMStoredWindowsEditorWindow::makeWindowsPane() {
    auto* pane = new QWidget;
    QVBoxLayout* layout = makePane(pane, LMLocalized("&Windows"), m_windowsTableView);
    layout->addWidget(m_windowsTableView, 1);
    layout->addLayout(
        makeButtonRow({m_moveUpButton, m_moveDownButton, m_stateButton, m_removeWindowButton}));
    return pane;
}

QWidget* LMStoredWindowsEditorWindow::makeActionsPane() {
    auto* pane = new QWidget;
    QVBoxLayout* layout = makePane(pane, LMLocalized("A&ctions"), m_actionsTableView);
    layout->addWidget(m_actionsTableView, 1);
    layout->addLayout(makeButtonRow({m_addActionButton, m_removeActionButton, m_runButton}));
    return pane;
}

QWidget* LMStoredWindowsEditorWindow::makeScriptPane() {
    auto* pane = new QWidget;
    makePane(pane, LMLocalized("&Script"), m_scriptEditor)->addWidget(m_scriptEditor, 1);
    return pane;
}

void LMStoredWindowsEditorWindow::makeLayout() {
    QSplitter* actions =
        makeSplitter(Qt::Horizontal, {makeActionsPane(), makeScriptPane()}, {340, 460});
    QSplitter* left =
        makeSplitter(Qt::Vertical, {makeApplicationsPane(), m_screenshotView}, {440, 200});
    QSplitter* right = makeSplitter(Qt::Vertical, {makeWindowsPane(), actions}, {380, 260});
    auto* close = new QPushButton(LMLocalized("Close"), this);
    connect(close, &QPushButton::clicked, this, &QWidget::close);
    auto* bottom = new QHBoxLayout;
    bottom->addWidget(m_undoButton);
    bottom->addStretch(1);
    bottom->addWidget(close);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(Margin, Margin, Margin, Margin);
    layout->setSpacing(Margin);
    layout->addWidget(makeSplitter(Qt::Horizontal, {left, right}, {250, 790}), 1);
    layout->addLayout(bottom);
    // The order of the keyboard is that of reading.
    const QList<QWidget*> order{m_applicationsTableView,
                                m_removeApplicationButton,
                                m_windowsTableView,
                                m_moveUpButton,
                                m_moveDownButton,
                                m_stateButton,
                                m_removeWindowButton,
                                m_actionsTableView,
                                m_addActionButton,
                                m_removeActionButton,
                                m_runButton,
                                m_scriptEditor,
                                m_undoButton,
                                close};
    for (int index = 1; index < order.size(); ++index)
        setTabOrder(order[index - 1], order[index]);
    m_applicationsTableView->setFocus();
}
