// SPDX-License-Identifier: MIT
#include "Controller/LMReports.h"

#include "Controller/LMCommandFrame.h"
#include "Controller/LMReportValues.h"
#include "Controller/LMWorkspaceList.h"
#include "Model/LMApplication.h"
#include "Model/LMDisplay.h"
#include "Model/LMStoredWindow.h"
#include "Model/LMStoredWindowsStore.h"
#include "Model/LMWorkspace.h"
#include "Utilities/LMRectangle.h"

using LMReportValues::frame;
using LMReportValues::text;

namespace {

QJsonObject storedWindow(LMStoredWindow& window) {
    return {{QStringLiteral("name"), window.labelOrTitleIfNil()},
            {QStringLiteral("label"), text(window.label())},
            {QStringLiteral("title"), window.title()},
            {QStringLiteral("frame"), frame(window.frame())},
            {QStringLiteral("state"), LMReportValues::state(window.state())},
            {QStringLiteral("pattern"), text(window.titleRegularExpression())}};
}

QJsonObject application(LMApplication& application) {
    QJsonArray windows;
    for (LMStoredWindow* window : application.orderedWindows())
        windows.append(storedWindow(*window));
    return {{QStringLiteral("identifier"), application.bundleIdentifier()},
            {QStringLiteral("name"), application.name()},
            {QStringLiteral("windows"), windows}};
}

QJsonObject workspace(LMWorkspace& workspace) {
    QJsonArray displays;
    for (const LMDisplay* display : workspace.displays())
        displays.append(frame(LMRectFromString(display->displayBounds())));
    QJsonArray applications;
    for (LMApplication* member : workspace.applications())
        applications.append(application(*member));
    return {{QStringLiteral("name"), workspace.name()},
            {QStringLiteral("current"), workspace.isCurrentWorkspace()},
            {QStringLiteral("displays"), displays},
            {QStringLiteral("applications"), applications}};
}

} // namespace

QJsonObject LMReports::list(const LMCommandParts& parts) {
    QJsonArray workspaces;
    for (LMWorkspace* member : parts.workspaceList.workspaces())
        workspaces.append(workspace(*member));
    return {{QStringLiteral("workspaces"), workspaces}};
}
