// SPDX-License-Identifier: MIT
#include "Model/LMStateRules.h"

#include "Categories/LMScreenAdditions.h"
#include "Platform/LMDesktop.h"
#include "Platform/LMEnvironment.h"
#include "Utilities/LMRectangle.h"
#include "Utilities/LMUserDefaults.h"
#include "Utilities/LMUserDefaultsKeys.h"

namespace Keys = LMUserDefaultsKeys;

namespace {

/// How much of the monitor a window takes whose own size would cover all of it.
constexpr double largestShare = 0.75;

struct Rule {
    bool LMWindowState::*state;
    bool LMWindowStateSupport::*support;
};

constexpr Rule rulesOfStates[] = {
    {&LMWindowState::isMaximizedHorizontally, &LMWindowStateSupport::maximized},
    {&LMWindowState::isMaximizedVertically, &LMWindowStateSupport::maximized},
    {&LMWindowState::isFullscreen, &LMWindowStateSupport::fullscreen},
    {&LMWindowState::isMinimized, &LMWindowStateSupport::minimized},
    {&LMWindowState::isShaded, &LMWindowStateSupport::shaded},
    {&LMWindowState::isKeptAbove, &LMWindowStateSupport::above},
    {&LMWindowState::isKeptBelow, &LMWindowStateSupport::below},
};

void takeStates(LMStateComparison& result, const LMWindowState& stored, const LMStateRules& rules) {
    if (!rules.restoresStates)
        return;
    LMWindowState lacking;
    for (const Rule& rule : rulesOfStates) {
        if (rules.support.*rule.support)
            result.wanted.*rule.state = stored.*rule.state;
        else
            lacking.*rule.state = stored.*rule.state && !(result.wanted.*rule.state);
    }
    result.notRestored = LMStateNames(lacking);
}

void takeDesktop(LMStateComparison& result, const LMWindowState& stored,
                 const LMStateRules& rules) {
    if (!rules.restoresDesktops || (!stored.isOnAllDesktops && !stored.desktop))
        return;
    const auto desktop = LMDesktopToRestore(stored, rules.desktopNames);
    if (rules.support.desktops && (stored.isOnAllDesktops || desktop)) {
        result.wanted.isOnAllDesktops = stored.isOnAllDesktops;
        result.wanted.desktop = stored.isOnAllDesktops ? std::nullopt : desktop;
    } else if (result.wanted.desktop != stored.desktop) {
        result.notRestored.append(QStringLiteral("desktop"));
    }
}

bool isOnSameScreen(const QRectF& a, const QRectF& b, const LMStateRules& rules) {
    const auto screen = [&](const QRectF& frame) {
        return LMScreenAdditions::screenContainingFrame(rules.screens,
                                                        QRectF(frame.center(), QSizeF(0, 0)));
    };
    return screen(a) == screen(b);
}

/// Whether the window is to fill its monitor, in one direction at least.
bool fillsMonitor(const LMWindowState& stored, const LMStateRules& rules) {
    return rules.restoresStates && ((stored.isFullscreen && rules.support.fullscreen) ||
                                    (stored.isMaximized() && rules.support.maximized));
}

bool isFullAcross(const LMWindowState& state) {
    return state.isFullscreen || state.isMaximizedHorizontally;
}

bool isFullDown(const LMWindowState& state) {
    return state.isFullscreen || state.isMaximizedVertically;
}

/// A frame within the one that the window fills when it is maximised: where it stands anyway if it
/// stands there, else in the middle.
QRectF frameWithin(const QRectF& own, const QRectF& filled) {
    if (filled.contains(own))
        return own;
    QRectF frame(QPointF(), own.size().boundedTo(filled.size() * largestShare));
    frame.moveCenter(filled.center());
    return QRectF(frame.topLeft().toPoint(), frame.size().toSize());
}

QRectF normalFrame(const LMWindowState& live, const QRectF& liveFrame, const LMWindowState& wanted,
                   const LMWindowState& stored, const QRectF& storedFrame,
                   const LMStateRules& rules) {
    if (!fillsMonitor(stored, rules))
        return storedFrame;
    const bool isStored =
        stored.normalFrame && isOnSameScreen(*stored.normalFrame, storedFrame, rules);
    QRectF frame =
        isStored ? *stored.normalFrame
                 : frameWithin(stored.normalFrame.value_or(live.normalFrame.value_or(liveFrame)),
                               storedFrame);
    // In a direction that is not maximised the stored frame is what the user saw.
    if (!isFullAcross(wanted))
        frame = QRectF(storedFrame.x(), frame.y(), storedFrame.width(), frame.height());
    if (!isFullDown(wanted))
        frame = QRectF(frame.x(), storedFrame.y(), frame.width(), storedFrame.height());
    return frame;
}

bool isSameAcross(const QRectF& a, const QRectF& b) {
    return a.x() == b.x() && a.width() == b.width();
}

bool isSameDown(const QRectF& a, const QRectF& b) {
    return a.y() == b.y() && a.height() == b.height();
}

/// Where a window fills its monitor, its normal frame counts as far as it is known; elsewhere what
/// the user sees.
bool isFrameRight(const LMWindowState& live, const QRectF& liveFrame, const LMWindowState& wanted,
                  const LMWindowState& stored, const QRectF& storedFrame, const QRectF& normal,
                  const LMStateRules& rules) {
    if (live.isMaximizedHorizontally != wanted.isMaximizedHorizontally ||
        live.isMaximizedVertically != wanted.isMaximizedVertically ||
        live.isFullscreen != wanted.isFullscreen)
        return false;
    if (!fillsMonitor(stored, rules))
        return LMRectsEqual(liveFrame, storedFrame);
    const QRectF own = stored.normalFrame ? live.normalFrame.value_or(normal) : normal;
    return isOnSameScreen(liveFrame, storedFrame, rules) &&
           (isFullAcross(wanted) ? isSameAcross(own, normal)
                                 : isSameAcross(liveFrame, storedFrame)) &&
           (isFullDown(wanted) ? isSameDown(own, normal) : isSameDown(liveFrame, storedFrame));
}

} // namespace

LMStateRules LMStateRules::inForce(LMEnvironment& environment) {
    LMWindowStates& states = environment.desktop.windowStates();
    const LMUserDefaults& defaults = environment.userDefaults;
    return {states.windowStateSupport(),
            states.desktopNames(),
            environment.desktop.screens().screens(),
            defaults.boolForKey(Keys::RestoreWindowStates),
            defaults.boolForKey(Keys::RestoreVirtualDesktops),
            defaults.boolForKey(Keys::RestoreStackingOrder)};
}

std::optional<int> LMDesktopToRestore(const LMWindowState& stored,
                                      const QStringList& desktopNames) {
    if (!stored.desktop)
        return std::nullopt;
    const int number = *stored.desktop;
    const bool isThere = number < desktopNames.size();
    if (stored.desktopName.isEmpty() || (isThere && desktopNames[number] == stored.desktopName))
        return isThere ? std::optional(number) : std::nullopt;
    // Desktops come and go and are sorted anew; the name is what the user knows one by.
    const auto named = static_cast<int>(desktopNames.indexOf(stored.desktopName));
    return named >= 0 ? std::optional(named) : isThere ? std::optional(number) : std::nullopt;
}

LMStateComparison LMCompareState(const LMWindowState& live, const QRectF& liveFrame,
                                 const LMWindowState& stored, const QRectF& storedFrame,
                                 const LMStateRules& rules) {
    LMStateComparison result;
    result.wanted = live;
    takeStates(result, stored, rules);
    takeDesktop(result, stored, rules);
    const LMWindowState& wanted = result.wanted;
    result.normalFrame = normalFrame(live, liveFrame, wanted, stored, storedFrame, rules);
    result.isFrameRight =
        isFrameRight(live, liveFrame, wanted, stored, storedFrame, result.normalFrame, rules);
    return result;
}

bool LMStatesAgree(const LMWindowState& a, const LMWindowState& b) {
    const auto settable = [](LMWindowState state) {
        state.desktopName.clear();
        state.normalFrame.reset();
        return state;
    };
    return settable(a) == settable(b);
}
