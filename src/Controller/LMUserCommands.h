// SPDX-License-Identifier: MIT
#pragma once

#include "Controller/LMCommandFrame.h"
#include "Controller/LMMenuItem.h"

#include <QObject>

class LMRestoreCommands;
class LMStoreCommands;
class LMWindowCommands;

/// The commands as the user gives them, by menu, hot key or bus: what is stored already is replaced
/// only after a question, and success is reported.
class LMUserCommands : public QObject {
    Q_OBJECT
public:
    /// All of them outlive this object.
    LMUserCommands(const LMCommandParts& parts, LMRestoreCommands& restoreCommands,
                   LMStoreCommands& storeCommands, LMWindowCommands& windowCommands);

    /// Whether the command could do something now. True for those that always can.
    bool isAvailable(LMMenuCommand command) const;
    LMCommandResult perform(LMMenuCommand command);

Q_SIGNALS:
    void quitRequested();

private:
    const LMCommandParts& m_parts;
    LMRestoreCommands& m_restoreCommands;
    LMStoreCommands& m_storeCommands;
    LMWindowCommands& m_windowCommands;
};
