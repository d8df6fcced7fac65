// SPDX-License-Identifier: MIT
#pragma once

#include "Model/LMMutableSet.h"
#include "Model/Store/LMManagedObject.h"

#include <QList>
#include <QString>

class LMAction;
class LMApplication;
class LMDisplay;
class LMProgress;
class LMWindowArrangement;
class LMWorkspaceAdditions;
struct LMScreen;

/// The stored layout of one display configuration.
class LMWorkspace final : public LMManagedObject {
public:
    static QString entityName();
    static LMEntityDescription entityDescription();

    // --- the record ---------------------------------------------------------------------------
    /// The stored name, or "2 Displays" and the like when there is none.
    QString name() const;
    void setName(const QString& name);

    LMMutableSet<LMApplication> applications();
    const std::vector<LMApplication*>& applications() const { return m_applications; }
    void addApplicationsObject(LMApplication* application);
    void removeApplicationsObject(LMApplication* application);
    LMMutableSet<LMDisplay> displays();
    const std::vector<LMDisplay*>& displays() const { return m_displays; }
    void addDisplaysObject(LMDisplay* display);
    void removeDisplaysObject(LMDisplay* display);
    LMMutableSet<LMAction> actions();
    const std::vector<LMAction*>& actions() const { return m_actions; }
    void addActionsObject(LMAction* action);
    void removeActionsObject(LMAction* action);

    // --- whole workspace ----------------------------------------------------------------------
    /// Forgets all applications and stores the windows of every running one. States and stacking
    /// order are put back as they were.
    void storeWindowsWithProgressWindowController(LMProgress& progress);
    /// Runs the actions, then positions, a pause of one second, sizes, states, the stacking order.
    void restoreWindowsWithProgressWindowController(LMProgress& progress, bool displayChanged);
    void removeAllWindows();

    // --- one application ----------------------------------------------------------------------
    void storeWindowsForApplication(const QString& bundleIdentifier);
    void restoreWindowsForApplication(const QString& bundleIdentifier);
    void removeWindowsForApplication(const QString& bundleIdentifier);
    LMApplication* applicationForBundleIdentifier(const QString& bundleIdentifier) const;
    bool storesApplication(const QString& bundleIdentifier) const;

    std::vector<LMAction*> filteredActions(bool displayChanged) const;
    std::vector<LMApplication*> applicationsWithFloatingWindows() const;

    // --- displays -----------------------------------------------------------------------------
    /// Whether the attached displays are this workspace's.
    bool isCurrentWorkspace() const;
    bool canBecomeCurrentWorkspace() const;
    /// Rearranges the attached displays to where this workspace's displays stood.
    void makeCurrentWorkspace();

    void awakeFromInsert() override;
    std::vector<LMManagedObject*> ownedObjects() const override;

protected:
    void insertPrimitiveMember(LMManagedObject& member) override;
    void removePrimitiveMember(LMManagedObject& member) override;

private:
    void storeWindowsForApplication(const QString& bundleIdentifier,
                                    const LMWindowArrangement& arrangement);
    void showApplications(LMWorkspaceAdditions& additions, const LMWindowArrangement& arrangement);
    void storeRunningApplication(const QString& bundleIdentifier,
                                 const LMWindowArrangement& arrangement);

    void addMember(LMManagedObject* member);
    void removeMember(LMManagedObject* member);

    QString m_name;
    std::vector<LMApplication*> m_applications;
    std::vector<LMDisplay*> m_displays;
    std::vector<LMAction*> m_actions;
};

/// Whether the screens can be arranged as the displays stood, by a desktop that can arrange any.
bool LMDisplaysCanBeArranged(const std::vector<LMDisplay*>& displays, QList<LMScreen> screens);
