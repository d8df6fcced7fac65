// SPDX-License-Identifier: MIT
#include "Controller/LMCommandFrame.h"

#include "Categories/LMWorkspaceAdditions.h"
#include "Controller/LMPermissionCheck.h"
#include "Controller/LMUserInterface.h"
#include "Model/LMApplicationActivation.h"
#include "Model/LMStoredWindowsStore.h"
#include "Platform/LMDesktop.h"
#include "Platform/LMEnvironment.h"
#include "Utilities/LMFormat.h"

LMCommandFrame::LMCommandFrame(const LMCommandParts& parts, const QString& label)
    : m_parts(parts), m_activity(parts.environment, label),
      m_transients(parts.store.managedObjectContext()),
      m_activeAtStart(LMWorkspaceAdditions(parts.environment).runningApplication()) {
    // Afterwards the record it is typed for may be another one.
    parts.store.commitEditing();
}

LMCommandResult LMCommandFrame::finish() {
    LMReactivate(m_parts.environment, m_activeAtStart);
    LMCommandResult result = LMCommandResult::done();
    if (const QString& failure = m_parts.store.saveFailure(); !failure.isEmpty())
        result.refusal =
            LMFormat(LMLocalized("The windows are remembered, but not on disk yet: %@"), {failure});
    return result;
}

bool LMIsOccupied(const LMCommandParts& parts) {
    return parts.environment.activity.isBusy() || parts.userInterface.isModalWindowOpen();
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

std::optional<LMCommandResult> beforeCommand(const LMCommandParts& parts) {
    if (auto refusal = whileOccupied(parts))
        return refusal;
    if (!parts.permissionCheck.checkAccessibilityEnabled())
        return LMCommandResult::refused(permission(parts.permissionCheck));
    return std::nullopt;
}

std::optional<LMCommandResult> whileOccupied(const LMCommandParts& parts) {
    const LMActivity& activity = parts.environment.activity;
    if (parts.userInterface.isModalWindowOpen())
        return LMCommandResult::refused(
            LMLocalized("Rook is asking something: answer that first."));
    if (activity.isBusy())
        return LMCommandResult::refused(
            LMFormat(LMLocalized("Rook is busy: %@"), {activity.current().first().label}));
    return std::nullopt;
}

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
                    {applicationName.left(200)});
}

QString alreadyStored(const QString& what) {
    return LMFormat(LMLocalized("%@ Ask to overwrite in order to replace them."), {what});
}

QString declined() {
    return LMLocalized("You chose not to replace what is stored.");
}

} // namespace LMRefusal
