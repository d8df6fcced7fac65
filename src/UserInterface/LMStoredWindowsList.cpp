// SPDX-License-Identifier: MIT
#include "UserInterface/LMStoredWindowsList.h"

#include "Model/LMDisplay.h"
#include "Model/LMStoredWindowsStore.h"
#include "Model/LMWorkspace.h"
#include "Model/Store/LMObjectContext.h"
#include "Platform/LMDesktop.h"
#include "Platform/LMEnvironment.h"
#include "UserInterface/LMAlertWindow.h"
#include "UserInterface/LMDisplayView.h"
#include "UserInterface/LMStoredWindowsListWindow.h"
#include "UserInterface/LMWindowPlacement.h"
#include "Utilities/LMFormat.h"
#include "Utilities/LMNotificationCenter.h"
#include "Utilities/LMRectangle.h"

#include <QTreeView>

LMStoredWindowsList::LMStoredWindowsList(LMEnvironment& environment, LMStoredWindowsStore& store)
    : m_environment(environment), m_store(store), m_storedWindowsEditor(environment, store),
      m_deleteConfirmationAlert{
          LMLocalized("Delete display configuration"),
          LMLocalized("Do you wish to delete all stored windows for the selected display "
                      "configuration?"),
          {LMLocalized("Delete"), LMLocalized("Cancel")}},
      m_workspaces(environment, store), m_workspacesController(m_workspaces) {
    m_store.setCommitEditingHandler([this] { return commitEditing(); });
}

LMStoredWindowsList::~LMStoredWindowsList() {
    m_store.setCommitEditingHandler({});
}

QWidget* LMStoredWindowsList::window() const {
    return m_window.get();
}

void LMStoredWindowsList::windowDidLoad() {
    m_workspaces.reload();
    m_window = std::make_unique<LMStoredWindowsListWindow>(m_workspacesController);
    connect(m_window.get(), &LMStoredWindowsListWindow::removeRequested, this,
            &LMStoredWindowsList::removeWorkspace);
    connect(m_window.get(), &LMStoredWindowsListWindow::editRequested, this,
            &LMStoredWindowsList::editWorkspace);
    connect(m_window.get(), &LMStoredWindowsListWindow::makeActiveRequested, this,
            &LMStoredWindowsList::makeActive);
    connect(m_window->tableView().selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &LMStoredWindowsList::selectionDidChange);
    connect(&m_workspaces, &QAbstractItemModel::dataChanged, this,
            &LMStoredWindowsList::selectionDidChange);
    connect(&m_environment.desktop.screens(), &LMScreens::screenParametersChanged, this,
            &LMStoredWindowsList::reloadTableViews);
    m_window->resize(m_window->sizeHint());
    selectionDidChange();
}

void LMStoredWindowsList::showWindow() {
    m_storedWindowsEditor.close();
    if (!m_window)
        windowDidLoad();
    LMPresentWindow(*m_window, m_environment.desktop);
    reloadTableViews();
    if (selectedRow() < 0)
        m_window->tableView().setCurrentIndex(m_workspacesController.index(0, 0));
}

void LMStoredWindowsList::reloadTableViews() {
    if (m_window && m_window->isVisible())
        m_workspaces.reload();
    m_storedWindowsEditor.reloadTableViews();
}

bool LMStoredWindowsList::commitEditing() {
    if (m_window)
        m_window->commitEditing();
    return m_storedWindowsEditor.commitEditing();
}

// --- the selection -------------------------------------------------------------------------

int LMStoredWindowsList::selectedRow() const {
    if (!m_window)
        return -1;
    // Not the current row: that stays when the selection is taken away with Ctrl.
    const QModelIndexList rows = m_window->tableView().selectionModel()->selectedRows();
    return rows.isEmpty() ? -1 : m_workspacesController.mapToSource(rows.first()).row();
}

LMObjectID LMStoredWindowsList::selectedObjectID() const {
    const int row = selectedRow();
    return row < 0 ? LMObjectID() : m_workspaces.objectID(row);
}

LMWorkspace* LMStoredWindowsList::selectedWorkspace() const {
    return m_workspaces.workspace(selectedObjectID());
}

void LMStoredWindowsList::selectionDidChange() {
    using State = LMWorkspaceListModel::State;
    QList<QRectF> displays;
    const LMWorkspace* workspace = selectedWorkspace();
    if (workspace)
        for (const LMDisplay* display : workspace->displays())
            displays.append(LMRectFromString(display->displayBounds()));
    m_window->displayView().setDisplays(displays);
    m_window->setAvailable(workspace, workspace && m_workspaces.state(selectedRow()) ==
                                                       State::CanBecomeCurrent);
}

// --- what the user asks for ----------------------------------------------------------------

void LMStoredWindowsList::removeWorkspace() {
    const LMObjectID workspace = selectedObjectID();
    if (!m_workspaces.workspace(workspace))
        return;
    auto* sheet = new LMAlertWindow(m_deleteConfirmationAlert, m_window.get());
    sheet->setAttribute(Qt::WA_DeleteOnClose);
    connect(sheet, &QDialog::finished, this,
            [this, sheet, workspace] { alertDidEnd(sheet->answer().buttonCode, workspace); });
    sheet->open();
}

void LMStoredWindowsList::alertDidEnd(int returnCode, const LMObjectID& workspace) {
    LMWorkspace* record = m_workspaces.workspace(workspace);
    if (returnCode != LMAlertAnswer::FirstButton || !record)
        return;
    m_store.managedObjectContext().deleteObject(record);
    m_environment.notificationCenter.postNotification(LMNotification::SaveWindows);
    reloadTableViews();
}

void LMStoredWindowsList::editWorkspace() {
    LMWorkspace* workspace = selectedWorkspace();
    if (!workspace)
        return;
    m_storedWindowsEditor.setWorkspace(workspace);
    m_window->close();
    m_storedWindowsEditor.showWindow();
}

void LMStoredWindowsList::makeActive() {
    if (LMWorkspace* workspace = selectedWorkspace())
        workspace->makeCurrentWorkspace();
}
