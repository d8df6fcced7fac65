// SPDX-License-Identifier: MIT
#include "Controller/LMWorkspaceList.h"

#include "Controller/LMPermissionCheck.h"
#include "Model/LMStoredWindowsStore.h"
#include "Model/LMWorkspace.h"
#include "Model/Store/LMObjectContext.h"

#include <algorithm>

LMWorkspaceList::LMWorkspaceList(LMStoredWindowsStore& store, LMPermissionCheck& permissionCheck)
    : m_store(store), m_permissionCheck(permissionCheck) {}

std::vector<LMWorkspace*> LMWorkspaceList::workspaces() const {
    return m_store.managedObjectContext().objects<LMWorkspace>();
}

LMWorkspace* LMWorkspaceList::currentWorkspace() const {
    const std::vector<LMWorkspace*> all = workspaces();
    const auto found = std::find_if(all.begin(), all.end(), [](const LMWorkspace* workspace) {
        return workspace->isCurrentWorkspace();
    });
    return found == all.end() ? nullptr : *found;
}

void LMWorkspaceList::addWorkspace() {
    if (!m_permissionCheck.checkAccessibilityEnabled())
        return;
    m_store.managedObjectContext().insertObject<LMWorkspace>();
    m_store.saveWindows();
}

LMWorkspace* LMWorkspaceList::currentWorkspaceAddingIfNecessary() {
    if (LMWorkspace* workspace = currentWorkspace())
        return workspace;
    addWorkspace();
    return currentWorkspace();
}
