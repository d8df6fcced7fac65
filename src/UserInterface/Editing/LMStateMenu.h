// SPDX-License-Identifier: MIT
#pragma once

#include "Model/LMStoredState.h"

#include <QMenu>
#include <QRectF>

#include <functional>

class LMWindowStates;
class QActionGroup;

/// What the user can say of a stored window: the state to restore and the frame that goes with it.
struct LMEditedState {
    std::optional<LMStoredState> state; ///< None: the frame alone is restored.
    QRectF frame;

    bool operator==(const LMEditedState&) const = default;
};

/// The menu of the states in which a stored window is restored. It changes nothing by itself: what
/// the user wants is announced.
class LMStateMenu final : public QMenu {
    Q_OBJECT
public:
    /// current answers what is being edited, whenever the menu opens. The window states outlive the
    /// menu.
    LMStateMenu(LMWindowStates& windowStates, std::function<LMEditedState()> current,
                QWidget* parent);

Q_SIGNALS:
    void stateRequested(const LMEditedState& wanted);

private:
    void fill();
    void addState(const QString& text, bool isOn, void (*change)(LMEditedState&, bool isOn));
    void addDesktops();

    LMWindowStates& m_windowStates;
    std::function<LMEditedState()> m_current;
    QActionGroup* m_desktops;
};
