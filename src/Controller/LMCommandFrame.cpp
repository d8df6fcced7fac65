// SPDX-License-Identifier: MIT
#include "Controller/LMCommandFrame.h"

#include "Categories/LMWorkspaceAdditions.h"
#include "Controller/LMPermissionCheck.h"
#include "Controller/LMUserInterface.h"
#include "Model/LMStoredWindowsStore.h"
#include "Model/Store/LMObjectContext.h"
#include "Platform/LMDesktop.h"
#include "Platform/LMEnvironment.h"
#include "Utilities/LMFormat.h"

LMCommandFrame::LMCommandFrame(const LMCommandParts& parts)
    : m_parts(parts),
      m_activeAtStart(LMWorkspaceAdditions(parts.environment).runningApplication()) {}

LMCommandFrame::~LMCommandFrame() {
    m_parts.store.managedObjectContext().discardTransientObjects();
}

LMCommandResult LMCommandFrame::finish() {
    if (m_activeAtStart)
        m_parts.environment.desktop.applications().activate(m_activeAtStart->processIdentifier);
    LMCommandResult result = LMCommandResult::done();
    if (const QString& failure = m_parts.store.saveFailure(); !failure.isEmpty())
        result.refusal =
            LMFormat(LMLocalized("The windows are remembered, but not on disk yet: %@"), {failure});
    return result;
}

LMProgressScope::LMProgressScope(LMUserInterface& userInterface, const QString& label,
                                 bool isIndeterminate)
    : m_progress(userInterface.progressWindow()) {
    m_progress.setLabel(label);
    m_progress.setIndeterminate(isIndeterminate);
    m_progress.showWindow();
}

LMProgressScope::~LMProgressScope() {
    m_progress.close();
}

namespace LMRefusal {

QString permission(const LMPermissionCheck& check) {
    return check.missing();
}

QString noCurrentWorkspace() {
    return LMLocalized("Nothing is stored for the displays attached now.");
}

QString noActiveApplication() {
    return LMLocalized("No application is active.");
}

QString noFocusedWindow() {
    return LMLocalized("No window has the focus.");
}

QString noWindows() {
    return LMLocalized("This Rook was started without windows.");
}

QString notStored(const QString& applicationName) {
    return LMFormat(LMLocalized("No windows are stored for “%@” with the displays attached now."),
                    {applicationName});
}

QString alreadyStored(const QString& what) {
    return LMFormat(LMLocalized("%@ Ask to overwrite in order to replace them."), {what});
}

} // namespace LMRefusal
