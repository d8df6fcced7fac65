// SPDX-License-Identifier: MIT
#include "Model/LMApplication.h"

#include "Model/LMScreenshots.h"
#include "Model/LMStoredWindow.h"
#include "Model/LMWindow.h"
#include "Model/Store/LMObjectContext.h"
#include "Platform/LMDesktop.h"
#include "Platform/LMEnvironment.h"
#include "Utilities/LMUserDefaults.h"
#include "Utilities/LMUserDefaultsKeys.h"

#include <algorithm>

namespace {

std::optional<LMRunningApplication> firstRunning(LMEnvironment& environment,
                                                 const QString& bundleIdentifier) {
    const auto applications = environment.desktop.applications().runningApplications();
    const auto found = std::find_if(applications.begin(), applications.end(), [&](const auto& it) {
        return it.bundleIdentifier == bundleIdentifier;
    });
    return found == applications.end() ? std::nullopt : std::optional(*found);
}

} // namespace

bool LMApplication::isHandled(LMEnvironment& environment, const LMRunningApplication& running) {
    return running.activationPolicy != LMActivationPolicy::Prohibited &&
           !running.localizedName.isEmpty() && !running.bundleIdentifier.isEmpty() &&
           running.bundleIdentifier != environment.ownBundleIdentifier &&
           !blockedApplications(environment).contains(running.bundleIdentifier);
}

LMApplication*
LMApplication::applicationWithRunningApplication(LMObjectContext& context,
                                                 const LMRunningApplication& running) {
    // The windows are read last and the record made after that: most processes are none of ours.
    if (!isHandled(context.environment(), running))
        return nullptr;
    const std::vector<LMWindow*> windows =
        LMWindow::windowsOfProcess(context, running.processIdentifier);
    if (windows.empty())
        return nullptr;
    auto* application = context.insertObject<LMApplication>();
    application->setName(running.localizedName);
    application->setBundleIdentifier(running.bundleIdentifier);
    for (LMWindow* window : windows) {
        if (LMStoredWindow* storedWindow = LMStoredWindow::storedWindowWithWindow(window))
            application->addWindowsObject(storedWindow);
    }
    return application;
}

LMApplication* LMApplication::applicationWithBundleIdentifier(LMObjectContext& context,
                                                              const QString& bundleIdentifier) {
    const auto running = firstRunning(context.environment(), bundleIdentifier);
    return running ? applicationWithRunningApplication(context, *running) : nullptr;
}

std::vector<LMApplication*> LMApplication::currentApplications(LMObjectContext& context) {
    std::vector<LMApplication*> applications;
    const auto allRunning = context.environment().desktop.applications().runningApplications();
    for (const LMRunningApplication& running : allRunning) {
        if (LMApplication* application = applicationWithRunningApplication(context, running))
            applications.push_back(application);
    }
    return applications;
}

std::optional<LMRunningApplication> LMApplication::runningApplication() const {
    return firstRunning(environment(), m_bundleIdentifier);
}

qint64 LMApplication::processIdentifier() const {
    const auto running = runningApplication();
    return running ? running->processIdentifier : 0;
}

bool LMApplication::isLaunched() const {
    return runningApplication().has_value();
}

std::vector<LMWindow*> LMApplication::currentWindows() {
    return LMWindow::windowsOfProcess(managedObjectContext(), processIdentifier());
}

QList<LMWindowDescription> LMApplication::currentCGWindowDescriptions() {
    const qint64 owner = processIdentifier();
    QList<LMWindowDescription> descriptions =
        environment().desktop.windowServer().onScreenWindowDescriptions();
    descriptions.removeIf([&](const LMWindowDescription& description) {
        return description.ownerProcessIdentifier != owner;
    });
    return descriptions;
}

QImage LMApplication::screenshotFromCGWindowDescription(const LMWindowDescription& description) {
    if (description.number == 0)
        return {};
    return environment().desktop.windowServer().imageOfWindow(description.number);
}

void LMApplication::attachScreenshotsToWindows(const std::vector<LMWindow*>& windows) {
    if (!environment().userDefaults.boolForKey(
            LMUserDefaultsKeys::CreateScreenshotsWhenStoringWindows))
        return;
    QList<LMWindowDescription> descriptions = currentCGWindowDescriptions();
    for (LMWindow* window : windows) {
        const LMScreenshot screenshot =
            LMTakeScreenshot(environment(), descriptions, window->frame());
        // One description serves one window, even where several stand at the same place.
        if (screenshot.index >= 0 && LMAttachScreenshot(screenshot.image, *window))
            descriptions.removeAt(screenshot.index);
    }
}

bool LMApplication::storesFloatingWindows() const {
    return std::any_of(m_windows.begin(), m_windows.end(), [](const LMStoredWindow* window) {
        return window->matchesFloatingWindows();
    });
}

bool LMApplication::isEqualToApplication(const LMApplication& other) const {
    return !m_bundleIdentifier.isNull() && m_bundleIdentifier == other.m_bundleIdentifier;
}
