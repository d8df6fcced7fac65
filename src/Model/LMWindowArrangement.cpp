// SPDX-License-Identifier: MIT
#include "Model/LMWindowArrangement.h"

#include "Categories/LMWorkspaceAdditions.h"
#include "Model/LMApplicationActivation.h"
#include "Model/LMStateRules.h"
#include "Model/LMWindow.h"
#include "Platform/LMDesktop.h"
#include "Platform/LMEnvironment.h"
#include "Utilities/LMLogger.h"

LMWindowArrangement::LMWindowArrangement(LMEnvironment& environment)
    : m_environment(environment), m_active(LMWorkspaceAdditions(environment).runningApplication()),
      m_frontToBack(environment.desktop.windowStates().stackingOrder()) {
    LMWindowStates& states = m_environment.desktop.windowStates();
    const LMReadingScope reading(m_environment.desktop.accessibility(), m_frontToBack);
    for (int place = 0; place < m_frontToBack.size(); ++place) {
        if (const auto state = states.stateOfWindow(m_frontToBack[place]))
            m_states[m_frontToBack[place]] = {*state, place};
    }
}

void LMWindowArrangement::describe(LMWindow& window) const {
    if (const auto known = m_states.find(window.element()); known != m_states.end())
        window.setStateString(LMStringFromState(known->second));
}

void LMWindowArrangement::putBack() const {
    // First: some managers keep a fullscreen window above all while it has the focus.
    LMReactivate(m_environment, m_active);
    LMWindowStates& states = m_environment.desktop.windowStates();
    QList<LMWindowStateChange> changes;
    {
        const LMReadingScope reading(m_environment.desktop.accessibility(), m_frontToBack);
        for (const auto& [element, known] : m_states) {
            const auto now = states.stateOfWindow(element);
            if (now && !LMStatesAgree(*now, known.window))
                changes.append({element, known.window});
        }
    }
    if (!changes.isEmpty())
        states.setStates(changes);
    LMRestack(m_environment, m_frontToBack);
}

void LMRestack(LMEnvironment& environment, const QList<LMElement>& frontToBack) {
    LMWindowStates& states = environment.desktop.windowStates();
    const QList<LMElement> now = states.stackingOrder();
    const auto commonWith = [](const QList<LMElement>& others, QList<LMElement> elements) {
        elements.removeIf([&](const LMElement& element) { return !others.contains(element); });
        return elements;
    };
    const QList<LMElement> wanted = commonWith(now, frontToBack);
    if (commonWith(frontToBack, now) != wanted && !states.setStackingOrder(wanted))
        environment.logger.debug(QStringLiteral("Unable to restore the stacking order."));
}
