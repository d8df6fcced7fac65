// SPDX-License-Identifier: MIT
#include "UserInterface/Editing/LMStateMenu.h"

#include "UserInterface/Editing/LMStateText.h"
#include "UserInterface/LMPresentableText.h"
#include "Utilities/LMFormat.h"

#include <QAction>
#include <QActionGroup>

namespace {

LMWindowState& stateOf(LMEditedState& edited) {
    return edited.state->window;
}

/// A window that fills its monitor keeps the frame it had as the one it returns to.
void noteFilling(LMEditedState& edited, bool wasFilling) {
    LMWindowState& state = stateOf(edited);
    const bool isFilling = state.isMaximized() || state.isFullscreen;
    if (isFilling && !wasFilling) {
        state.normalFrame = edited.frame;
    } else if (!isFilling && wasFilling) {
        edited.frame = state.normalFrame.value_or(edited.frame);
        state.normalFrame.reset();
    }
}

void setMaximized(LMEditedState& edited, bool isOn) {
    stateOf(edited).isMaximizedHorizontally = stateOf(edited).isMaximizedVertically = isOn;
}
void setFullscreen(LMEditedState& edited, bool isOn) {
    stateOf(edited).isFullscreen = isOn;
}
void setMinimized(LMEditedState& edited, bool isOn) {
    stateOf(edited).isMinimized = isOn;
    stateOf(edited).isShaded = stateOf(edited).isShaded && !isOn;
}
void setShaded(LMEditedState& edited, bool isOn) {
    stateOf(edited).isShaded = isOn;
    stateOf(edited).isMinimized = stateOf(edited).isMinimized && !isOn;
}
void setAbove(LMEditedState& edited, bool isOn) {
    stateOf(edited).isKeptAbove = isOn;
    stateOf(edited).isKeptBelow = stateOf(edited).isKeptBelow && !isOn;
}
void setBelow(LMEditedState& edited, bool isOn) {
    stateOf(edited).isKeptBelow = isOn;
    stateOf(edited).isKeptAbove = stateOf(edited).isKeptAbove && !isOn;
}

void setDesktop(LMWindowState& state, std::optional<int> desktop, const QString& name) {
    state.isOnAllDesktops = !desktop;
    state.desktop = desktop;
    state.desktopName = name;
}

} // namespace

LMStateMenu::LMStateMenu(LMWindowStates& windowStates, std::function<LMEditedState()> current,
                         QWidget* parent)
    : QMenu(parent), m_windowStates(windowStates), m_current(std::move(current)),
      m_desktops(new QActionGroup(this)) {
    connect(this, &QMenu::aboutToShow, this, &LMStateMenu::fill);
}

void LMStateMenu::addState(const QString& text, bool isOn,
                           void (*change)(LMEditedState&, bool isOn)) {
    QAction* action = addAction(text);
    action->setCheckable(true);
    action->setChecked(isOn);
    connect(action, &QAction::triggered, this, [this, change](bool isChecked) {
        LMEditedState wanted = m_current();
        if (!wanted.state)
            wanted.state.emplace();
        const bool wasFilling = stateOf(wanted).isMaximized() || stateOf(wanted).isFullscreen;
        change(wanted, isChecked);
        noteFilling(wanted, wasFilling);
        Q_EMIT stateRequested(wanted);
    });
}

void LMStateMenu::fill() {
    clear();
    const LMEditedState current = m_current();
    const LMWindowState state = current.state ? current.state->window : LMWindowState();
    addState(LMLocalized("Ma&ximized"), state.isMaximized(), setMaximized);
    addState(LMLocalized("&Full Screen"), state.isFullscreen, setFullscreen);
    addState(LMLocalized("Mi&nimized"), state.isMinimized, setMinimized);
    addState(LMLocalized("&Rolled Up"), state.isShaded, setShaded);
    addSeparator();
    addState(LMLocalized("&Above Others"), state.isKeptAbove, setAbove);
    addState(LMLocalized("&Below Others"), state.isKeptBelow, setBelow);
    addSeparator();
    addDesktops();
    addSeparator();
    QAction* frameOnly = addAction(LMLocalized("Frame &Only"));
    frameOnly->setCheckable(true);
    frameOnly->setChecked(!current.state);
    connect(frameOnly, &QAction::triggered, this, [this] {
        LMEditedState wanted = m_current();
        wanted.state.reset();
        Q_EMIT stateRequested(wanted);
    });
}

void LMStateMenu::addDesktops() {
    const LMEditedState current = m_current();
    const LMWindowState state = current.state ? current.state->window : LMWindowState();
    const auto add = [&](const QString& text, std::optional<int> desktop, const QString& name,
                         bool isOn) {
        QAction* action = addAction(LMEscapedAmpersands(text));
        action->setCheckable(true);
        action->setActionGroup(m_desktops);
        action->setChecked(isOn);
        connect(action, &QAction::triggered, this, [this, desktop, name] {
            LMEditedState wanted = m_current();
            if (!wanted.state)
                wanted.state.emplace();
            setDesktop(stateOf(wanted), desktop, name);
            Q_EMIT stateRequested(wanted);
        });
    };
    add(LMLocalized("On All Desktops"), std::nullopt, QString(), state.isOnAllDesktops);
    const QStringList names = m_windowStates.desktopNames();
    for (int number = 0; number < names.size(); ++number)
        add(LMTextOfDesktop(number, names[number]), number, names[number],
            state.desktop == number && !state.isOnAllDesktops);
}
