// SPDX-License-Identifier: MIT
#pragma once

#include "Controller/LMCommandResult.h"

#include <QVariantMap>

#include <optional>

class LMFrontmostApplication;
class LMRestoreCommands;
class LMStoreCommands;

/// A command from another program: two four-character codes and arguments by name.
struct LMScriptCommand {
    quint32 eventClass = 0;
    quint32 eventCode = 0;
    QVariantMap evaluatedArguments;
};

/// Four characters as the 32-bit big-endian number that names a command.
constexpr quint32 LMFourCharCode(const char (&text)[5]) {
    return (quint32(quint8(text[0])) << 24) | (quint32(quint8(text[1])) << 16) |
           (quint32(quint8(text[2])) << 8) | quint32(quint8(text[3]));
}

/// The commands other programs may give, told apart by their codes alone.
///
///   class "Rook"  "RAll"  restore all windows
///                 "RApp"  restore the active application's windows
///                 "RNam"  restore the windows of the application named by "Application"
///                 "SApp"  store the active application's windows   "Overwrite"
///                 "SWin"  store the active window                  "Overwrite"
///                 "SAll"  store all windows                        "Overwrite"
///
/// A scripted store never asks the user.
class LMScriptingSupport {
public:
    LMScriptingSupport(LMRestoreCommands& restoreCommands, LMStoreCommands& storeCommands,
                       LMFrontmostApplication& frontmostApplication);

    /// The command's answer; none for another class or an unknown code. Which application is the
    /// active one is settled before the command runs; commands that need one have no answer either
    /// when there is none. "RAll" and "RNam" leave that as it is.
    std::optional<LMCommandResult> performDefaultImplementation(const LMScriptCommand& command);

private:
    LMRestoreCommands& m_restoreCommands;
    LMStoreCommands& m_storeCommands;
    LMFrontmostApplication& m_frontmostApplication;
};
