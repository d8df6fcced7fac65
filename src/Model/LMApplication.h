// SPDX-License-Identifier: MIT
#pragma once

#include "Model/LMMutableSet.h"
#include "Model/Store/LMManagedObject.h"
#include "Platform/LMApplications.h"
#include "Platform/LMWindowServer.h"

#include <QImage>
#include <QStringList>

#include <optional>

class LMStoredWindow;
class LMWindow;
class LMWorkspace;
class LMStateRestoration;
class LMWindowArrangement;
struct LMRestorePlan;

/// One application within a workspace: its stored windows in the user's order, and its live side.
class LMApplication final : public LMManagedObject {
public:
    static QString entityName();
    static LMEntityDescription entityDescription();

    // --- the record ---------------------------------------------------------------------------
    QString name() const { return m_name; }
    void setName(const QString& name);
    QString bundleIdentifier() const { return m_bundleIdentifier; }
    void setBundleIdentifier(const QString& bundleIdentifier);
    LMWorkspace* workspace() const;

    LMMutableSet<LMStoredWindow> windows();
    const std::vector<LMStoredWindow*>& windows() const { return m_windows; }
    const QStringList& windowsOrdering() const { return m_windowsOrdering; }
    void setWindowsOrdering(const QStringList& uris);
    void addWindowsObject(LMStoredWindow* window);
    void removeWindowsObject(LMStoredWindow* window);
    void addWindows(const std::vector<LMStoredWindow*>& windows);
    void removeWindows(const std::vector<LMStoredWindow*>& windows);
    /// Members in priority order, first is highest; drops URIs that no longer resolve.
    std::vector<LMStoredWindow*> orderedWindows();

    // --- the running application --------------------------------------------------------------
    /// A record with a stored window for each current window; none for applications that are not
    /// handled (background only, blocked, without readable windows, this program itself).
    static LMApplication* applicationWithRunningApplication(LMObjectContext& context,
                                                            const LMRunningApplication& running);
    static LMApplication* applicationWithBundleIdentifier(LMObjectContext& context,
                                                          const QString& bundleIdentifier);
    static std::vector<LMApplication*> currentApplications(LMObjectContext& context);

    /// Whether the application is one whose windows are stored: it has a name and an identifier,
    /// may have windows, is not blocked and is not this program.
    static bool isHandled(LMEnvironment& environment, const LMRunningApplication& running);

    /// The running application with this record's identifier, or none.
    std::optional<LMRunningApplication> runningApplication() const;
    /// 0 when it does not run.
    qint64 processIdentifier() const;
    bool isLaunched() const;
    /// One record per readable window, front to back; inserted into the context.
    std::vector<LMWindow*> currentWindows();
    /// Its windows on screen, front to back.
    QList<LMWindowDescription> currentCGWindowDescriptions();
    QImage screenshotFromCGWindowDescription(const LMWindowDescription& description);
    void attachScreenshotsToWindows(const std::vector<LMWindow*>& windows);
    /// Microseconds; read once per process.
    static double floatingWindowActivationDelay(LMEnvironment& environment);
    /// Identifiers that are never handled; built once per process.
    static const QStringList& blockedApplications(LMEnvironment& environment);
    bool isBlocked() const;
    QImage icon() const;
    bool storesFloatingWindows() const;
    bool isEqualToApplication(const LMApplication& other) const;

    // --- matching -----------------------------------------------------------------------------
    /// The best candidate for a live window, moved to the end of the list; none scores 0 only.
    LMStoredWindow* bestMatchForWindow(const LMWindow& live,
                                       std::vector<LMStoredWindow*>& fromWindows);
    void prioritiseStoredWindow(const LMStoredWindow& storedWindow);
    LMStoredWindow* identicalStoredWindow(const LMWindow& live);
    /// Gives windows of well-known applications the pattern that finds them again.
    void addDefaultTitleMatchPatterns();

    // --- storing ------------------------------------------------------------------------------
    /// Stores the current windows with the states they had in the arrangement: showing them for
    /// storing may change that. Without one, with the states they have before.
    void storeWindows();
    void storeWindows(const LMWindowArrangement& arrangement);
    void storeFloatingWindows();
    void storeFloatingWindows(const LMWindowArrangement& arrangement);
    void removeAllWindows();
    void storeFocusedWindow(LMWindow* window);
    void addMatchingWindow(LMWindow* window, LMStoredWindow* toStoredWindow);

    // --- restoring ----------------------------------------------------------------------------
    /// What a restore does with the current windows. Moves nothing.
    LMRestorePlan restorePlan();
    /// Positions, a pause of one second, sizes, states, the stacking order.
    void restoreWindows();
    /// The same up to the sizes: states and stacking order are the caller's to finish.
    void restoreWindows(LMStateRestoration& states);
    /// Each one pass. Without states, the frames alone.
    void restoreWindowPositions(LMStateRestoration* states = nullptr);
    void restoreWindowSizes(LMStateRestoration* states = nullptr);
    void restoreWindowSizesOrPositions(bool positions, LMStateRestoration* states = nullptr);

    std::vector<LMManagedObject*> ownedObjects() const override;

protected:
    void insertPrimitiveMember(LMManagedObject& member) override;
    void removePrimitiveMember(LMManagedObject& member) override;
    void attributeDidNotLoad(const QString& name) override;

private:
    QString m_name;
    QString m_bundleIdentifier;
    QStringList m_windowsOrdering;
    std::vector<LMStoredWindow*> m_windows;
};
