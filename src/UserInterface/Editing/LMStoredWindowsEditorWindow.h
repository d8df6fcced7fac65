// SPDX-License-Identifier: MIT
#pragma once

#include "Model/Store/LMObjectID.h"

#include <QIcon>
#include <QWidget>

class LMActionsModel;
class LMApplicationsModel;
class LMObjectContext;
class LMScreenshotView;
class LMScriptEditor;
class LMStoredWindowsModel;
class LMTableView;
class LMWindowStates;
class LMWorkspace;
class QPushButton;
class QUndoStack;
struct LMEditedState;
struct LMEnvironment;

/// The widgets of the editor and what they show of one workspace. It changes nothing by itself:
/// what the user asks for is announced.
class LMStoredWindowsEditorWindow final : public QWidget {
    Q_OBJECT
public:
    /// All of them outlive the window.
    LMStoredWindowsEditorWindow(LMEnvironment& environment, LMObjectContext& context,
                                QUndoStack& undoStack);
    ~LMStoredWindowsEditorWindow() override;

    /// Reads everything that is shown again and keeps the selections; of no workspace nothing.
    void reload(LMWorkspace* workspace);
    /// Writes what was typed so far into the records.
    void commitEditing();
    /// Selects the record wherever it is shown, its application first.
    void reveal(const LMObjectID& record);
    /// Lets the user type the label of an action.
    void editLabelOfAction(const LMObjectID& action);

    /// 16 × 16 points.
    static QIcon appleScriptActionIcon();
    static QIcon shellScriptActionIcon();

    LMTableView* applicationsTableView() const { return m_applicationsTableView; }
    LMTableView* windowsTableView() const { return m_windowsTableView; }
    LMTableView* actionsTableView() const { return m_actionsTableView; }
    LMScriptEditor* scriptEditor() const { return m_scriptEditor; }
    LMScreenshotView* screenshotView() const { return m_screenshotView; }
    QPushButton* addActionButton() const { return m_addActionButton; }

Q_SIGNALS:
    /// A change is complete and may be saved.
    void editingEnded();
    void removeRequested(LMTableView* sender);
    /// The selected stored window shall have this state.
    void stateRequested(const LMEditedState& wanted);
    /// The stored windows of the selected application shall stand in this order.
    void orderRequested(const QList<LMObjectID>& windows);
    /// tag: 1 AppleScript, 2 shell script, 3 import.
    void addActionRequested(int tag);
    void runActionRequested();
    void closing();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void makeTables();
    void makeButtons(QUndoStack& undoStack);
    void makeLayout();
    QWidget* makeApplicationsPane();
    QWidget* makeWindowsPane();
    QWidget* makeActionsPane();
    QWidget* makeScriptPane();
    QPushButton* makeRemoveButton(const char* text, const char* name, LMTableView* table);
    QPushButton* makeMoveButton(const char* text, Qt::Key key, int rows);
    void makeStateButton(LMWindowStates& windowStates);
    LMEditedState selectedState() const;
    void connectTable(LMTableView* table);

    void showWindowsOfApplication();
    void showScreenshot();
    void showScript();
    void updateButtons();
    void moveSelectedWindow(int rows);

    LMObjectContext& m_context;
    LMApplicationsModel* m_applications;
    LMStoredWindowsModel* m_windows;
    LMActionsModel* m_actions;
    LMTableView* m_applicationsTableView = nullptr;
    LMTableView* m_windowsTableView = nullptr;
    LMTableView* m_actionsTableView = nullptr;
    LMScreenshotView* m_screenshotView;
    LMScriptEditor* m_scriptEditor;
    QPushButton* m_removeApplicationButton = nullptr;
    QPushButton* m_removeWindowButton = nullptr;
    QPushButton* m_moveUpButton = nullptr;
    QPushButton* m_moveDownButton = nullptr;
    QPushButton* m_stateButton = nullptr;
    QPushButton* m_addActionButton = nullptr;
    QPushButton* m_removeActionButton = nullptr;
    QPushButton* m_runButton = nullptr;
    QPushButton* m_undoButton = nullptr;
    bool m_hasWorkspace = false;
};
