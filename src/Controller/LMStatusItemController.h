// SPDX-License-Identifier: MIT
#pragma once

#include "Controller/LMCommandFrame.h"

class LMStatusMenu;

/// The status icon and its menu: shown, hidden, or popped up at the pointer.
class LMStatusItemController {
public:
    /// Both outlive this object.
    LMStatusItemController(const LMCommandParts& parts, LMStatusMenu& menu)
        : m_parts(parts), m_menu(menu) {}

    /// Shows the icon afresh, or takes it away when the user wants none: the menu is then reached
    /// by hot key and command.
    void setUpStatusItem();
    void removeStatusItem();

    LMCommandResult displayMenuAtCursor();

private:
    const LMCommandParts& m_parts;
    LMStatusMenu& m_menu;
};
