// SPDX-License-Identifier: MIT
#pragma once

#include "Model/Store/LMObjectID.h"

#include <QObject>
#include <QUndoStack>

#include <memory>

class LMAction;
class LMStoredWindowsEditorWindow;
class LMStoredWindowsStore;
class LMTableView;
class LMWorkspace;
class QWidget;
struct LMAlert;
struct LMEditedState;
struct LMEnvironment;

/// The window in which the user inspects and prunes one workspace. Edits go straight to the records
/// and are saved by asking for it with LMNotification::SaveWindows.
///
/// Records may vanish with every save, so it knows them by their identifiers alone. Removals and
/// changes of states can be taken back until another workspace is edited.
class LMStoredWindowsEditor : public QObject {
    Q_OBJECT
public:
    /// The environment and the store outlive the editor.
    LMStoredWindowsEditor(LMEnvironment& environment, LMStoredWindowsStore& store);
    ~LMStoredWindowsEditor() override;

    /// None: the lists are blank.
    void setWorkspace(LMWorkspace* workspace);
    /// The workspace being edited; none when it was deleted.
    LMWorkspace* workspace() const;

    /// Shows the window in front of all applications.
    void showWindow();
    /// Does nothing when the window is not open.
    void close();
    /// The store has changed: reads again whatever is shown and keeps the selection.
    void reloadTableViews();
    /// Null while the window is not open.
    QWidget* window();

    /// Writes what is being typed into the records; never refuses.
    bool commitEditing();

    /// Removes what is selected in the table.
    void remove(LMTableView* sender);

    /// tag: 1 for an AppleScript, 2 for a shell script with its first line, 3 asks for a file; any
    /// other for an empty shell script.
    void addAction(int tag);
    /// Adds an action with the script of the file, or says in an alert why there is none.
    void importScript(const QString& path);
    /// Runs the selected action and returns when it has ended.
    void runAction();

private:
    class Removal;
    class StateChange;

    void windowWillClose();
    void saveWindows();
    void setState(const LMEditedState& wanted);
    void orderWindows(const QList<LMObjectID>& windows);
    void askForScript();
    LMAction* insertAction(const QString& label, const QString& runAs, const QString& script);
    void showAlert(const LMAlert& alert);

    LMEnvironment& m_environment;
    LMStoredWindowsStore& m_store;
    LMObjectID m_workspace;
    LMObjectID m_undoableWorkspace; ///< Whose removals are on the stack.
    QUndoStack m_undoStack;
    std::unique_ptr<LMStoredWindowsEditorWindow> m_window;
};
