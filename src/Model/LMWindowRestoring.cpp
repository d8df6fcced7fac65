// SPDX-License-Identifier: MIT
#include "Model/LMWindow.h"

#include "Categories/LMAccessibilityException.h"
#include "Categories/LMElementFunctions.h"
#include "Categories/LMScreenAdditions.h"
#include "Model/LMStoredWindow.h"
#include "Platform/LMClock.h"
#include "Platform/LMDesktop.h"
#include "Platform/LMEnvironment.h"
#include "Utilities/LMLogger.h"

using namespace std::chrono_literals;

void LMWindow::restorePositionWithWindow(const LMStoredWindow& storedWindow) {
    try {
        LMElementSetPosition(environment(), m_element, storedWindow.frame().topLeft());
    } catch (const LMAccessibilityException& exception) {
        const LMLogger& logger = environment().logger;
        logger.debug(QStringLiteral("Unable to restore window position: %@"), {m_title});
        logger.debug(QStringLiteral("%@"), {exception.reason()});
    }
}

void LMWindow::restoreSizeWithWindow(const LMStoredWindow& storedWindow) {
    try {
        LMElementSetSize(environment(), m_element, storedWindow.frame().size());
    } catch (const LMAccessibilityException& exception) {
        const LMLogger& logger = environment().logger;
        logger.debug(QStringLiteral("Unable to restore window size: %@"), {m_title});
        logger.debug(QStringLiteral("%@"), {exception.reason()});
    }
}

void LMWindow::restoreWithWindow(const LMStoredWindow& storedWindow) {
    restorePositionWithWindow(storedWindow);
    environment().clock.sleep(1s);
    restoreSizeWithWindow(storedWindow);
}

bool LMWindow::settingFrameMayTriggerAccessibilityBug(const QRectF& frame) const {
    LMScreens& screens = environment().desktop.screens();
    if (!screens.screensHaveSeparateSpaces())
        return false;
    const QList<LMScreen> attached = screens.screens();
    return attached.size() >= 2 &&
           LMScreenAdditions::screenContainingFrame(attached, this->frame()) !=
               LMScreenAdditions::screenContainingFrame(attached, frame);
}
