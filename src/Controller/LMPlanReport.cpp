// SPDX-License-Identifier: MIT
#include "Controller/LMReports.h"

#include "Controller/LMCommandFrame.h"
#include "Controller/LMReportValues.h"
#include "Controller/LMWorkspaceList.h"
#include "Model/LMRestoreReport.h"
#include "Model/LMStateRules.h"
#include "Model/LMStoredWindowsStore.h"
#include "Utilities/LMFormat.h"

using LMReportValues::frame;

namespace {

QJsonArray reasons(const LMPlannedMove& move) {
    QJsonArray result;
    const auto add = [&result](bool applies, const char* name) {
        if (applies)
            result.append(QLatin1String(name));
    };
    add(move.likeness.structure, "structure");
    add(move.likeness.title, "title");
    add(move.likeness.subrole, "subrole");
    add(move.likeness.size, "size");
    add(move.pattern, "pattern");
    add(move.tieBreak == LMTieBreak::Title, "tie-break:title");
    add(move.tieBreak == LMTieBreak::Order, "tie-break:order");
    return result;
}

QJsonObject plannedWindow(const LMPlannedWindow& window) {
    const QJsonValue nothing(QJsonValue::Null);
    const auto& move = window.move;
    return {{QStringLiteral("title"), window.title},
            {QStringLiteral("storedWindow"), move ? QJsonValue(move->label) : nothing},
            {QStringLiteral("score"), move ? int(move->score) : 0},
            {QStringLiteral("reasons"), move ? reasons(*move) : QJsonArray()},
            {QStringLiteral("from"), frame(window.frame)},
            {QStringLiteral("to"), move ? QJsonValue(frame(move->frame)) : nothing},
            {QStringLiteral("fromState"), LMReportValues::state(window.state)},
            {QStringLiteral("toState"), move ? LMReportValues::state(move->state) : nothing},
            {QStringLiteral("notRestored"),
             QJsonArray::fromStringList(move ? move->notRestored : QStringList())}};
}

QJsonObject applicationPlan(const LMApplicationReport& application) {
    QJsonArray windows;
    for (const LMPlannedWindow& window : application.windows)
        windows.append(plannedWindow(window));
    QJsonArray unmatched;
    for (const LMUnusedStoredWindow& stored : application.unusedStoredWindows)
        unmatched.append(QJsonObject{{QStringLiteral("name"), stored.label},
                                     {QStringLiteral("frame"), frame(stored.frame)}});
    return {{QStringLiteral("identifier"), application.bundleIdentifier},
            {QStringLiteral("name"), application.name},
            {QStringLiteral("running"), application.isLaunched},
            {QStringLiteral("stored"), application.isStored},
            {QStringLiteral("windows"), windows},
            {QStringLiteral("unmatched"), unmatched}};
}

/// What is restored besides frames: switched on, and to be had from the window manager.
QJsonObject restored(LMEnvironment& environment) {
    const LMStateRules rules = LMStateRules::inForce(environment);
    return {{QStringLiteral("states"), rules.restoresStates},
            {QStringLiteral("desktops"), rules.restoresDesktops && rules.support.desktops},
            {QStringLiteral("stackingOrder"),
             rules.restoresStackingOrder && rules.support.stackingOrder}};
}

QJsonObject failure(const QString& why) {
    return {{QStringLiteral("applications"), QJsonArray()}, {QStringLiteral("error"), why}};
}

} // namespace

QJsonObject LMReports::plan(const LMCommandParts& parts, const QString& bundleIdentifier) {
    LMWorkspace* workspace = parts.workspaceList.currentWorkspace();
    if (!workspace)
        return failure(LMRefusal::noCurrentWorkspace());
    const LMTransientScope transients(parts.store.managedObjectContext());
    const std::vector<LMApplicationReport> reports = LMReportRestore(*workspace, bundleIdentifier);
    if (reports.empty() && !bundleIdentifier.isEmpty())
        return failure(LMRefusal::notStored(bundleIdentifier));
    QJsonArray applications;
    for (const LMApplicationReport& report : reports)
        applications.append(applicationPlan(report));
    return {{QStringLiteral("applications"), applications},
            {QStringLiteral("restores"), restored(parts.environment)}};
}
