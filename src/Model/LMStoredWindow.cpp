// SPDX-License-Identifier: MIT
#include "Model/LMStoredWindow.h"

#include "Model/LMApplication.h"
#include "Model/LMOrdering.h"
#include "Model/LMWindow.h"
#include "Model/Store/LMEntityDescription.h"
#include "Utilities/LMFormat.h"
#include "Utilities/LMRectangle.h"

namespace {

const QString& matchingWindowsOrderingName() {
    static const QString name = QStringLiteral("matchingWindowsOrdering");
    return name;
}

} // namespace

QString LMStoredWindow::entityName() {
    return QStringLiteral("StoredWindow");
}

LMEntityDescription LMStoredWindow::entityDescription() {
    return LMDescribeEntity<LMStoredWindow>(
        {
            LMDescribeAttribute<&LMStoredWindow::m_label>(QStringLiteral("label")),
            LMDescribeAttribute<&LMStoredWindow::m_titleRegularExpression>(
                QStringLiteral("titleRegularExpression")),
            LMDescribeAttribute<&LMStoredWindow::m_frameString>(QStringLiteral("frameString")),
            LMDescribeAttribute<&LMStoredWindow::m_matchingWindowsOrdering>(
                matchingWindowsOrderingName()),
            LMDescribeAttribute<&LMStoredWindow::m_stateString>(QStringLiteral("stateString")),
        },
        LMApplication::entityName(), QStringLiteral("application"));
}

LMStoredWindow* LMStoredWindow::storedWindowWithWindow(LMWindow* window) {
    auto* storedWindow = window->managedObjectContext().insertObject<LMStoredWindow>();
    storedWindow->addMatchingWindowsObject(window);
    storedWindow->setFrameString(window->frameString());
    storedWindow->setStateString(window->stateString());
    return storedWindow;
}

void LMStoredWindow::setLabel(const QString& label) {
    setAttribute(m_label, label);
}

void LMStoredWindow::setTitleRegularExpression(const QString& pattern) {
    setAttribute(m_titleRegularExpression, pattern);
}

void LMStoredWindow::setFrameString(const QString& frameString) {
    setAttribute(m_frameString, frameString);
}

void LMStoredWindow::setStateString(const QString& stateString) {
    setAttribute(m_stateString, stateString);
}

QRectF LMStoredWindow::frame() const {
    return LMRectFromString(m_frameString);
}

void LMStoredWindow::setFrame(const QRectF& frame) {
    setFrameString(LMStringFromRect(frame));
}

LMApplication* LMStoredWindow::application() const {
    return static_cast<LMApplication*>(owner());
}

// --- derived values ------------------------------------------------------------------------

QString LMStoredWindow::title() {
    const std::vector<LMWindow*> windows = orderedMatchingWindows();
    return windows.empty() ? LMLocalized("No title") : windows.front()->title();
}

QString LMStoredWindow::labelOrTitleIfNil() {
    if (!m_label.isEmpty())
        return m_label;
    const std::vector<LMWindow*> windows = orderedMatchingWindows();
    return windows.empty() ? LMLocalized("Unlabeled Window") : windows.front()->title();
}

QSet<QString> LMStoredWindow::screenshotFilenames() const {
    QSet<QString> filenames;
    for (const LMWindow* window : m_matchingWindows)
        filenames.insert(window->screenshotFilename());
    return filenames;
}

bool LMStoredWindow::matchesFloatingWindows() const {
    return std::any_of(m_matchingWindows.begin(), m_matchingWindows.end(), [](const auto* window) {
        return window->subrole() == QLatin1String("AXFloatingWindow") ||
               window->subrole() == QLatin1String("AXSystemFloatingWindow");
    });
}

// --- matching windows ----------------------------------------------------------------------

LMMutableSet<LMWindow> LMStoredWindow::matchingWindows() {
    return {m_matchingWindows, [this](LMWindow* window) { addMatchingWindowsObject(window); },
            [this](LMWindow* window) { removeMatchingWindowsObject(window); }};
}

void LMStoredWindow::addMatchingWindowsObject(LMWindow* window) {
    addMatchingWindows({window});
}

void LMStoredWindow::addMatchingWindows(const std::vector<LMWindow*>& windows) {
    QStringList ordering = m_matchingWindowsOrdering;
    for (LMWindow* window : windows) {
        if (!window || window->storedWindow() == this)
            continue;
        if (LMStoredWindow* previous = window->storedWindow())
            previous->removeMatchingWindows({window});
        m_matchingWindows.push_back(window);
        setOwner(*window, this);
        ordering.append(window->uriRepresentation());
    }
    setAttribute(m_matchingWindowsOrdering, ordering);
}

// In place, as LMApplication::removeWindowsObject.
void LMStoredWindow::removeMatchingWindowsObject(LMWindow* window) {
    if (!window || window->storedWindow() != this)
        return;
    removePrimitiveMember(*window);
    setOwner(*window, nullptr);
    m_matchingWindowsOrdering.removeAll(window->uriRepresentation());
}

void LMStoredWindow::removeMatchingWindows(const std::vector<LMWindow*>& windows) {
    std::vector<LMWindow*> members;
    std::copy_if(windows.begin(), windows.end(), std::back_inserter(members),
                 [this](const auto* window) { return window && window->storedWindow() == this; });
    for (LMWindow* window : members) {
        removePrimitiveMember(*window);
        setOwner(*window, nullptr);
    }
    setAttribute(m_matchingWindowsOrdering,
                 LMOrderingWithoutObjects(m_matchingWindowsOrdering, members));
}

std::vector<LMWindow*> LMStoredWindow::orderedMatchingWindows() {
    return LMMembersInOrder<LMWindow>(*this, m_matchingWindowsOrdering);
}

// --- what the context asks -----------------------------------------------------------------

void LMStoredWindow::insertPrimitiveMember(LMManagedObject& member) {
    m_matchingWindows.push_back(static_cast<LMWindow*>(&member));
}

void LMStoredWindow::removePrimitiveMember(LMManagedObject& member) {
    std::erase(m_matchingWindows, &member);
}

std::vector<LMManagedObject*> LMStoredWindow::ownedObjects() const {
    return {m_matchingWindows.begin(), m_matchingWindows.end()};
}

void LMStoredWindow::attributeDidNotLoad(const QString& name) {
    if (name == matchingWindowsOrderingName())
        setAttribute(m_matchingWindowsOrdering, LMURIsOfObjects(m_matchingWindows));
}
