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
        return application.processIdentifiers.contains(processIdentifier);
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
    if (focusedWindow == number)
        focusFrontWindow();
}

void LMFakeWorld::focusFrontWindow() {
    const auto front = std::ranges::find_if(
        stacking, [this](quint32 number) { return !windows[number].isMinimized; });
    focusedWindow = front != stacking.end() ? std::optional(*front) : std::nullopt;
}
