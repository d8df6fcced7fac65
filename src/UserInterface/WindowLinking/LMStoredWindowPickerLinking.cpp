// SPDX-License-Identifier: MIT
#include "Categories/LMWorkspaceAdditions.h"
#include "Controller/LMAlerts.h"
#include "Controller/LMUserInterface.h"
#include "Model/LMApplication.h"
#include "Model/LMStoredWindow.h"
#include "Model/LMStoredWindowsStore.h"
#include "Model/LMWindow.h"
#include "Model/Store/LMObjectContext.h"
#include "Model/Store/LMTransientScope.h"
#include "Platform/LMDesktop.h"
#include "Platform/LMEnvironment.h"
#include "UserInterface/WindowLinking/LMStoredWindowPicker.h"
#include "Utilities/LMFormat.h"
#include "Utilities/LMLogger.h"
#include "Utilities/LMNotificationCenter.h"
#include "Utilities/LMUserDefaultsKeys.h"

void LMStoredWindowPicker::selectStoredWindow(const LMObjectID& storedWindow) {
    const LMLogger& logger = m_environment.logger;
    if (m_environment.activity.isBusy() || m_userInterface.isModalWindowOpen()) {
        logger.info(QStringLiteral("The window is not linked: something else began meanwhile."));
        return;
    }
    const LMActivityScope activity(m_environment, LMLocalized("Linking the Active Window…"));
    const LMTransientScope transients(context());
    const auto activeAtStart = LMWorkspaceAdditions(m_environment).runningApplication();
    auto link = findLink(storedWindow);
    if (link && !mayReplaceLink(*link))
        return;
    // The question may have taken minutes, and a save drops live records.
    link = findLink(storedWindow);
    if (!link) {
        logger.info(QStringLiteral("The window is not linked: it or the stored window is gone."));
        return;
    }
    link->application->addMatchingWindow(link->focusedWindow, link->storedWindow);
    m_environment.notificationCenter.postNotification(LMNotification::SaveWindows);
    if (activeAtStart)
        m_environment.desktop.applications().activate(activeAtStart->processIdentifier);
}

std::optional<LMStoredWindowPicker::Link>
LMStoredWindowPicker::findLink(const LMObjectID& storedWindow) const {
    Link link;
    link.application =
        static_cast<LMApplication*>(context().existingObjectWithID(m_frontmostApplication));
    link.storedWindow = static_cast<LMStoredWindow*>(context().existingObjectWithID(storedWindow));
    if (!link.application || !link.application->workspace() || !link.storedWindow ||
        link.storedWindow->application() != link.application)
        return std::nullopt;
    link.focusedWindow = LMWindow::windowWithElement(context(), m_focusedWindow);
    return link.focusedWindow ? std::optional(link) : std::nullopt;
}

bool LMStoredWindowPicker::mayReplaceLink(const Link& link) {
    LMStoredWindow* existing = link.application->identicalStoredWindow(*link.focusedWindow);
    if (!existing || existing == link.storedWindow)
        return true;
    const LMSuppressibleAlert question{
        LMUserDefaultsKeys::SuppressLinkActiveWindowAlert,
        LMLocalized("The active window is already linked to another window. Do you want to replace "
                    "the existing link?"),
        LMFormat(LMLocalized("The active window will be unlinked from the window labelled “%@” and "
                             "linked to the window labelled “%@”."),
                 {existing->labelOrTitleIfNil(), link.storedWindow->labelOrTitleIfNil()})};
    return LMRunReplaceConfirmation(m_environment, m_userInterface, question) ==
           LMAlertAnswer::FirstButton;
}
