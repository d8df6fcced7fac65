// SPDX-License-Identifier: MIT
#include "UserInterface/Editing/LMStoredWindowsEditorWindow.h"

#include "Model/LMAction.h"
#include "Model/LMApplication.h"
#include "Model/LMStoredWindow.h"
#include "Model/LMWindow.h"
#include "Model/LMWorkspace.h"
#include "Model/Store/LMObjectContext.h"
#include "UserInterface/Editing/LMActionsModel.h"
#include "UserInterface/Editing/LMApplicationsModel.h"
#include "UserInterface/Editing/LMScreenshotView.h"
#include "UserInterface/Editing/LMScriptEditor.h"
#include "UserInterface/Editing/LMStateMenu.h"
#include "UserInterface/Editing/LMStoredWindowsModel.h"
#include "UserInterface/Editing/LMTableView.h"
#include "UserInterface/LMPresentableText.h"
#include "Utilities/LMFormat.h"

#include <QCloseEvent>
#include <QPushButton>

namespace {

template <class T>
T* objectWithID(const LMObjectContext& context, const LMObjectID& id) {
    return dynamic_cast<T*>(context.existingObjectWithID(id));
}

} // namespace

// Parts that go while the keyboard is in them still tell of it.
LMStoredWindowsEditorWindow::~LMStoredWindowsEditorWindow() {
    for (QObject* part : findChildren<QObject*>())
        part->disconnect(this);
}

QIcon LMStoredWindowsEditorWindow::appleScriptActionIcon() {
    return QPixmap::fromImage(LMAction::iconForScripts(QStringLiteral("AppleScript")));
}

QIcon LMStoredWindowsEditorWindow::shellScriptActionIcon() {
    return QPixmap::fromImage(LMAction::iconForScripts(QStringLiteral("Shell Script")));
}

void LMStoredWindowsEditorWindow::reload(LMWorkspace* workspace) {
    m_hasWorkspace = workspace != nullptr;
    setWindowTitle(workspace ? LMPresentableLine(workspace->name())
                             : LMLocalized("Stored Windows"));
    m_applications->setWorkspace(workspace);
    m_applicationsTableView->selectSomething();
    showWindowsOfApplication();
    m_actions->setWorkspace(workspace);
    m_actionsTableView->selectSomething();
    showScript();
    showScreenshot();
    updateButtons();
}

void LMStoredWindowsEditorWindow::commitEditing() {
    for (LMTableView* table : {m_applicationsTableView, m_windowsTableView, m_actionsTableView})
        table->commitEditing();
}

void LMStoredWindowsEditorWindow::reveal(const LMObjectID& record) {
    if (const auto* window = objectWithID<LMStoredWindow>(m_context, record))
        m_applicationsTableView->select(window->application()->objectID());
    for (LMTableView* table : {m_applicationsTableView, m_windowsTableView, m_actionsTableView})
        table->select(record);
}

void LMStoredWindowsEditorWindow::editLabelOfAction(const LMObjectID& action) {
    m_actionsTableView->select(action);
    const qsizetype row = m_actions->records().indexOf(action);
    const QModelIndex cell = m_actions->index(int(row), LMActionsModel::Label);
    if (!cell.isValid())
        return;
    m_actionsTableView->setFocus();
    m_actionsTableView->setCurrentIndex(cell);
    m_actionsTableView->edit(cell);
}

// --- what follows from a selection ---------------------------------------------------------

void LMStoredWindowsEditorWindow::showWindowsOfApplication() {
    m_windows->setApplication(
        objectWithID<LMApplication>(m_context, m_applicationsTableView->selectedRecord()));
    m_windowsTableView->selectSomething();
    updateButtons();
}

void LMStoredWindowsEditorWindow::showScript() {
    m_scriptEditor->updateActionEditorView(
        objectWithID<LMAction>(m_context, m_actionsTableView->selectedRecord()));
    updateButtons();
}

void LMStoredWindowsEditorWindow::showScreenshot() {
    auto* window = objectWithID<LMStoredWindow>(m_context, m_windowsTableView->selectedRecord());
    const std::vector<LMWindow*> snapshots =
        window ? window->orderedMatchingWindows() : std::vector<LMWindow*>();
    const QString path = snapshots.empty() ? QString() : snapshots.front()->screenshotPath();
    // A window that was never pictured has the default picture; no window has none.
    m_screenshotView->showScreenshot(!snapshots.empty() && path.isNull() ? QStringLiteral("")
                                                                         : path);
}

void LMStoredWindowsEditorWindow::updateButtons() {
    const bool hasWindow = !m_windowsTableView->selectedRecord().isNull();
    const bool hasAction = !m_actionsTableView->selectedRecord().isNull();
    m_removeApplicationButton->setEnabled(!m_applicationsTableView->selectedRecord().isNull());
    m_removeWindowButton->setEnabled(hasWindow);
    const int row = m_windowsTableView->currentIndex().row();
    m_moveUpButton->setEnabled(hasWindow && row > 0);
    m_moveDownButton->setEnabled(hasWindow && row + 1 < m_windows->rowCount());
    m_stateButton->setEnabled(hasWindow);
    m_addActionButton->setEnabled(m_hasWorkspace);
    m_removeActionButton->setEnabled(hasAction);
    m_runButton->setEnabled(hasAction);
}

LMEditedState LMStoredWindowsEditorWindow::selectedState() const {
    const auto* window =
        objectWithID<LMStoredWindow>(m_context, m_windowsTableView->selectedRecord());
    return window ? LMEditedState{window->state(), window->frame()} : LMEditedState();
}

void LMStoredWindowsEditorWindow::moveSelectedWindow(int rows) {
    const qsizetype row = m_windows->records().indexOf(m_windowsTableView->selectedRecord());
    if (row >= 0)
        m_windows->moveRow(int(row), int(row) + (rows > 0 ? rows + 1 : rows));
}

void LMStoredWindowsEditorWindow::closeEvent(QCloseEvent* event) {
    event->accept();
    Q_EMIT closing();
}
