// SPDX-License-Identifier: MIT
#include "Platform/X11/LMX11WindowProcess.h"

#include "Platform/X11/LMX11ApplicationTable.h"

namespace {

/// Some clients give the full name of the computer, others the part before the first dot.
bool isSameHost(const QString& machine, const QString& hostName) {
    const auto shortName = [](const QString& name) {
        return name.section(QLatin1Char('.'), 0, 0).toLower();
    };
    return !machine.isEmpty() && shortName(machine) == shortName(hostName);
}

} // namespace

LMX11WindowProcess LMX11ProcessOfWindow(const LMX11ApplicationFacts& facts, const QString& hostName,
                                        const LMProcessReader& readProcess) {
    bool isForwarded = false;
    if (facts.serverProcess > 0) {
        auto information = readProcess(facts.serverProcess);
        isForwarded = information && LMForwardsWindows(*information);
        if (information && !isForwarded)
            return {facts.serverProcess, std::move(information)};
    }
    if (facts.claimedProcess > 0 && isSameHost(facts.clientMachine, hostName)) {
        if (auto information = readProcess(facts.claimedProcess))
            return {facts.claimedProcess, std::move(information)};
    }
    // The number is right even where the process may not be looked at.
    if (facts.serverProcess > 0 && !isForwarded)
        return {facts.serverProcess, std::nullopt};
    return {LMX11ApplicationTable::processOfClientLeader(facts.leader), std::nullopt};
}
