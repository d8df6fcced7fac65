// SPDX-License-Identifier: MIT
#include "Model/LMAction.h"
#include "Model/LMStoredWindowsStore.h"
#include "Model/LMWorkspace.h"
#include "Model/Store/LMObjectContext.h"
#include "UserInterface/Editing/LMScriptImport.h"
#include "UserInterface/Editing/LMStoredWindowsEditorWindow.h"
#include "UserInterface/Editing/LMTableView.h"
#include "UserInterface/LMAlertWindow.h"
#include "UserInterface/LMMissedInput.h"
#include "UserInterface/LMStoredWindowsEditor.h"
#include "Utilities/LMFormat.h"

#include <QDir>
#include <QFileDialog>
#include <QGuiApplication>

namespace {

enum Tag { AppleScript = 1, ShellScript = 2, Import = 3 };

} // namespace

LMAction* LMStoredWindowsEditor::insertAction(const QString& label, const QString& runAs,
                                              const QString& script) {
    LMWorkspace* edited = workspace();
    if (!edited || !m_window)
        return nullptr;
    commitEditing();
    auto* action = m_store.managedObjectContext().insertObject<LMAction>();
    action->setLabel(label);
    action->setRunAs(runAs);
    action->setScript(script);
    edited->addActionsObject(action);
    reloadTableViews();
    m_window->actionsTableView()->select(action->objectID());
    return action;
}

void LMStoredWindowsEditor::addAction(int tag) {
    if (tag == Import) {
        askForScript();
        return;
    }
    const QString runAs =
        tag == AppleScript ? QStringLiteral("AppleScript") : QStringLiteral("Shell Script");
    const QString script =
        tag == ShellScript ? QStringLiteral("#!/bin/bash\n\n") : QStringLiteral("");
    if (const LMAction* action = insertAction({}, runAs, script))
        m_window->editLabelOfAction(action->objectID());
}

// --- importing -----------------------------------------------------------------------------

void LMStoredWindowsEditor::askForScript() {
    if (!workspace() || !m_window)
        return;
    auto* panel = new QFileDialog(m_window.get(), LMLocalized("Import Script"), QDir::homePath());
    panel->setAttribute(Qt::WA_DeleteOnClose);
    panel->setFileMode(QFileDialog::ExistingFile);
    // The panel tells before it closes, and an alert comes in its place.
    connect(panel, &QFileDialog::fileSelected, this, &LMStoredWindowsEditor::importScript,
            Qt::QueuedConnection);
    panel->open();
}

void LMStoredWindowsEditor::importScript(const QString& path) {
    const LMImportedScript imported = LMImportScript(path);
    if (imported.script.isEmpty())
        showAlert(imported.failure);
    else if (insertAction(imported.label, imported.runAs, imported.script))
        saveWindows();
}

// Its end is not acted upon, so nobody waits for it.
void LMStoredWindowsEditor::showAlert(const LMAlert& alert) {
    auto* sheet = new LMAlertWindow(alert, m_window.get());
    sheet->setAttribute(Qt::WA_DeleteOnClose);
    sheet->open();
}

// --- running -------------------------------------------------------------------------------

void LMStoredWindowsEditor::runAction() {
    if (!m_window)
        return;
    commitEditing();
    auto* action = static_cast<LMAction*>(m_store.managedObjectContext().existingObjectWithID(
        m_window->actionsTableView()->selectedRecord()));
    if (!action)
        return;
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    action->run();
    QGuiApplication::restoreOverrideCursor();
    LMMissedInput::drop();
    // Running may have completed the script.
    saveWindows();
}
