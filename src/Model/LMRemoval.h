// SPDX-License-Identifier: MIT
#pragma once

#include "Model/Store/LMRecordSnapshot.h"

#include <QStringList>

#include <optional>

class LMApplication;
class LMObjectContext;
class LMWorkspace;

/// Deletes a workspace without applications and actions. Answers whether it did.
bool LMDeleteWorkspaceIfEmpty(LMWorkspace& workspace);

/// The removal of an application, a stored window or an action from its workspace, which can be
/// taken back however often the store was saved in between. Screenshots need no copies: nothing
/// deletes their files before the program ends.
class LMRemoval {
public:
    /// Does nothing yet. The context outlives the removal.
    LMRemoval(LMObjectContext& context, const LMObjectID& what)
        : m_context(context), m_what(what) {}

    /// Removes it, then an application without stored windows, then a workspace without anything.
    /// False when there was nothing to remove.
    bool perform();

    /// Puts back everything that perform took away, in its old place, and answers the workspace in
    /// which it stands; none before perform. What the user stored anew in the meantime stays: when
    /// there is a new record of the application, or a new workspace of the same displays, that is
    /// the one to join, and a window that is stored again already does not come back a second time.
    LMWorkspace* takeBack();

    /// What perform removes: after takeBack that is what stands for it now.
    LMObjectID what() const { return m_what; }

private:
    struct Window {
        LMRecordSnapshot record;
        qsizetype place; ///< In the application's ordering.
    };

    void remember(const LMManagedObject& object, LMApplication* application);
    LMWorkspace* workspaceToJoin() const;
    LMApplication* applicationToJoin(LMWorkspace& workspace) const;
    void takeBackWindows(LMApplication& application);

    LMObjectContext& m_context;
    LMObjectID m_what;
    std::optional<LMRecordSnapshot> m_workspace;   ///< With its displays.
    std::optional<LMRecordSnapshot> m_application; ///< Without its windows.
    std::optional<LMRecordSnapshot> m_action;
    std::vector<Window> m_windows; ///< In their order.
    qint64 m_latestKey = 0;        ///< Of stored windows at that time: later ones have higher keys.
    QString m_bundleIdentifier;
    QStringList m_displayBounds;
};
