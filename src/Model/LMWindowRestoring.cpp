// SPDX-License-Identifier: MIT
#include "Model/LMWindow.h"

#include "Categories/LMAccessibilityException.h"
#include "Categories/LMElementFunctions.h"
#include "Categories/LMScreenAdditions.h"
#include "Model/LMRestorePlan.h"
#include "Model/LMStateRestoration.h"
#include "Model/LMStoredWindow.h"
#include "Platform/LMClock.h"
#include "Platform/LMDesktop.h"
#include "Platform/LMEnvironment.h"
#include "Utilities/LMLogger.h"

using namespace std::chrono_literals;

void LMWindow::restorePositionWithWindow(const LMStoredWindow& storedWindow,
                                         const std::optional<QRectF>& frame) {
    try {
        LMElementSetPosition(environment(), m_element,
                             frame.value_or(storedWindow.frame()).topLeft());
    } catch (const LMAccessibilityException& exception) {
        const LMLogger& logger = environment().logger;
        logger.debug(QStringLiteral("Unable to restore window position: %@"), {m_title});
        logger.debug(QStringLiteral("%@"), {exception.reason()});
    }
}

void LMWindow::restoreSizeWithWindow(const LMStoredWindow& storedWindow,
                                     const std::optional<QRectF>& frame) {
    try {
        LMElementSetSize(environment(), m_element, frame.value_or(storedWindow.frame()).size());
    } catch (const LMAccessibilityException& exception) {
        const LMLogger& logger = environment().logger;
        logger.debug(QStringLiteral("Unable to restore window size: %@"), {m_title});
        logger.debug(QStringLiteral("%@"), {exception.reason()});
    }
}

void LMWindow::restoreWithWindow(LMStoredWindow& storedWindow) {
    LMStateRestoration states(environment());
    LMRestorePlan plan;
    plan.assignments.push_back({this, {}});
    plan.assignments.back().match.storedWindow = &storedWindow;
    states.begin(plan);
    const auto frame = states.frameFor(*this, storedWindow);
    if (frame)
        restorePositionWithWindow(storedWindow, frame);
    environment().clock.sleep(1s);
    if (frame)
        restoreSizeWithWindow(storedWindow, frame);
    states.finishStates();
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
