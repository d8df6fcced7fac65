// SPDX-License-Identifier: MIT
#include "Model/LMApplication.h"

#include "Model/LMOrdering.h"
#include "Model/LMStoredWindow.h"
#include "Model/LMWorkspace.h"
#include "Model/Store/LMEntityDescription.h"

namespace {

const QString& windowsOrderingName() {
    static const QString name = QStringLiteral("windowsOrdering");
    return name;
}

} // namespace

QString LMApplication::entityName() {
    return QStringLiteral("Application");
}

LMEntityDescription LMApplication::entityDescription() {
    return LMDescribeEntity<LMApplication>(
        {
            LMDescribeAttribute<&LMApplication::m_name>(QStringLiteral("name")),
            LMDescribeAttribute<&LMApplication::m_bundleIdentifier>(
                QStringLiteral("bundleIdentifier")),
            LMDescribeAttribute<&LMApplication::m_windowsOrdering>(windowsOrderingName()),
        },
        LMWorkspace::entityName(), QStringLiteral("workspace"));
}

void LMApplication::setName(const QString& name) {
    setAttribute(m_name, name);
}

void LMApplication::setBundleIdentifier(const QString& bundleIdentifier) {
    setAttribute(m_bundleIdentifier, bundleIdentifier);
}

LMWorkspace* LMApplication::workspace() const {
    return static_cast<LMWorkspace*>(owner());
}

// --- stored windows ------------------------------------------------------------------------

LMMutableSet<LMStoredWindow> LMApplication::windows() {
    return {m_windows, [this](LMStoredWindow* window) { addWindowsObject(window); },
            [this](LMStoredWindow* window) { removeWindowsObject(window); }};
}

void LMApplication::setWindowsOrdering(const QStringList& uris) {
    setAttribute(m_windowsOrdering, uris);
}

void LMApplication::addWindowsObject(LMStoredWindow* window) {
    addWindows({window});
}

void LMApplication::addWindows(const std::vector<LMStoredWindow*>& windows) {
    QStringList ordering = m_windowsOrdering;
    for (LMStoredWindow* window : windows) {
        if (!window || window->application() == this)
            continue;
        if (LMApplication* previous = window->application())
            previous->removeWindows({window});
        m_windows.push_back(window);
        setOwner(*window, this);
        ordering.append(window->uriRepresentation());
    }
    setWindowsOrdering(ordering);
}

// The ordering changes in place and is not reported as changed: a URI left behind in the store file
// names no member and is dropped when it is read.
void LMApplication::removeWindowsObject(LMStoredWindow* window) {
    if (!window || window->application() != this)
        return;
    removePrimitiveMember(*window);
    setOwner(*window, nullptr);
    m_windowsOrdering.removeAll(window->uriRepresentation());
}

void LMApplication::removeWindows(const std::vector<LMStoredWindow*>& windows) {
    std::vector<LMStoredWindow*> members;
    std::copy_if(windows.begin(), windows.end(), std::back_inserter(members),
                 [this](const auto* window) { return window && window->application() == this; });
    for (LMStoredWindow* window : members) {
        removePrimitiveMember(*window);
        setOwner(*window, nullptr);
    }
    setWindowsOrdering(LMOrderingWithoutObjects(m_windowsOrdering, members));
}

std::vector<LMStoredWindow*> LMApplication::orderedWindows() {
    return LMMembersInOrder<LMStoredWindow>(*this, m_windowsOrdering);
}

// --- what the context asks -----------------------------------------------------------------

void LMApplication::insertPrimitiveMember(LMManagedObject& member) {
    m_windows.push_back(static_cast<LMStoredWindow*>(&member));
}

void LMApplication::removePrimitiveMember(LMManagedObject& member) {
    std::erase(m_windows, &member);
}

std::vector<LMManagedObject*> LMApplication::ownedObjects() const {
    return {m_windows.begin(), m_windows.end()};
}

// Windows that the ordering does not name are shown and restored nowhere, so a list that was lost
// is made again, oldest first.
void LMApplication::attributeDidNotLoad(const QString& name) {
    if (name == windowsOrderingName())
        setWindowsOrdering(LMURIsOfObjects(m_windows));
}
