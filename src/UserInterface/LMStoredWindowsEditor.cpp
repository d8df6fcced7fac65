// SPDX-License-Identifier: MIT
#include "UserInterface/LMStoredWindowsEditor.h"

#include "Model/LMApplication.h"
#include "Model/LMOrdering.h"
#include "Model/LMRemoval.h"
#include "Model/LMStoredWindow.h"
#include "Model/LMStoredWindowsStore.h"
#include "Model/LMWorkspace.h"
#include "Model/Store/LMObjectContext.h"
#include "Platform/LMEnvironment.h"
#include "UserInterface/Editing/LMStoredWindowsEditorWindow.h"
#include "UserInterface/Editing/LMTableView.h"
#include "UserInterface/LMWindowPlacement.h"
#include "Utilities/LMFormat.h"
#include "Utilities/LMNotificationCenter.h"

#include <QUndoCommand>

// --- removing ------------------------------------------------------------------------------

/// A removal on the undo stack.
class LMStoredWindowsEditor::Removal final : public QUndoCommand {
public:
    Removal(LMStoredWindowsEditor& editor, const LMObjectID& what, const QString& text)
        : QUndoCommand(text), m_editor(editor),
          m_removal(editor.m_store.managedObjectContext(), what) {}

    void redo() override {
        setObsolete(!m_removal.perform());
        // What this removal has emptied is not gone for good.
        if (!m_editor.workspace())
            m_editor.m_workspace = {};
        m_editor.saveWindows();
    }

    void undo() override {
        const LMWorkspace* workspace = m_removal.takeBack();
        m_editor.m_workspace = workspace ? workspace->objectID() : LMObjectID();
        m_editor.saveWindows();
        if (m_editor.m_window)
            m_editor.m_window->reveal(m_removal.what());
    }

private:
    LMStoredWindowsEditor& m_editor;
    LMRemoval m_removal;
};

void LMStoredWindowsEditor::remove(LMTableView* sender) {
    if (!m_window)
        return;
    const QString text = sender == m_window->applicationsTableView()
                             ? LMLocalized("Remove Application")
                         : sender == m_window->windowsTableView() ? LMLocalized("Remove Window")
                         : sender == m_window->actionsTableView() ? LMLocalized("Remove Action")
                                                                  : QString();
    if (text.isEmpty())
        return;
    commitEditing();
    const LMObjectID selected = sender->selectedRecord();
    if (!selected.isNull()) {
        m_undoStack.push(new Removal(*this, selected, text));
        return;
    }
    LMWorkspace* edited = workspace();
    if (edited && LMDeleteWorkspaceIfEmpty(*edited))
        m_workspace = {};
    saveWindows();
}

// --- the workspace -------------------------------------------------------------------------

LMStoredWindowsEditor::LMStoredWindowsEditor(LMEnvironment& environment,
                                             LMStoredWindowsStore& store)
    : m_environment(environment), m_store(store) {}

LMStoredWindowsEditor::~LMStoredWindowsEditor() = default;

LMWorkspace* LMStoredWindowsEditor::workspace() const {
    return static_cast<LMWorkspace*>(
        m_store.managedObjectContext().existingObjectWithID(m_workspace));
}

void LMStoredWindowsEditor::setWorkspace(LMWorkspace* workspace) {
    const LMObjectID identifier = workspace ? workspace->objectID() : LMObjectID();
    if (identifier == m_workspace)
        return;
    commitEditing();
    m_workspace = identifier;
    if (workspace && identifier != m_undoableWorkspace) {
        m_undoStack.clear();
        m_undoableWorkspace = identifier;
    }
    reloadTableViews();
}

void LMStoredWindowsEditor::reloadTableViews() {
    LMWorkspace* shown = workspace();
    if (!shown && !m_workspace.isNull()) {
        // Somebody else has deleted it, and that is not ours to take back.
        m_workspace = {};
        m_undoStack.clear();
    }
    if (m_window)
        m_window->reload(shown);
}

bool LMStoredWindowsEditor::commitEditing() {
    if (m_window)
        m_window->commitEditing();
    return true;
}

void LMStoredWindowsEditor::saveWindows() {
    m_environment.notificationCenter.postNotification(LMNotification::SaveWindows);
    reloadTableViews();
}

void LMStoredWindowsEditor::orderWindows(const QList<LMObjectID>& windows) {
    LMObjectContext& context = m_store.managedObjectContext();
    std::vector<LMStoredWindow*> ordered;
    for (const LMObjectID& identifier : windows) {
        if (auto* window = static_cast<LMStoredWindow*>(context.existingObjectWithID(identifier)))
            ordered.push_back(window);
    }
    if (ordered.empty() || !ordered.front()->application())
        return;
    ordered.front()->application()->setWindowsOrdering(LMURIsOfObjects(ordered));
    saveWindows();
}

// --- the window ----------------------------------------------------------------------------

QWidget* LMStoredWindowsEditor::window() {
    return m_window.get();
}

void LMStoredWindowsEditor::showWindow() {
    using Window = LMStoredWindowsEditorWindow;
    if (!m_window) {
        m_window =
            std::make_unique<Window>(m_environment, m_store.managedObjectContext(), m_undoStack);
        connect(m_window.get(), &Window::editingEnded, this, &LMStoredWindowsEditor::saveWindows);
        connect(m_window.get(), &Window::removeRequested, this, &LMStoredWindowsEditor::remove);
        connect(m_window.get(), &Window::stateRequested, this, &LMStoredWindowsEditor::setState);
        connect(m_window.get(), &Window::orderRequested, this,
                &LMStoredWindowsEditor::orderWindows);
        connect(m_window.get(), &Window::addActionRequested, this,
                &LMStoredWindowsEditor::addAction);
        connect(m_window.get(), &Window::runActionRequested, this,
                &LMStoredWindowsEditor::runAction);
        connect(m_window.get(), &Window::closing, this, &LMStoredWindowsEditor::windowWillClose);
    }
    reloadTableViews();
    LMPresentWindow(*m_window, m_environment.desktop);
}

void LMStoredWindowsEditor::close() {
    if (m_window)
        m_window->close();
}

void LMStoredWindowsEditor::windowWillClose() {
    commitEditing();
    // It is in the middle of closing, and the next one opens where the user is then.
    m_window.release()->deleteLater();
    m_workspace = {};
    saveWindows();
}
