// SPDX-License-Identifier: MIT
#include "UserInterface/LMStoredWindowsEditor.h"

#include "Model/LMStoredWindowsStore.h"
#include "Model/LMWorkspace.h"
#include "Model/Store/LMObjectContext.h"
#include "Platform/LMEnvironment.h"
#include "UserInterface/LMPresentableText.h"
#include "UserInterface/LMWindowPlacement.h"

#include <QWidget>

LMStoredWindowsEditor::LMStoredWindowsEditor(LMEnvironment& environment,
                                             LMStoredWindowsStore& store)
    : m_environment(environment), m_store(store) {}

LMStoredWindowsEditor::~LMStoredWindowsEditor() = default;

LMWorkspace* LMStoredWindowsEditor::workspace() const {
    return static_cast<LMWorkspace*>(
        m_store.managedObjectContext().existingObjectWithID(m_workspace));
}

void LMStoredWindowsEditor::setWorkspace(LMWorkspace* workspace) {
    m_workspace = workspace ? workspace->objectID() : LMObjectID();
    reloadTableViews();
}

void LMStoredWindowsEditor::showWindow() {
    if (!m_window) {
        m_window = std::make_unique<QWidget>();
        m_window->resize(800, 600);
        LMCentreWindow(*m_window);
    }
    reloadTableViews();
    LMBringToFront(*m_window, m_environment.desktop);
    m_window->show();
}

void LMStoredWindowsEditor::close() {
    if (m_window)
        m_window->close();
}

void LMStoredWindowsEditor::reloadTableViews() {
    const LMWorkspace* shown = workspace();
    if (m_window && shown)
        m_window->setWindowTitle(LMPresentableLine(shown->name()));
}

QWidget* LMStoredWindowsEditor::window() {
    return m_window.get();
}
