// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/LMApplications.h"

#include <QList>
#include <QStringList>

#include <optional>

struct LMEnvironment;

/// Says which application is active, and hides and shows applications so that it can be undone.
///
/// Holds nothing itself: what is to be undone is kept in the environment (LMHidingState), so any
/// two instances on one environment act as one. Finder is the platform's file manager. Requests for
/// an application that has quit do nothing.
class LMWorkspaceAdditions {
public:
    /// The environment must outlive this object.
    explicit LMWorkspaceAdditions(LMEnvironment& environment) : m_environment(environment) {}

    /// The first application that is active; none when that is one never treated as active.
    std::optional<LMRunningApplication> runningApplication() const;

    /// Regular applications that are hidden, in platform order.
    QList<LMRunningApplication> hiddenApplications() const;
    /// Regular applications other than Finder that are not hidden, in platform order.
    QList<LMRunningApplication> unhiddenApplications() const;

    std::optional<QList<LMRunningApplication>> storedHiddenApplications() const;
    void
    setStoredHiddenApplications(const std::optional<QList<LMRunningApplication>>& applications);
    std::optional<QList<LMRunningApplication>> storedUnhiddenApplications() const;
    void
    setStoredUnhiddenApplications(const std::optional<QList<LMRunningApplication>>& applications);

    /// Remembers the hidden applications (with a list: those running whose identifiers are in it,
    /// whatever their policy) and shows them. restoreHiddenApps hides them again and forgets them.
    void storeAndUnhideApps(const std::optional<QStringList>& bundleIdentifiers = std::nullopt);
    void restoreHiddenApps();

    /// The mirror image: remembers the visible applications other than Finder, or those of the
    /// list, and hides them. restoreUnhiddenApps shows them again and forgets them.
    void storeAndHideApps(const std::optional<QStringList>& bundleIdentifiers = std::nullopt);
    void restoreUnhiddenApps();

    std::optional<LMRunningApplication> finderRunningApplication() const;
    bool finderHiddenStatus() const;
    void setFinderHiddenStatus(bool isHidden);
    void storeFinderHiddenStatus();
    void restoreFinderHiddenStatus();

    /// Hides Finder. When no other regular application is visible, the first hidden one is shown
    /// before and gets a second to come up, since the last visible application cannot be hidden.
    void hideFinder();
    /// Shows Finder and hides again what hideFinder showed.
    void unhideFinder();

    /// The application that hideFinder showed, as it runs now.
    std::optional<LMRunningApplication> temporarilyUnhiddenApplication() const;
    void setTemporarilyUnhiddenApplication(const std::optional<LMRunningApplication>& application);

private:
    QList<LMRunningApplication> runningApplications() const;
    std::optional<LMRunningApplication> firstRunning(const QString& bundleIdentifier) const;
    QList<LMRunningApplication> runningAmong(const QStringList& bundleIdentifiers) const;
    void showFirstHiddenApplication();

    LMEnvironment& m_environment;
};
