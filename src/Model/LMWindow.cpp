// SPDX-License-Identifier: MIT
#include "Model/LMWindow.h"

#include "Model/LMStoredWindow.h"
#include "Model/Store/LMEntityDescription.h"
#include "Utilities/LMRectangle.h"

QString LMWindow::entityName() {
    return QStringLiteral("Window");
}

LMEntityDescription LMWindow::entityDescription() {
    return LMDescribeEntity<LMWindow>(
        {
            LMDescribeAttribute<&LMWindow::m_title>(QStringLiteral("title")),
            LMDescribeAttribute<&LMWindow::m_subrole>(QStringLiteral("subrole")),
            LMDescribeAttribute<&LMWindow::m_frameString>(QStringLiteral("frameString")),
            LMDescribeAttribute<&LMWindow::m_hasToolbarButton>(QStringLiteral("hasToolbarButton")),
            LMDescribeAttribute<&LMWindow::m_hasGrowArea>(QStringLiteral("hasGrowArea")),
            LMDescribeAttribute<&LMWindow::m_hasDocument>(QStringLiteral("hasDocument")),
            LMDescribeAttribute<&LMWindow::m_children>(QStringLiteral("children")),
            LMDescribeAttribute<&LMWindow::m_screenshotFilename>(
                QStringLiteral("screenshotFilename")),
            LMDescribeAttribute<&LMWindow::m_stateString>(QStringLiteral("stateString")),
        },
        LMStoredWindow::entityName(), QStringLiteral("storedWindow"));
}

void LMWindow::setTitle(const QString& title) {
    setAttribute(m_title, title);
}

void LMWindow::setSubrole(const QString& subrole) {
    setAttribute(m_subrole, subrole);
}

void LMWindow::setFrameString(const QString& frameString) {
    setAttribute(m_frameString, frameString);
}

void LMWindow::setStateString(const QString& stateString) {
    setAttribute(m_stateString, stateString);
}

void LMWindow::setHasToolbarButton(bool hasToolbarButton) {
    setAttribute(m_hasToolbarButton, hasToolbarButton);
}

void LMWindow::setHasGrowArea(bool hasGrowArea) {
    setAttribute(m_hasGrowArea, hasGrowArea);
}

void LMWindow::setHasDocument(bool hasDocument) {
    setAttribute(m_hasDocument, hasDocument);
}

void LMWindow::setChildren(const std::optional<QStringList>& children) {
    setAttribute(m_children, children);
}

void LMWindow::setScreenshotFilename(const QString& screenshotFilename) {
    setAttribute(m_screenshotFilename, screenshotFilename);
}

LMStoredWindow* LMWindow::storedWindow() const {
    return static_cast<LMStoredWindow*>(owner());
}

QRectF LMWindow::frame() const {
    return LMRectFromString(m_frameString);
}

void LMWindow::setFrame(const QRectF& frame) {
    setFrameString(LMStringFromRect(frame));
}

void LMWindow::setElement(const LMElement& element) {
    m_element = element;
}

void LMWindow::prepareForDeletion() {
    m_element = {};
}
