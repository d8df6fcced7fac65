// SPDX-License-Identifier: MIT
#include "Controller/LMReports.h"

#include "Controller/LMActivityReport.h"
#include "Controller/LMCommandFrame.h"
#include "Controller/LMHotKeyCenter.h"
#include "Controller/LMReportValues.h"
#include "Controller/LMWorkspaceList.h"
#include "Model/LMApplication.h"
#include "Model/LMStoredWindow.h"
#include "Model/LMStoredWindowsStore.h"
#include "Model/LMWorkspace.h"
#include "Platform/LMDesktop.h"
#include "Platform/LMEnvironment.h"
#include "Utilities/LMFolders.h"

#include <QCoreApplication>

namespace {

QJsonArray displays(LMDesktop& desktop) {
    QJsonArray result;
    for (const LMScreen& screen : desktop.screens().screens()) {
        result.append(QJsonObject{
            {QStringLiteral("bounds"), LMReportValues::frame(screen.displayBounds)},
            {QStringLiteral("usable"), LMReportValues::frame(screen.visibleFrame)},
            {QStringLiteral("connector"), screen.connectorName},
            {QStringLiteral("product"), screen.productName},
            {QStringLiteral("main"), result.isEmpty()},
        });
    }
    return result;
}

QJsonObject backend(LMDesktop& desktop) {
    QJsonObject capabilities;
    for (const LMCapability& capability : desktop.capabilities())
        capabilities.insert(capability.name, capability.isSupported);
    return {{QStringLiteral("name"), desktop.backendName()},
            {QStringLiteral("windowManager"), desktop.windowManagerName()},
            {QStringLiteral("capabilities"), capabilities}};
}

QJsonObject permission(LMDesktop& desktop) {
    const LMPermission permission = desktop.checkPermission();
    return {{QStringLiteral("trusted"), permission.isTrusted},
            {QStringLiteral("missing"), QJsonArray::fromStringList(permission.missing)}};
}

QJsonArray hotKeys(const LMHotKeyCenter& center) {
    using State = LMHotKeyReport::State;
    QJsonArray result;
    for (const LMHotKeyReport& hotKey : center.hotKeys()) {
        const char* state = hotKey.state == State::Registered ? "registered"
                            : hotKey.state == State::Refused  ? "refused"
                                                              : "empty";
        const QString shortcut = hotKey.shortcut ? hotKey.shortcut->description() : QString();
        result.append(QJsonObject{{QStringLiteral("key"), hotKey.key},
                                  {QStringLiteral("shortcut"), LMReportValues::text(shortcut)},
                                  {QStringLiteral("state"), QLatin1String(state)},
                                  {QStringLiteral("reason"), hotKey.reason}});
    }
    return result;
}

QJsonObject counts(const LMCommandParts& parts) {
    qsizetype applications = 0;
    qsizetype windows = 0;
    const auto workspaces = parts.workspaceList.workspaces();
    for (const LMWorkspace* workspace : workspaces) {
        const LMWorkspace& constWorkspace = *workspace;
        applications += qsizetype(constWorkspace.applications().size());
        for (const LMApplication* application : constWorkspace.applications())
            windows += qsizetype(application->windows().size());
    }
    return {{QStringLiteral("workspaces"), qint64(workspaces.size())},
            {QStringLiteral("applications"), applications},
            {QStringLiteral("storedWindows"), windows}};
}

} // namespace

QJsonObject LMReports::status(const LMCommandParts& parts, const LMHotKeyCenter& hotKeyCenter) {
    LMDesktop& desktop = parts.environment.desktop;
    const LMWorkspace* current = parts.workspaceList.currentWorkspace();
    return {
        {QStringLiteral("version"), QCoreApplication::applicationVersion()},
        {QStringLiteral("process"), QCoreApplication::applicationPid()},
        {QStringLiteral("store"), parts.environment.folders.storedWindowsURL()},
        {QStringLiteral("backend"), backend(desktop)},
        {QStringLiteral("permission"), permission(desktop)},
        {QStringLiteral("displays"), displays(desktop)},
        {QStringLiteral("currentWorkspace"),
         current ? QJsonValue(current->name()) : QJsonValue(QJsonValue::Null)},
        {QStringLiteral("counts"), counts(parts)},
        {QStringLiteral("hotKeys"), hotKeys(hotKeyCenter)},
        {QStringLiteral("activity"), LMActivityReport(parts.environment.activity)},
    };
}
