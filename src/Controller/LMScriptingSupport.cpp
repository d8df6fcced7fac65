// SPDX-License-Identifier: MIT
#include "Controller/LMScriptingSupport.h"

#include "Controller/LMFrontmostApplication.h"
#include "Controller/LMRestoreCommands.h"
#include "Controller/LMStoreCommands.h"

LMScriptingSupport::LMScriptingSupport(LMRestoreCommands& restoreCommands,
                                       LMStoreCommands& storeCommands,
                                       LMFrontmostApplication& frontmostApplication)
    : m_restoreCommands(restoreCommands), m_storeCommands(storeCommands),
      m_frontmostApplication(frontmostApplication) {}

std::optional<LMCommandResult>
LMScriptingSupport::performDefaultImplementation(const LMScriptCommand& command) {
    if (command.eventClass != LMFourCharCode("Rook"))
        return std::nullopt;
    if (command.eventCode == LMFourCharCode("RAll"))
        return m_restoreCommands.restoreWindows(false);
    if (command.eventCode == LMFourCharCode("RNam"))
        return m_restoreCommands.restoreApplicationWindows(
            command.evaluatedArguments.value(QStringLiteral("Application")).toString());

    // Storing all windows needs no active application, and without a file manager that always runs
    // there is none on every empty virtual desktop.
    if (!m_frontmostApplication.updateFrontmostApplication() &&
        command.eventCode != LMFourCharCode("SAll"))
        return std::nullopt;
    const bool overwrite = command.evaluatedArguments.value(QStringLiteral("Overwrite")).toBool();
    switch (command.eventCode) {
    case LMFourCharCode("RApp"):
        return m_restoreCommands.restoreActiveApplicationWindows();
    case LMFourCharCode("SApp"):
        return m_storeCommands.storeActiveApplicationWindows(overwrite, false);
    case LMFourCharCode("SWin"):
        return m_storeCommands.storeActiveWindow(overwrite, false);
    case LMFourCharCode("SAll"):
        return m_storeCommands.storeAllWindows(overwrite, false);
    default:
        return std::nullopt;
    }
}
