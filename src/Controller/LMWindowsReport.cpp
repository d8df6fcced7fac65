// SPDX-License-Identifier: MIT
#include "Controller/LMReports.h"

#include "Controller/LMCommandFrame.h"
#include "Controller/LMReportValues.h"
#include "Model/LMApplication.h"
#include "Model/LMStoredWindow.h"
#include "Model/LMStoredWindowsStore.h"
#include "Model/LMWindow.h"
#include "Model/LMWindowArrangement.h"

namespace {

QJsonObject liveWindow(const LMWindow& window) {
    return {{QStringLiteral("title"), window.title()},
            {QStringLiteral("subrole"), window.subrole()},
            {QStringLiteral("childRoles"),
             QJsonArray::fromStringList(window.children().value_or(QStringList()))},
            {QStringLiteral("frame"), LMReportValues::frame(window.frame())},
            {QStringLiteral("state"), LMReportValues::state(window.state())},
            {QStringLiteral("toolbarButton"), window.hasToolbarButton()},
            {QStringLiteral("growArea"), window.hasGrowArea()},
            {QStringLiteral("document"), window.hasDocument()}};
}

} // namespace

QJsonObject LMReports::windows(const LMCommandParts& parts) {
    LMObjectContext& context = parts.store.managedObjectContext();
    const LMTransientScope transients(context);
    const LMWindowArrangement arrangement(parts.environment);
    QJsonArray applications;
    for (LMApplication* application : LMApplication::currentApplications(context)) {
        QJsonArray windows;
        for (LMWindow* window : application->currentWindows()) {
            arrangement.describe(*window);
            windows.append(liveWindow(*window));
        }
        applications.append(
            QJsonObject{{QStringLiteral("identifier"), application->bundleIdentifier()},
                        {QStringLiteral("name"), application->name()},
                        {QStringLiteral("process"), application->processIdentifier()},
                        {QStringLiteral("windows"), windows}});
    }
    return {{QStringLiteral("applications"), applications}};
}
