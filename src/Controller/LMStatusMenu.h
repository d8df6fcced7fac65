// SPDX-License-Identifier: MIT
#pragma once

#include "Controller/LMCommandFrame.h"
#include "Controller/LMMenuItem.h"

#include <QList>

class LMUserCommands;

/// The status menu as a value: what it shows, and what choosing an entry does. The widgets render
/// it.
class LMStatusMenu {
public:
    /// Both outlive the menu.
    LMStatusMenu(const LMCommandParts& parts, LMUserCommands& commands);

    const QList<LMMenuItem>& items() const { return m_items; }

    /// Rebuilds titles and enabled states; to be called just before the menu opens.
    void menuNeedsUpdate();

    /// The entry was chosen. Nothing happens for one that is disabled. To be called from the event
    /// loop once the menu is closed.
    void perform(LMMenuCommand command);

private:
    LMMenuItem& itemWithTag(int tag);
    void enableAll(bool isEnabled);
    void showNoApplication();
    void showApplication(const LMRunningApplication& application);
    void setEnabledStates();

    const LMCommandParts& m_parts;
    LMUserCommands& m_commands;
    QList<LMMenuItem> m_items;
};
