// SPDX-License-Identifier: MIT
#include "Model/LMRemoval.h"

#include "Model/LMAction.h"
#include "Model/LMApplication.h"
#include "Model/LMDisplay.h"
#include "Model/LMStoredWindow.h"
#include "Model/LMWindow.h"
#include "Model/LMWorkspace.h"
#include "Model/Store/LMObjectContext.h"

#include <algorithm>

bool LMDeleteWorkspaceIfEmpty(LMWorkspace& workspace) {
    if (!workspace.applications().isEmpty() || !workspace.actions().isEmpty())
        return false;
    workspace.managedObjectContext().deleteObject(&workspace);
    return true;
}

namespace {

bool isDisplay(const LMManagedObject& object) {
    return dynamic_cast<const LMDisplay*>(&object) != nullptr;
}

QStringList boundsOfDisplays(const LMWorkspace& workspace) {
    QStringList bounds;
    for (const LMDisplay* display : workspace.displays())
        bounds.append(display->displayBounds());
    return bounds;
}

/// Whether both were stored from the same window, as far as anything tells.
bool isSame(const LMStoredWindow& a, const LMStoredWindow& b) {
    return std::ranges::any_of(a.matchingWindows(), [&b](const LMWindow* window) {
        return b.identicalMatchingWindow(*window) != nullptr;
    });
}

bool isNothing(const LMManagedObject&) {
    return false;
}

} // namespace

bool LMRemoval::perform() {
    LMManagedObject* object = m_context.existingObjectWithID(m_what);
    auto* window = dynamic_cast<LMStoredWindow*>(object);
    LMApplication* application =
        window ? window->application() : dynamic_cast<LMApplication*>(object);
    auto* action = dynamic_cast<LMAction*>(object);
    LMWorkspace* workspace = application ? application->workspace()
                             : action    ? action->workspace()
                                         : nullptr;
    if (!workspace)
        return false;

    remember(*object, application);
    if (window)
        application->removeWindowsObject(window);
    if (application && (!window || application->windows().isEmpty()))
        workspace->removeApplicationsObject(application);
    workspace->removeActionsObject(action);
    LMDeleteWorkspaceIfEmpty(*workspace);
    return true;
}

void LMRemoval::remember(const LMManagedObject& object, LMApplication* application) {
    const auto& workspace =
        static_cast<const LMWorkspace&>(application ? *application->owner() : *object.owner());
    m_workspace.emplace(workspace, isDisplay);
    m_displayBounds = boundsOfDisplays(workspace);
    m_windows.clear();
    const auto stored = m_context.objects<LMStoredWindow>();
    m_latestKey = stored.empty() ? 0 : stored.back()->objectID().key;
    if (!application) {
        m_action.emplace(object);
        return;
    }
    // The list is read first: reading takes out of it what no longer exists.
    const std::vector<LMStoredWindow*> windows = application->orderedWindows();
    for (std::size_t place = 0; place < windows.size(); ++place) {
        if (&object == application || &object == windows[place])
            m_windows.push_back({LMRecordSnapshot(*windows[place]), qsizetype(place)});
    }
    m_bundleIdentifier = application->bundleIdentifier();
    m_application.emplace(*application, isNothing);
}

LMApplication* LMRemoval::applicationToJoin(LMWorkspace& workspace) const {
    auto* same = m_context.existingObjectWithID(m_application->root());
    if (same && same->owner())
        return static_cast<LMApplication*>(same);
    if (auto* newer = workspace.applicationForBundleIdentifier(m_bundleIdentifier))
        return newer;
    return static_cast<LMApplication*>(m_application->restore(m_context, &workspace));
}

LMWorkspace* LMRemoval::workspaceToJoin() const {
    if (auto* same = m_context.existingObjectWithID(m_workspace->root()))
        return static_cast<LMWorkspace*>(same);
    for (LMWorkspace* newer : m_context.objects<LMWorkspace>()) {
        if (LMDisplayBoundsAreEqual(boundsOfDisplays(*newer), m_displayBounds))
            return newer;
    }
    return static_cast<LMWorkspace*>(m_workspace->restore(m_context, nullptr));
}

LMWorkspace* LMRemoval::takeBack() {
    if (!m_workspace)
        return nullptr;
    LMWorkspace* workspace = workspaceToJoin();
    if (m_action) {
        m_action->restore(m_context, workspace);
        return workspace;
    }
    LMApplication* application = applicationToJoin(*workspace);
    if (m_what == m_application->root())
        m_what = application->objectID();
    takeBackWindows(*application);
    return workspace;
}

void LMRemoval::takeBackWindows(LMApplication& application) {
    std::vector<LMStoredWindow*> later;
    for (LMStoredWindow* window : application.windows()) {
        if (window->objectID().key > m_latestKey)
            later.push_back(window);
    }
    QStringList ordering = application.windowsOrdering();
    for (const Window& window : m_windows) {
        auto* back = static_cast<LMStoredWindow*>(window.record.restore(m_context, &application));
        // Each stands for one: there may be several windows that nothing tells apart.
        const auto same = std::ranges::find_if(
            later, [back](const LMStoredWindow* candidate) { return isSame(*back, *candidate); });
        if (same != later.end()) {
            if (m_what == back->objectID())
                m_what = (*same)->objectID();
            later.erase(same);
            application.removeWindowsObject(back);
            continue;
        }
        const QString uri = back->uriRepresentation();
        if (!ordering.contains(uri))
            ordering.insert(std::min(window.place, ordering.size()), uri);
    }
    application.setWindowsOrdering(ordering);
}
