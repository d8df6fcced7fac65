// SPDX-License-Identifier: MIT
#pragma once

#include "Controller/LMCommandFrame.h"

class LMStoreCommands;

/// The commands that open this program's own windows. A process that shows none refuses them.
class LMWindowCommands {
public:
    LMWindowCommands(const LMCommandParts& parts, const LMStoreCommands& storeCommands)
        : m_parts(parts), m_storeCommands(storeCommands) {}

    /// Settles which application is the active one first.
    bool canLinkActiveWindow() const;

    /// Shows the picker for the focused window and the current workspace (made when there is none);
    /// closes the picker when no window has the focus.
    LMCommandResult linkActiveWindow();
    LMCommandResult showStoredWindowsEditor();
    LMCommandResult showPreferencesWindow();
    LMCommandResult showAboutPanel();

private:
    LMCommandResult show(void (LMUserInterface::*window)());

    const LMCommandParts& m_parts;
    const LMStoreCommands& m_storeCommands;
};
