// SPDX-License-Identifier: MIT
#pragma once

#include "Controller/LMAlert.h"
#include "Model/Store/LMObjectID.h"
#include "UserInterface/LMStoredWindowsEditor.h"
#include "UserInterface/LMWorkspaceListModel.h"
#include "UserInterface/LMWorkspaceOrder.h"

#include <QObject>

#include <memory>

class LMStoredWindowsListWindow;
class LMStoredWindowsStore;
class LMWorkspace;
struct LMEnvironment;

/// The window that lists all workspaces and lets the user delete one, rename it, make it the
/// current one, or open it in the editor. The record that is selected is looked up whenever it is
/// needed: saves and commands may have deleted it.
class LMStoredWindowsList final : public QObject {
    Q_OBJECT
public:
    /// Both outlive the list.
    LMStoredWindowsList(LMEnvironment& environment, LMStoredWindowsStore& store);
    ~LMStoredWindowsList() override;

    LMStoredWindowsEditor& storedWindowsEditor() { return m_storedWindowsEditor; }

    /// Closes the editor and shows the list in front, up to date.
    void showWindow();
    /// The window, null before it was shown.
    QWidget* window() const;

    /// Asks whether the selected workspace shall be deleted, as a sheet; returns at once.
    void removeWorkspace();
    /// Opens the selected workspace in the editor in place of the list.
    void editWorkspace();
    /// Arranges the displays as those of the selected workspace stood.
    void makeActive();

    /// The store has changed.
    void reloadTableViews();
    /// Writes what is being typed, here or in the editor, into the records; never refuses.
    bool commitEditing();

private:
    void windowDidLoad();
    void selectionDidChange();
    void alertDidEnd(int returnCode, const LMObjectID& workspace);
    int selectedRow() const; ///< Of the model, below 0 for none.
    LMObjectID selectedObjectID() const;
    LMWorkspace* selectedWorkspace() const;

    LMEnvironment& m_environment;
    LMStoredWindowsStore& m_store;
    LMStoredWindowsEditor m_storedWindowsEditor;
    LMAlert m_deleteConfirmationAlert;
    LMWorkspaceListModel m_workspaces;
    LMWorkspaceOrder m_workspacesController;
    std::unique_ptr<LMStoredWindowsListWindow> m_window;
};
