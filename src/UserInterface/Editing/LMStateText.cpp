// SPDX-License-Identifier: MIT
#include "UserInterface/Editing/LMStateText.h"

#include "UserInterface/LMPresentableText.h"
#include "Utilities/LMFormat.h"

namespace {

QStringList wordsOfState(const LMWindowState& state) {
    QStringList words;
    if (state.isMaximizedHorizontally && state.isMaximizedVertically)
        words.append(LMLocalized("maximized"));
    else if (state.isMaximizedHorizontally)
        words.append(LMLocalized("maximized in width"));
    else if (state.isMaximizedVertically)
        words.append(LMLocalized("maximized in height"));
    if (state.isFullscreen)
        words.append(LMLocalized("full screen"));
    if (state.isMinimized)
        words.append(LMLocalized("minimized"));
    if (state.isShaded)
        words.append(LMLocalized("rolled up"));
    if (state.isKeptAbove)
        words.append(LMLocalized("above others"));
    if (state.isKeptBelow)
        words.append(LMLocalized("below others"));
    if (state.isOnAllDesktops)
        words.append(LMLocalized("on all desktops"));
    return words;
}

QString nameToShow(const QString& name, const QString& number) {
    return name.endsWith(u' ' + number) ? QString() : LMPresentableLine(name);
}

QString onDesktop(const LMWindowState& state) {
    const QString number = QString::number(*state.desktop + 1);
    const QString name = nameToShow(state.desktopName, number);
    return name.isEmpty() ? LMFormat(LMLocalized("on desktop %@"), {number})
                          : LMFormat(LMLocalized("on desktop %@ “%@”"), {number, name});
}

} // namespace

QString LMTextOfState(const std::optional<LMStoredState>& state) {
    if (!state)
        return LMLocalized("Frame only");
    QStringList words = wordsOfState(state->window);
    if (state->window.desktop)
        words.append(onDesktop(state->window));
    QString text = words.join(LMLocalized(", "));
    if (!text.isEmpty())
        text[0] = text[0].toUpper();
    return text;
}

QString LMTextOfDesktop(int number, const QString& name) {
    const QString counted = QString::number(number + 1);
    const QString shown = nameToShow(name, counted);
    return shown.isEmpty() ? LMFormat(LMLocalized("Desktop %@"), {counted})
                           : LMFormat(LMLocalized("Desktop %@ “%@”"), {counted, shown});
}
