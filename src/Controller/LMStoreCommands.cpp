// SPDX-License-Identifier: MIT
#include "Controller/LMStoreCommands.h"

#include "Categories/LMWorkspaceAdditions.h"
#include "Controller/LMAlerts.h"
#include "Controller/LMFrontmostApplication.h"
#include "Controller/LMReplacement.h"
#include "Controller/LMUserInterface.h"
#include "Controller/LMWorkspaceList.h"
#include "Model/LMApplication.h"
#include "Model/LMStoredWindow.h"
#include "Model/LMStoredWindowsStore.h"
#include "Model/LMWindow.h"
#include "Model/LMWorkspace.h"
#include "Platform/LMDesktop.h"
#include "Platform/LMEnvironment.h"
#include "Utilities/LMFormat.h"
#include "Utilities/LMUserDefaults.h"
#include "Utilities/LMUserDefaultsKeys.h"

namespace Keys = LMUserDefaultsKeys;

namespace {

/// The progress window covers what is about to be pictured.
LMKeptPictures keepPictures(LMEnvironment& environment) {
    return environment.userDefaults.boolForKey(Keys::CreateScreenshotsWhenStoringWindows)
               ? environment.desktop.windowServer().keepPictures()
               : LMKeptPictures();
}

} // namespace

bool LMStoreCommands::canStoreActiveApplicationWindows() const {
    const auto& active = m_parts.frontmostApplication.frontmostApplication();
    LMObjectContext& context = m_parts.store.managedObjectContext();
    const LMTransientScope transients(context);
    return active && LMApplication::applicationWithRunningApplication(context, *active);
}

bool LMStoreCommands::canStoreActiveWindow() const {
    LMEnvironment& environment = m_parts.environment;
    const auto running = LMWorkspaceAdditions(environment).runningApplication();
    if (!running || running->bundleIdentifier == environment.ownBundleIdentifier)
        return false;
    if (LMApplication::blockedApplications(environment).contains(running->bundleIdentifier))
        return false;
    LMObjectContext& context = m_parts.store.managedObjectContext();
    const LMTransientScope transients(context);
    return LMWindow::focusedWindow(context) && canStoreActiveApplicationWindows();
}

std::optional<LMCommandResult> LMStoreCommands::askToReplace(const LMSuppressibleAlert& question,
                                                             bool withConfirmation) {
    if (!withConfirmation)
        return LMCommandResult::refused(LMRefusal::alreadyStored(question.message));
    if (LMRunReplaceConfirmation(m_parts.environment, m_parts.userInterface, question) ==
        LMAlertAnswer::FirstButton)
        return std::nullopt;
    return LMCommandResult::refused(LMRefusal::declined());
}

void LMStoreCommands::reportSuccess(QLatin1String suppressionKey, const QString& text,
                                    bool withConfirmation) {
    if (withConfirmation)
        LMRunSuccessMessage(m_parts.environment, m_parts.userInterface,
                            {suppressionKey, LMLocalized("Store Windows Succeeded"), text});
}

LMCommandResult LMStoreCommands::storeActiveApplicationWindows(bool overwrite,
                                                               bool withConfirmation) {
    if (auto refusal = LMRefusal::beforeCommand(m_parts))
        return *refusal;
    if (!m_parts.frontmostApplication.updateFrontmostApplication())
        return LMCommandResult::refused(LMRefusal::noActiveApplication());
    const LMRunningApplication active = *m_parts.frontmostApplication.frontmostApplication();
    const QString label = LMFormat(LMLocalized("Storing Windows for %@…"), {active.localizedName});
    LMCommandFrame frame(m_parts, label);
    const LMWorkspace* present = m_parts.workspaceList.currentWorkspaceAddingIfNecessary();
    if (!present)
        return LMCommandResult::refused(LMRefusal::noCurrentWorkspace());
    if (!overwrite && present->storesApplication(active.bundleIdentifier)) {
        const LMSuppressibleAlert question{
            Keys::SuppressStoreActiveApplicationAlert,
            LMFormat(LMLocalized("Stored windows already exist for “%@”. Do you want to replace "
                                 "them?"),
                     {active.localizedName}),
            LMFormat(LMLocalized("The windows previously stored for “%@” will be replaced with its "
                                 "current windows."),
                     {active.localizedName})};
        if (const auto answer = askToReplace(question, withConfirmation))
            return *answer;
    }
    // The question may have taken minutes: displays and workspaces are looked up again after it.
    LMWorkspace* workspace = m_parts.workspaceList.currentWorkspaceAddingIfNecessary();
    if (!workspace)
        return LMCommandResult::refused(LMRefusal::noCurrentWorkspace());
    {
        const LMKeptPictures pictures = keepPictures(m_parts.environment);
        LMProgressScope scope(m_parts.userInterface, label, true);
        LMReplacement replacement(m_parts.environment, *workspace, scope.progress());
        workspace->storeWindowsForApplication(active.bundleIdentifier);
        if (!replacement.finish())
            return LMCommandResult::refused(replacement.refusal());
        m_parts.store.saveWindows();
    }
    reportSuccess(Keys::SuppressStoreActiveApplicationSuccess,
                  LMFormat(LMLocalized("Rook has successfully stored windows for %@."),
                           {active.localizedName}),
                  withConfirmation);
    return frame.finish();
}

LMApplication* LMStoreCommands::addApplication(LMWorkspace& workspace,
                                               const LMRunningApplication& running) {
    LMObjectContext& context = m_parts.store.managedObjectContext();
    LMApplication* application = LMApplication::applicationWithRunningApplication(context, running);
    if (!application)
        return nullptr;
    application->removeAllWindows();
    workspace.applications().addObject(application);
    return application;
}

LMCommandResult LMStoreCommands::storeActiveWindow(bool overwrite, bool withConfirmation) {
    if (auto refusal = LMRefusal::beforeCommand(m_parts))
        return *refusal;
    LMCommandFrame frame(m_parts, LMLocalized("Storing the Active Window…"));
    m_parts.frontmostApplication.updateFrontmostApplication();
    const auto active = m_parts.frontmostApplication.frontmostApplication();
    StorableWindow focused = findWindow(active, LMElement());
    if (!focused.window)
        return LMCommandResult::refused(focused.refusal);

    if (LMStoredWindow* identical = focused.application->identicalStoredWindow(*focused.window);
        identical && !overwrite) {
        const LMSuppressibleAlert question{
            Keys::SuppressStoreActiveWindowAlert,
            LMLocalized("An identical stored window already exists. Do you want to replace it?"),
            LMFormat(LMLocalized("The stored window labelled “%@” will be replaced with the active "
                                 "window."),
                     {identical->labelOrTitleIfNil()})};
        // A save during the question drops live records: whoever was found before may be gone. And
        // the focus is still where the question was.
        const LMElement element = focused.window->element();
        if (const auto answer = askToReplace(question, withConfirmation))
            return *answer;
        focused = findWindow(active, element);
        if (!focused.window)
            return LMCommandResult::refused(focused.refusal);
    }
    focused.application->storeFocusedWindow(focused.window);
    m_parts.store.saveWindows();
    reportSuccess(Keys::SuppressStoreActiveWindowSuccess,
                  LMLocalized("Rook has successfully stored the active window."), withConfirmation);
    return frame.finish();
}

LMWindow* LMStoreCommands::focusedWindow(const LMRunningApplication& active) const {
    LMEnvironment& environment = m_parts.environment;
    const auto inFront = LMWorkspaceAdditions(environment).runningApplication();
    const bool isOwn = inFront && inFront->bundleIdentifier == environment.ownBundleIdentifier;
    LMObjectContext& context = m_parts.store.managedObjectContext();
    return isOwn ? LMWindow::focusedWindowOfProcess(context, active.processIdentifier)
                 : LMWindow::focusedWindow(context);
}

LMStoreCommands::StorableWindow
LMStoreCommands::findWindow(const std::optional<LMRunningApplication>& active,
                            const LMElement& element) {
    LMWorkspace* workspace = m_parts.workspaceList.currentWorkspaceAddingIfNecessary();
    if (!workspace)
        return {nullptr, nullptr, LMRefusal::noCurrentWorkspace()};
    if (!active)
        return {nullptr, nullptr, LMRefusal::noActiveApplication()};
    LMApplication* application =
        workspace->applicationForBundleIdentifier(active->bundleIdentifier);
    LMWindow* window =
        element.isNull()
            ? focusedWindow(*active)
            : LMWindow::windowWithElement(m_parts.store.managedObjectContext(), element);
    if (!window)
        return {nullptr, nullptr, LMRefusal::noFocusedWindow()};
    if (!application)
        application = addApplication(*workspace, *active);
    if (!application)
        return {nullptr, nullptr,
                LMFormat(LMLocalized("The windows of “%@” cannot be stored."),
                         {active->localizedName})};
    return {application, window, QString()};
}

LMCommandResult LMStoreCommands::storeAllWindows(bool overwrite, bool withConfirmation) {
    if (auto refusal = LMRefusal::beforeCommand(m_parts))
        return *refusal;
    const QString label = LMLocalized("Storing Windows for All Applications…");
    LMCommandFrame frame(m_parts, label);
    const LMWorkspace* present = m_parts.workspaceList.currentWorkspaceAddingIfNecessary();
    if (!present)
        return LMCommandResult::refused(LMRefusal::noCurrentWorkspace());
    if (!overwrite && !present->applications().empty()) {
        const LMSuppressibleAlert question{
            Keys::SuppressStoreAllAlert,
            LMLocalized("Stored windows already exist. Do you want to replace them?"),
            LMLocalized("Previously stored windows will be replaced with the windows of the "
                        "current running applications.")};
        if (const auto answer = askToReplace(question, withConfirmation))
            return *answer;
    }
    LMWorkspace* workspace = m_parts.workspaceList.currentWorkspaceAddingIfNecessary();
    if (!workspace)
        return LMCommandResult::refused(LMRefusal::noCurrentWorkspace());
    {
        const LMKeptPictures pictures = keepPictures(m_parts.environment);
        LMProgressScope scope(m_parts.userInterface, label, false);
        LMReplacement replacement(m_parts.environment, *workspace, scope.progress());
        workspace->storeWindowsWithProgressWindowController(replacement);
        if (!replacement.finish())
            return LMCommandResult::refused(replacement.refusal());
        m_parts.store.saveWindows();
    }
    reportSuccess(Keys::SuppressStoreAllSuccess,
                  LMLocalized("Rook has successfully stored windows for all applications."),
                  withConfirmation);
    return frame.finish();
}
