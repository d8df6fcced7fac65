// SPDX-License-Identifier: MIT
#include "Categories/LMWorkspaceAdditions.h"

#include "Platform/LMClock.h"
#include "Platform/LMDesktop.h"
#include "Platform/LMEnvironment.h"
#include "Platform/LMKnownApplications.h"

#include <algorithm>
#include <chrono>

namespace {

using Applications = QList<LMRunningApplication>;

template <class Predicate>
Applications filtered(const Applications& applications, Predicate predicate) {
    Applications result;
    std::copy_if(applications.begin(), applications.end(), std::back_inserter(result), predicate);
    return result;
}

void hideAll(LMApplications& platform, const Applications& applications) {
    for (const LMRunningApplication& application : applications)
        platform.hide(application.processIdentifier);
}

void unhideAll(LMApplications& platform, const Applications& applications) {
    for (const LMRunningApplication& application : applications)
        platform.unhide(application.processIdentifier);
}

} // namespace

Applications LMWorkspaceAdditions::runningApplications() const {
    return m_environment.desktop.applications().runningApplications();
}

std::optional<LMRunningApplication>
LMWorkspaceAdditions::firstRunning(const QString& bundleIdentifier) const {
    const Applications running = runningApplications();
    const auto found = std::find_if(running.begin(), running.end(), [&](const auto& application) {
        return application.bundleIdentifier == bundleIdentifier;
    });
    return found == running.end() ? std::nullopt : std::optional(*found);
}

Applications LMWorkspaceAdditions::runningAmong(const QStringList& bundleIdentifiers) const {
    return filtered(runningApplications(), [&](const LMRunningApplication& application) {
        return bundleIdentifiers.contains(application.bundleIdentifier);
    });
}

std::optional<LMRunningApplication> LMWorkspaceAdditions::runningApplication() const {
    const Applications running = runningApplications();
    const auto active = std::find_if(running.begin(), running.end(),
                                     [](const auto& application) { return application.isActive; });
    if (active == running.end() ||
        m_environment.knownApplications.plays(LMKnownApplications::Role::NeverActive,
                                              active->bundleIdentifier))
        return std::nullopt;
    return *active;
}

Applications LMWorkspaceAdditions::hiddenApplications() const {
    return filtered(runningApplications(), [](const LMRunningApplication& application) {
        return application.isHidden && application.activationPolicy == LMActivationPolicy::Regular;
    });
}

Applications LMWorkspaceAdditions::unhiddenApplications() const {
    const auto finder = finderRunningApplication();
    const QString finderIdentifier = finder ? finder->bundleIdentifier : QString();
    return filtered(runningApplications(), [&](const LMRunningApplication& application) {
        return !application.isHidden && application.bundleIdentifier != finderIdentifier &&
               application.activationPolicy == LMActivationPolicy::Regular;
    });
}

std::optional<Applications> LMWorkspaceAdditions::storedHiddenApplications() const {
    return m_environment.hiding.storedHiddenApplications;
}

void LMWorkspaceAdditions::setStoredHiddenApplications(
    const std::optional<Applications>& applications) {
    m_environment.hiding.storedHiddenApplications = applications;
}

std::optional<Applications> LMWorkspaceAdditions::storedUnhiddenApplications() const {
    return m_environment.hiding.storedUnhiddenApplications;
}

void LMWorkspaceAdditions::setStoredUnhiddenApplications(
    const std::optional<Applications>& applications) {
    m_environment.hiding.storedUnhiddenApplications = applications;
}

void LMWorkspaceAdditions::storeAndUnhideApps(const std::optional<QStringList>& bundleIdentifiers) {
    const Applications hidden =
        bundleIdentifiers ? runningAmong(*bundleIdentifiers) : hiddenApplications();
    setStoredHiddenApplications(hidden);
    unhideAll(m_environment.desktop.applications(), hidden);
}

void LMWorkspaceAdditions::restoreHiddenApps() {
    hideAll(m_environment.desktop.applications(),
            storedHiddenApplications().value_or(Applications()));
    setStoredHiddenApplications(std::nullopt);
}

void LMWorkspaceAdditions::storeAndHideApps(const std::optional<QStringList>& bundleIdentifiers) {
    const Applications visible =
        bundleIdentifiers ? runningAmong(*bundleIdentifiers) : unhiddenApplications();
    setStoredUnhiddenApplications(visible);
    hideAll(m_environment.desktop.applications(), visible);
}

void LMWorkspaceAdditions::restoreUnhiddenApps() {
    unhideAll(m_environment.desktop.applications(),
              storedUnhiddenApplications().value_or(Applications()));
    setStoredUnhiddenApplications(std::nullopt);
}

std::optional<LMRunningApplication> LMWorkspaceAdditions::finderRunningApplication() const {
    const QString finder = m_environment.desktop.applications().fileManagerIdentifier();
    const Applications running = runningApplications();
    const auto found =
        std::find_if(running.begin(), running.end(), [&](const LMRunningApplication& application) {
            return m_environment.knownApplications.plays(LMKnownApplications::Role::FileManager,
                                                         application.bundleIdentifier) ||
                   (!finder.isEmpty() && application.bundleIdentifier == finder);
        });
    return found == running.end() ? std::nullopt : std::optional(*found);
}

bool LMWorkspaceAdditions::finderHiddenStatus() const {
    return m_environment.hiding.fileManagerHiddenStatus;
}

void LMWorkspaceAdditions::setFinderHiddenStatus(bool isHidden) {
    m_environment.hiding.fileManagerHiddenStatus = isHidden;
}

void LMWorkspaceAdditions::storeFinderHiddenStatus() {
    const auto finder = finderRunningApplication();
    setFinderHiddenStatus(finder && finder->isHidden);
}

void LMWorkspaceAdditions::restoreFinderHiddenStatus() {
    const auto finder = finderRunningApplication();
    if (!finder)
        return;
    LMApplications& applications = m_environment.desktop.applications();
    if (finderHiddenStatus())
        applications.hide(finder->processIdentifier);
    else
        applications.unhide(finder->processIdentifier);
}

void LMWorkspaceAdditions::hideFinder() {
    if (unhiddenApplications().isEmpty())
        showFirstHiddenApplication();
    if (const auto finder = finderRunningApplication())
        m_environment.desktop.applications().hide(finder->processIdentifier);
}

void LMWorkspaceAdditions::showFirstHiddenApplication() {
    const Applications hidden = hiddenApplications();
    unhideAll(m_environment.desktop.applications(), hidden.mid(0, 1));
    setTemporarilyUnhiddenApplication(hidden.isEmpty() ? std::nullopt
                                                       : std::optional(hidden.first()));
    m_environment.clock.sleep(std::chrono::seconds(1));
}

void LMWorkspaceAdditions::unhideFinder() {
    LMApplications& applications = m_environment.desktop.applications();
    if (const auto finder = finderRunningApplication())
        applications.unhide(finder->processIdentifier);
    if (const auto application = temporarilyUnhiddenApplication())
        applications.hide(application->processIdentifier);
    setTemporarilyUnhiddenApplication(std::nullopt);
}

std::optional<LMRunningApplication> LMWorkspaceAdditions::temporarilyUnhiddenApplication() const {
    const auto& identifier = m_environment.hiding.temporarilyUnhiddenApplication;
    return identifier ? firstRunning(*identifier) : std::nullopt;
}

void LMWorkspaceAdditions::setTemporarilyUnhiddenApplication(
    const std::optional<LMRunningApplication>& application) {
    auto& identifier = m_environment.hiding.temporarilyUnhiddenApplication;
    if (application)
        identifier = application->bundleIdentifier;
    else
        identifier.reset();
}
