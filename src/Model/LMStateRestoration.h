// SPDX-License-Identifier: MIT
#pragma once

#include "Model/LMStateRules.h"
#include "Platform/LMApplications.h"
#include "Platform/LMPlatformTypes.h"

#include <QRectF>

#include <optional>
#include <vector>

class LMStoredWindow;
class LMWindow;
struct LMEnvironment;
struct LMRestorePlan;
struct LMWindowAssignment;

/// Whether windows that are minimised may be shown.
enum class LMMinimized { MayBeShown, StaysMinimized };

/// What one restore does with windows besides their frames, around the two passes that set those:
///
///     begin()           before an application's positions: out of the states in which a window
///                       keeps no frame of its own, and to its desktop
///     frameFor()        in both passes
///     reconsider()      before its sizes
///     finishStates()    after the sizes: into the states, minimised ones last
///     finishStackingOrder()   once, when all applications are done
///
/// Windows whose stored window has no state take part in nothing of it. What is as stored already
/// is not touched. Support, desktops and user defaults are read once, on construction. The stored
/// windows and the environment outlive it.
class LMStateRestoration {
public:
    explicit LMStateRestoration(LMEnvironment& environment);

    /// Takes note of which stored window each live window takes.
    void begin(const LMRestorePlan& plan, LMMinimized minimized = LMMinimized::MayBeShown);

    /// Between the passes. Windows that begin has taken out of a state take what they took then,
    /// for they have another size than the one the user knows them by. Others take what they match
    /// now, with its state.
    void reconsider(LMRestorePlan& plan, LMMinimized minimized);

    /// The frame to set; none when there is nothing to set.
    std::optional<QRectF> frameFor(const LMWindow& window,
                                   const LMStoredWindow& storedWindow) const;

    /// Applications had to be activated or hidden on the way, which is not to last.
    void noteFocusTaken() { m_hasTakenFocus = true; }

    void finishStates();
    /// With the application active again that was so in the beginning, if the focus was taken from
    /// it. Who turns to another window meanwhile stays there.
    void finishStackingOrder();

private:
    struct Decision {
        LMElement element;
        LMStoredWindow* storedWindow = nullptr;
        LMStoredState stored;
        QRectF storedFrame;
        std::optional<QRectF> frame; ///< To set; none when it is right.
        LMMinimized minimized = LMMinimized::MayBeShown;
        bool hasLeftState = false; ///< With the size that went with it.
    };

    Decision* decisionFor(const LMElement& element);
    const Decision* decisionFor(const LMElement& element) const;
    Decision* decide(const LMWindowAssignment& assignment, LMMinimized minimized);
    LMWindowState stateForFrame(Decision& decision, const LMWindowState& live,
                                const QRectF& liveFrame) const;
    LMStateComparison compare(const Decision& decision, const LMWindowState& live,
                              const QRectF& liveFrame) const;
    void findFramesAfresh(const std::vector<LMElement>& elements);
    void changeStates(bool minimizedToo);

    LMEnvironment& m_environment;
    LMStateRules m_rules;
    std::optional<LMRunningApplication> m_active; ///< At the beginning.
    bool m_hasTakenFocus = false;
    std::vector<Decision> m_decisions;
};
