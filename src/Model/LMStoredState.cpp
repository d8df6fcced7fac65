// SPDX-License-Identifier: MIT
#include "Model/LMStoredState.h"

#include "Utilities/LMRectangle.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

struct StateName {
    QLatin1String name;
    bool LMWindowState::*holds;
};

constexpr StateName stateNames[] = {
    {QLatin1String("maximizedHorizontally"), &LMWindowState::isMaximizedHorizontally},
    {QLatin1String("maximizedVertically"), &LMWindowState::isMaximizedVertically},
    {QLatin1String("fullscreen"), &LMWindowState::isFullscreen},
    {QLatin1String("minimized"), &LMWindowState::isMinimized},
    {QLatin1String("shaded"), &LMWindowState::isShaded},
    {QLatin1String("above"), &LMWindowState::isKeptAbove},
    {QLatin1String("below"), &LMWindowState::isKeptBelow},
    {QLatin1String("allDesktops"), &LMWindowState::isOnAllDesktops},
};
constexpr QLatin1String maximized("maximized");

constexpr QLatin1String statesKey("states");
constexpr QLatin1String desktopKey("desktop");
constexpr QLatin1String desktopNameKey("desktopName");
constexpr QLatin1String normalFrameKey("normalFrame");
constexpr QLatin1String stackingPositionKey("stackingPosition");

/// Absent for anything but a whole number from 0 on that people can count to.
std::optional<int> ordinal(const QJsonValue& value) {
    constexpr int largest = 1'000'000;
    const int number = value.toInt(-1);
    return number < 0 || number > largest ? std::nullopt : std::optional(number);
}

void setNamedState(LMWindowState& state, const QString& name) {
    if (name == maximized)
        state.isMaximizedHorizontally = state.isMaximizedVertically = true;
    for (const StateName& known : stateNames) {
        if (name == known.name)
            state.*known.holds = true;
    }
}

} // namespace

QStringList LMStateNames(const LMWindowState& state) {
    QStringList names;
    LMWindowState others = state;
    if (state.isMaximizedHorizontally && state.isMaximizedVertically) {
        names.append(maximized);
        others.isMaximizedHorizontally = others.isMaximizedVertically = false;
    }
    for (const StateName& known : stateNames) {
        if (others.*known.holds)
            names.append(known.name);
    }
    return names;
}

QString LMStringFromState(const LMStoredState& state) {
    QJsonObject object{{statesKey, QJsonArray::fromStringList(LMStateNames(state.window))}};
    if (state.window.desktop)
        object.insert(desktopKey, *state.window.desktop);
    if (!state.window.desktopName.isEmpty())
        object.insert(desktopNameKey, state.window.desktopName);
    if (state.window.normalFrame)
        object.insert(normalFrameKey, LMStringFromRect(*state.window.normalFrame));
    if (state.stackingPosition)
        object.insert(stackingPositionKey, *state.stackingPosition);
    return QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact));
}

std::optional<LMStoredState> LMStateFromString(const QString& text) {
    if (text.isEmpty())
        return std::nullopt;
    const QJsonDocument document = QJsonDocument::fromJson(text.toUtf8());
    if (!document.isObject())
        return std::nullopt;
    const QJsonObject object = document.object();
    LMStoredState state;
    const QJsonArray names = object[statesKey].toArray();
    for (const QJsonValue name : names)
        setNamedState(state.window, name.toString());
    state.window.desktop = ordinal(object[desktopKey]);
    state.window.desktopName = object[desktopNameKey].toString();
    if (const QJsonValue frame = object[normalFrameKey]; frame.isString())
        state.window.normalFrame = LMRectFromString(frame.toString());
    if (state.window.normalFrame && state.window.normalFrame->isEmpty())
        state.window.normalFrame.reset(); // Unreadable: no window has such a frame.
    state.stackingPosition = ordinal(object[stackingPositionKey]);
    return state;
}
