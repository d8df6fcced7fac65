// SPDX-License-Identifier: MIT
#include "Model/LMStoredWindow.h"
#include "Model/LMStoredWindowsStore.h"
#include "Model/Store/LMObjectContext.h"
#include "UserInterface/Editing/LMStateMenu.h"
#include "UserInterface/Editing/LMStoredWindowsEditorWindow.h"
#include "UserInterface/Editing/LMTableView.h"
#include "UserInterface/LMStoredWindowsEditor.h"
#include "Utilities/LMFormat.h"

#include <QUndoCommand>

/// A change of a stored window's state, with the frame that goes with it.
class LMStoredWindowsEditor::StateChange final : public QUndoCommand {
public:
    StateChange(LMStoredWindowsEditor& editor, const LMStoredWindow& window,
                const LMEditedState& wanted)
        : QUndoCommand(LMLocalized("Change State")), m_editor(editor),
          m_window(window.objectID()), m_before{window.state(), window.frame()}, m_after(wanted) {}

    void redo() override { apply(m_after); }
    void undo() override { apply(m_before); }

private:
    void apply(const LMEditedState& edited) {
        LMObjectContext& context = m_editor.m_store.managedObjectContext();
        auto* window = static_cast<LMStoredWindow*>(context.existingObjectWithID(m_window));
        if (!window) {
            setObsolete(true);
            return;
        }
        window->setStateString(edited.state ? LMStringFromState(*edited.state) : QString());
        window->setFrame(edited.frame);
        m_editor.saveWindows();
        if (m_editor.m_window)
            m_editor.m_window->reveal(m_window);
    }

    LMStoredWindowsEditor& m_editor;
    LMObjectID m_window;
    LMEditedState m_before;
    LMEditedState m_after;
};

void LMStoredWindowsEditor::setState(const LMEditedState& wanted) {
    if (!m_window)
        return;
    commitEditing();
    const auto* window =
        static_cast<LMStoredWindow*>(m_store.managedObjectContext().existingObjectWithID(
            m_window->windowsTableView()->selectedRecord()));
    if (window && wanted != LMEditedState{window->state(), window->frame()})
        m_undoStack.push(new StateChange(*this, *window, wanted));
}
