// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

class LMPermissionCheck;
class LMStoredWindowsStore;
class LMWorkspace;

/// Finds and makes workspaces. There is no list besides the objects of the context.
class LMWorkspaceList {
public:
    LMWorkspaceList(LMStoredWindowsStore& store, LMPermissionCheck& permissionCheck);

    /// All workspaces, oldest first.
    std::vector<LMWorkspace*> workspaces() const;
    /// The first workspace whose displays are the attached ones, or none.
    LMWorkspace* currentWorkspace() const;
    /// Makes a workspace for the attached displays and saves; does nothing without permission.
    void addWorkspace();
    /// The current workspace, made when there is none; none when that is not permitted.
    LMWorkspace* currentWorkspaceAddingIfNecessary();

private:
    LMStoredWindowsStore& m_store;
    LMPermissionCheck& m_permissionCheck;
};
