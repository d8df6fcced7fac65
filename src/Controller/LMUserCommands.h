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
    /// What is refused is logged, for the user who wonders.
    LMCommandResult perform(LMMenuCommand command);
    /// The command's hot key was pressed: settles which application is the active one, then
    /// performs the command if it is available.
    void performIfAvailable(LMMenuCommand command);

Q_SIGNALS:
    void quitRequested();

private:
    LMCommandResult dispatch(LMMenuCommand command);

    const LMCommandParts& m_parts;
    LMRestoreCommands& m_restoreCommands;
    LMStoreCommands& m_storeCommands;
    LMWindowCommands& m_windowCommands;
};
