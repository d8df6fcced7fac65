// SPDX-License-Identifier: MIT
#pragma once

#include "Controller/LMCommandFrame.h"

/// The commands that put windows back.
class LMRestoreCommands {
public:
    explicit LMRestoreCommands(const LMCommandParts& parts) : m_parts(parts) {}

    bool canRestoreAllWindows() const;
    bool canRestoreActiveApplicationWindows() const;

    /// Restores every window of the current workspace. With displayChanged, the actions that are
    /// meant for display changes run too.
    LMCommandResult restoreWindows(bool displayChanged);
    LMCommandResult restoreActiveApplicationWindows();
    /// Restores one application by its identifier, whichever is active.
    LMCommandResult restoreApplicationWindows(const QString& bundleIdentifier);

private:
    LMCommandResult restoreApplication(const QString& bundleIdentifier, const QString& name);

    const LMCommandParts& m_parts;
};
