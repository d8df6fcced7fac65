// SPDX-License-Identifier: MIT
#pragma once

#include "Model/LMStoredState.h"
#include "Platform/LMApplications.h"

#include <map>
#include <optional>

class LMWindow;
struct LMEnvironment;

/// How the windows of all applications stood at one moment: read before storing shows and activates
/// applications, it tells what to remember and puts back what that has changed.
class LMWindowArrangement {
public:
    /// Reads all windows in one batch. The environment outlives it.
    explicit LMWindowArrangement(LMEnvironment& environment);

    /// Gives the record the state of its window at that moment, place among the others included.
    /// A window that was not there keeps the state it was read with.
    void describe(LMWindow& window) const;

    /// Activates the application again that was active, brings windows back into their states and
    /// above each other as they were. Asks for nothing where nothing has changed.
    void putBack() const;

private:
    LMEnvironment& m_environment;
    std::optional<LMRunningApplication> m_active;
    QList<LMElement> m_frontToBack;
    std::map<LMElement, LMStoredState> m_states;
};

/// Puts the windows above each other in that order unless they are already. Those that are gone are
/// passed over.
void LMRestack(LMEnvironment& environment, const QList<LMElement>& frontToBack);
