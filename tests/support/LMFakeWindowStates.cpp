// SPDX-License-Identifier: MIT
#include "Platform/LMPossibleWindowState.h"
#include "support/LMFakeServices.h"

#include <algorithm>
#include <functional>

namespace {

LMPlatformStatus failure(LMPlatformError error) {
    return LMPlatformStatus::failure(error);
}

QString words(const LMWindowState& state) {
    const std::pair<bool, const char*> flags[] = {
        {state.isMaximizedHorizontally, "maximized-horizontally"},
        {state.isMaximizedVertically, "maximized-vertically"},
        {state.isFullscreen, "fullscreen"},
        {state.isMinimized, "minimized"},
        {state.isShaded, "shaded"},
        {state.isKeptAbove, "above"},
        {state.isKeptBelow, "below"},
        {state.isOnAllDesktops, "all-desktops"},
    };
    QString text;
    for (const auto& [isSet, word] : flags)
        text += isSet ? u' ' + QLatin1String(word) : QString();
    return state.desktop ? text + u" desktop=%1"_qs.arg(*state.desktop) : text;
}

class LMFakeWindowStates final : public LMWindowStates {
public:
    LMFakeWindowStates(LMFakeWorld& world, LMFakeAccessibility& accessibility)
        : m_world(world), m_accessibility(accessibility) {}

    LMWindowStateSupport windowStateSupport() override {
        LMWindowStateSupport support = m_world.stateSupport;
        support.desktops = support.desktops && !m_world.desktops.isEmpty();
        return support;
    }
    QStringList desktopNames() override { return m_world.desktops; }

    LMPlatformResult<LMWindowState> stateOfWindow(const LMElement& element) override {
        using Result = LMPlatformResult<LMWindowState>;
        const auto window = m_accessibility.readWindow(element);
        if (!window)
            return Result::failure(window.error());
        LMWindowState state = window->state;
        if (m_world.desktops.isEmpty())
            state.desktop.reset();
        state.desktopName = m_world.desktops.value(state.desktop.value_or(-1));
        const bool hasNormalFrame = state.isMaximized() || state.isFullscreen;
        if (hasNormalFrame && window->tellsNormalFrame && !window->normalFrame.isNull())
            state.normalFrame = window->normalFrame;
        return Result::success(state);
    }
    QList<LMPlatformStatus> setStates(const QList<LMWindowStateChange>& changes) override {
        QList<LMPlatformStatus> result;
        for (const LMWindowStateChange& change : changes)
            result.append(setState(change.window, change.state));
        return result;
    }
    QList<LMElement> stackingOrder() override {
        QList<LMElement> result;
        for (const quint32 number : std::as_const(m_world.stacking))
            result.append({LMElement::Kind::Window, number, 0});
        const auto layer = [this](const LMElement& element) {
            return m_world.layerOf(m_world.windows[quint32(element.identifier)]);
        };
        std::ranges::stable_sort(result, std::greater(), layer);
        return result;
    }
    /// The windows change places among themselves; all others keep theirs.
    LMPlatformStatus setStackingOrder(const QList<LMElement>& frontToBack) override {
        if (!windowStateSupport().stackingOrder)
            return failure(LMPlatformError::NotAvailable);
        QList<quint32> wanted;
        QString titles;
        for (const LMElement& element : frontToBack) {
            const auto number = quint32(element.identifier);
            if (!m_world.windows.contains(number) || wanted.contains(number))
                continue;
            wanted.append(number);
            titles += u" \"%1\""_qs.arg(m_world.windows[number].title);
        }
        QList<quint32> order;
        auto next = wanted.constBegin();
        for (const quint32 number : std::as_const(m_world.stacking))
            order.append(wanted.contains(number) ? *next++ : number);
        if (std::exchange(m_world.stacking, order) != order)
            m_world.log.append(u"stack"_qs + titles);
        return LMPlatformStatus::success();
    }

private:
    LMPlatformStatus setState(const LMElement& element, const LMWindowState& wanted) {
        m_accessibility.forget(element);
        const auto window = m_world.windows.find(quint32(element.identifier));
        if (element.kind != LMElement::Kind::Window || window == m_world.windows.end())
            return failure(LMPlatformError::InvalidElement);
        if (window->neverAnswers)
            return failure(LMPlatformError::CannotComplete);
        const LMWindowState state =
            LMPossibleWindowState(wanted, window->state, windowStateSupport(),
                                  m_world.desktops.size(), m_world.currentDesktop);
        if (state == window->state)
            return LMPlatformStatus::success();
        m_world.log.append(u"state \"%1\""_qs.arg(window->title) + words(state));
        m_world.changeState(*window, state);
        m_world.keepFocusInSight();
        return LMPlatformStatus::success();
    }

    LMFakeWorld& m_world;
    LMFakeAccessibility& m_accessibility;
};

} // namespace

std::unique_ptr<LMWindowStates> LMMakeFakeWindowStates(LMFakeWorld& world,
                                                       LMFakeAccessibility& accessibility) {
    return std::make_unique<LMFakeWindowStates>(world, accessibility);
}
