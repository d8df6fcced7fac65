// SPDX-License-Identifier: MIT
#include "support/LMFakeWorld.h"

#include <algorithm>

LMFakeApplication* LMFakeWorld::application(const QString& bundleIdentifier) {
    for (LMFakeApplication& application : applications) {
        if (application.bundleIdentifier == bundleIdentifier)
            return &application;
    }
    return nullptr;
}

LMFakeApplication* LMFakeWorld::application(qint64 processIdentifier) {
    for (LMFakeApplication& application : applications) {
        if (application.processIdentifiers.contains(processIdentifier))
            return &application;
    }
    return nullptr;
}

QList<quint32> LMFakeWorld::windowsOf(const LMFakeApplication& application) const {
    QList<quint32> numbers;
    for (const quint32 number : stacking) {
        if (windows[number].bundleIdentifier == application.bundleIdentifier)
            numbers.append(number);
    }
    return numbers;
}

bool LMFakeWorld::isHidden(const LMFakeApplication& application) const {
    const QList<quint32> numbers = windowsOf(application);
    return !numbers.isEmpty() &&
           std::all_of(numbers.begin(), numbers.end(),
                       [this](quint32 number) { return windows[number].isMinimized; });
}

bool LMFakeWorld::isOnScreen(const LMFakeWindow& window) const {
    return !window.isMinimized && window.virtualDesktop == 0;
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
    focusedWindow.reset();
    for (const quint32 number : stacking) {
        if (isOnScreen(windows[number])) {
            focusedWindow = number;
            return;
        }
    }
}
