// SPDX-License-Identifier: MIT
#include "Model/LMStateRestoration.h"

#include "Categories/LMAccessibilityException.h"
#include "Categories/LMElementFunctions.h"
#include "Categories/LMWorkspaceAdditions.h"
#include "Model/LMApplicationActivation.h"
#include "Model/LMRestorePlan.h"
#include "Model/LMStoredWindow.h"
#include "Model/LMWindow.h"
#include "Model/LMWindowArrangement.h"
#include "Platform/LMDesktop.h"
#include "Platform/LMEnvironment.h"
#include "Utilities/LMRectangle.h"

#include <algorithm>

LMStateRestoration::LMStateRestoration(LMEnvironment& environment)
    : m_environment(environment), m_rules(LMStateRules::inForce(environment)),
      m_active(LMWorkspaceAdditions(environment).runningApplication()) {}

// --- what was decided ----------------------------------------------------------------------

LMStateRestoration::Decision* LMStateRestoration::decisionFor(const LMElement& element) {
    const auto found = std::ranges::find(m_decisions, element, &Decision::element);
    return found == m_decisions.end() ? nullptr : &*found;
}

const LMStateRestoration::Decision*
LMStateRestoration::decisionFor(const LMElement& element) const {
    return const_cast<LMStateRestoration*>(this)->decisionFor(element);
}

LMStateRestoration::Decision* LMStateRestoration::decide(const LMWindowAssignment& assignment,
                                                         LMMinimized minimized) {
    LMStoredWindow* storedWindow = assignment.match.storedWindow;
    const auto stored = storedWindow ? storedWindow->state() : std::nullopt;
    if (!stored)
        return nullptr;
    const LMElement& element = assignment.window->element();
    Decision* decision = decisionFor(element);
    if (!decision)
        decision = &m_decisions.emplace_back();
    *decision = {element,      storedWindow, *stored, storedWindow->frame(),
                 std::nullopt, minimized,    false};
    return decision;
}

void LMStateRestoration::reconsider(LMRestorePlan& plan, LMMinimized minimized) {
    LMRestorePlan changed;
    for (LMWindowAssignment& assignment : plan.assignments) {
        const LMElement& element = assignment.window->element();
        LMStoredWindow*& storedWindow = assignment.match.storedWindow;
        const Decision* decision = decisionFor(element);
        if (decision && decision->hasLeftState)
            storedWindow = decision->storedWindow;
        if (decision ? decision->storedWindow == storedWindow : !storedWindow)
            continue;
        std::erase_if(m_decisions, [&](const Decision& each) { return each.element == element; });
        changed.assignments.push_back(assignment);
    }
    begin(changed, minimized);
}

std::optional<QRectF> LMStateRestoration::frameFor(const LMWindow& window,
                                                   const LMStoredWindow& storedWindow) const {
    const Decision* decision = decisionFor(window.element());
    return decision ? decision->frame : storedWindow.frame();
}

LMStateComparison LMStateRestoration::compare(const Decision& decision, const LMWindowState& live,
                                              const QRectF& liveFrame) const {
    LMStateComparison result =
        LMCompareState(live, liveFrame, decision.stored.window, decision.storedFrame, m_rules);
    if (decision.minimized == LMMinimized::StaysMinimized)
        result.wanted.isMinimized = result.wanted.isMinimized || live.isMinimized;
    return result;
}

// --- before the frames ---------------------------------------------------------------------

void LMStateRestoration::begin(const LMRestorePlan& plan, LMMinimized minimized) {
    QList<LMWindowStateChange> changes;
    std::vector<LMElement> unsized;
    for (const LMWindowAssignment& assignment : plan.assignments) {
        const auto live = assignment.window->state();
        Decision* decision = live ? decide(assignment, minimized) : nullptr;
        if (!decision)
            continue;
        const LMWindowState state =
            stateForFrame(*decision, live->window, assignment.window->frame());
        const auto frame = m_rules.restoresStates ? decision->frame : std::nullopt;
        const bool agrees = LMStatesAgree(state, live->window);
        if (!agrees || (frame && !LMRectsEqual(*frame, assignment.window->frame())))
            changes.append({decision->element, state, frame});
        if (agrees)
            continue;
        decision->hasLeftState = decision->frame.has_value() && m_rules.restoresStates;
        if (decision->frame && !live->window.normalFrame)
            unsized.push_back(decision->element);
    }
    if (changes.isEmpty())
        return;
    m_environment.desktop.windowStates().setStates(changes);
    findFramesAfresh(unsized);
}

/// Notes which frame the window is to have, and answers the state in which it can be sent there, on
/// its desktop.
LMWindowState LMStateRestoration::stateForFrame(Decision& decision, const LMWindowState& live,
                                                const QRectF& liveFrame) const {
    const LMStateComparison comparison = compare(decision, live, liveFrame);
    LMWindowState state = live;
    state.isOnAllDesktops = comparison.wanted.isOnAllDesktops;
    state.desktop = comparison.wanted.desktop;
    decision.frame.reset();
    if (comparison.isFrameRight) {
        if (LMRectsEqual(comparison.normalFrame, liveFrame))
            decision.frame = liveFrame; // Nothing changes, but the window is asked as ever.
        return state;
    }
    decision.frame = comparison.normalFrame;
    if (m_rules.restoresStates) {
        state.isMaximizedHorizontally = state.isMaximizedVertically = false;
        state.isFullscreen = state.isShaded = false;
    }
    return state;
}

/// Windows that come out of a state show the size that is their own.
void LMStateRestoration::findFramesAfresh(const std::vector<LMElement>& elements) {
    LMAccessibility& accessibility = m_environment.desktop.accessibility();
    const LMReadingScope reading(accessibility, {elements.begin(), elements.end()});
    for (const LMElement& element : elements) {
        Decision* decision = decisionFor(element);
        const auto live = m_environment.desktop.windowStates().stateOfWindow(element);
        if (!live)
            continue;
        try {
            const QRectF frame = LMRectFromString(LMElementCopyFrameString(accessibility, element));
            decision->frame = compare(*decision, *live, frame).normalFrame;
        } catch (const LMAccessibilityException&) {
            // It is gone, or will not take a frame either.
        }
    }
}

// --- after the frames ----------------------------------------------------------------------

void LMStateRestoration::finishStates() {
    changeStates(false);
    changeStates(true); // Some managers show a minimised window whose other states change.
}

void LMStateRestoration::changeStates(bool minimizedToo) {
    LMWindowStates& states = m_environment.desktop.windowStates();
    QList<LMWindowStateChange> changes;
    {
        QList<LMElement> elements;
        std::ranges::transform(m_decisions, std::back_inserter(elements), &Decision::element);
        const LMReadingScope reading(m_environment.desktop.accessibility(), elements);
        for (const Decision& decision : m_decisions) {
            const auto live = states.stateOfWindow(decision.element);
            if (!live)
                continue;
            LMWindowState wanted = compare(decision, *live, decision.storedFrame).wanted;
            if (!minimizedToo)
                wanted.isMinimized = live->isMinimized;
            if (!LMStatesAgree(*live, wanted))
                changes.append({decision.element, wanted});
        }
    }
    if (!changes.isEmpty())
        states.setStates(changes);
}

void LMStateRestoration::finishStackingOrder() {
    if (m_decisions.empty())
        return;
    if (m_hasTakenFocus)
        LMReactivate(m_environment, m_active);
    if (!m_rules.restoresStackingOrder || !m_rules.support.stackingOrder)
        return;
    std::vector<const Decision*> placed;
    for (const Decision& decision : m_decisions) {
        // A minimised window has no place: managers put it where they like.
        if (decision.stored.stackingPosition && !decision.stored.window.isMinimized)
            placed.push_back(&decision);
    }
    std::ranges::stable_sort(
        placed, {}, [](const Decision* decision) { return *decision->stored.stackingPosition; });
    QList<LMElement> frontToBack;
    std::ranges::transform(placed, std::back_inserter(frontToBack), &Decision::element);
    LMRestack(m_environment, frontToBack);
}
