// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/LMShortcut.h"

#include <memory>

class LMX11Connection;

/// The keyboard in front of the desktop under test, and another program that takes shortcuts.
class LMContractKeyboard {
public:
    virtual ~LMContractKeyboard() = default;

    virtual void press(const LMShortcut& shortcut) = 0;
    /// Holds it until it has repeated several times.
    virtual void hold(const LMShortcut& shortcut) = 0;
    virtual void setLocks(bool capsLock, bool numLock) = 0;
    /// "us", "gb" or "de"; in the last, Y and Z change places.
    virtual void setLayout(const QString& layout) = 0;

    virtual void takeForAnotherProgram(const LMShortcut& shortcut) = 0;
    virtual void giveBack() = 0;
    /// Whether the other program could not have it, with any lock key.
    virtual bool isTaken(const LMShortcut& shortcut) = 0;
};

/// Types with xdotool; takes shortcuts through the connection, which must not be the desktop's.
std::unique_ptr<LMContractKeyboard> LMMakeX11ContractKeyboard(LMX11Connection& connection);
