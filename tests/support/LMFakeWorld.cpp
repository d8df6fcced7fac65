// SPDX-License-Identifier: MIT
#include "support/LMFakeWorld.h"

#include <algorithm>

LMFakeApplication* LMFakeWorld::application(const QString& bundleIdentifier) {
    const auto found =
        std::ranges::find(applications, bundleIdentifier, &LMFakeApplication::bundleIdentifier);
    return found != applications.end() ? &*found : nullptr;
}

LMFakeApplication* LMFakeWorld::application(qint64 processIdentifier) {
    const auto found = std::ranges::find_if(applications, [&](const auto& application) {
        return application.processIdentifier == processIdentifier;
    });
    return found != applications.end() ? &*found : nullptr;
}

QList<quint32> LMFakeWorld::windowsOf(const LMFakeApplication& application) const {
    QList<quint32> numbers = stacking;
    numbers.removeIf([&](quint32 number) {
        return windows[number].bundleIdentifier != application.bundleIdentifier;
    });
    return numbers;
}

void LMFakeWorld::raise(quint32 number) {
    if (stacking.removeOne(number))
        stacking.prepend(number);
}

void LMFakeWorld::removeWindow(quint32 number) {
    windows.remove(number);
    stacking.removeOne(number);
    keepFocusInSight();
}

void LMFakeWorld::keepFocusInSight() {
    const auto isSeen = [this](quint32 number) { return isInSight(windows[number]); };
    if (!focusedWindow || (windows.contains(*focusedWindow) && isSeen(*focusedWindow)))
        return;
    const auto front = std::ranges::find_if(stacking, isSeen);
    focusedWindow = front != stacking.end() ? std::optional(*front) : std::nullopt;
}

void LMFakeWorld::setScreens(const QList<LMScreen>& newScreens) {
    screens = newScreens;
    const QRectF main = screens.isEmpty() ? QRectF() : screens.first().displayBounds;
    quint32 number = 0;
    for (LMScreen& screen : screens) {
        QRectF& bounds = screen.displayBounds;
        bounds.translate(-main.topLeft());
        screen.visibleFrame = bounds;
        screen.frame = QRectF(QPointF(bounds.x(), main.height() - bounds.bottom()), bounds.size());
        ++number;
        if (screen.displayID == 0)
            screen.displayID = number;
    }
}

bool LMFakeWorld::isInSight(const LMFakeWindow& window) const {
    const LMWindowState& state = window.state;
    return !state.isMinimized && (desktops.isEmpty() || state.isOnAllDesktops ||
                                  state.desktop.value_or(currentDesktop) == currentDesktop);
}

int LMFakeWorld::layerOf(const LMFakeWindow& window) const {
    constexpr int floating = 3;
    if (window.state.isKeptAbove)
        return floating;
    return window.state.isKeptBelow ? -1 : window.layer;
}

void LMFakeWorld::changeState(LMFakeWindow& window, const LMWindowState& state) {
    const auto fills = [](const LMWindowState& s) { return s.isMaximized() || s.isFullscreen; };
    if (!fills(window.state))
        window.normalFrame = window.frame;
    const auto isOn = [center = window.frame.center()](const LMScreen& screen) {
        return screen.displayBounds.contains(center);
    };
    const auto found = std::ranges::find_if(screens, isOn);
    const LMScreen& screen = found != screens.end() ? *found : screens.first();
    window.state = state;
    if (!window.normalFrame.isNull())
        window.frame = window.normalFrame;
    if (state.isMaximizedHorizontally || state.isFullscreen) {
        window.frame.setLeft(screen.visibleFrame.left());
        window.frame.setRight(screen.visibleFrame.right());
    }
    if (state.isMaximizedVertically || state.isFullscreen) {
        window.frame.setTop(screen.visibleFrame.top());
        window.frame.setBottom(screen.visibleFrame.bottom());
    }
}
