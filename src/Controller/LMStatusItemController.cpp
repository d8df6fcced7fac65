// SPDX-License-Identifier: MIT
#include "Controller/LMStatusItemController.h"

#include "Controller/LMUserInterface.h"
#include "Platform/LMEnvironment.h"
#include "Utilities/LMUserDefaults.h"
#include "Utilities/LMUserDefaultsKeys.h"

void LMStatusItemController::setUpStatusItem() {
    removeStatusItem();
    if (!m_parts.environment.userDefaults.boolForKey(LMUserDefaultsKeys::DisableStatusBarItem))
        m_parts.userInterface.showStatusItem(m_menu);
}

void LMStatusItemController::removeStatusItem() {
    m_parts.userInterface.removeStatusItem();
}

LMCommandResult LMStatusItemController::displayMenuAtCursor() {
    if (!m_parts.userInterface.canShowWindows())
        return LMCommandResult::refused(LMRefusal::noWindows());
    m_parts.userInterface.displayMenuAtCursor(m_menu);
    return LMCommandResult::done();
}
