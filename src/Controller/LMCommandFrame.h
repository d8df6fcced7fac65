// SPDX-License-Identifier: MIT
#pragma once

#include "Controller/LMCommandResult.h"
#include "Platform/LMApplications.h"

#include <QString>

#include <optional>

class LMFrontmostApplication;
class LMPermissionCheck;
class LMProgressWindow;
class LMStoredWindowsStore;
class LMUserInterface;
class LMWorkspaceList;
struct LMEnvironment;

/// The parts every store and restore command works with. All of them outlive the commands.
struct LMCommandParts {
    LMEnvironment& environment;
    LMStoredWindowsStore& store;
    LMUserInterface& userInterface;
    LMPermissionCheck& permissionCheck;
    LMWorkspaceList& workspaceList;
    LMFrontmostApplication& frontmostApplication;
};

/// What all commands do around their work, for as long as it lives: it remembers the application
/// that was active, gives the focus back to it when the work was done, and lets go of the live
/// records that only served the command.
class LMCommandFrame {
public:
    explicit LMCommandFrame(const LMCommandParts& parts);
    ~LMCommandFrame();
    Q_DISABLE_COPY_MOVE(LMCommandFrame)

    /// The work is done: the user's application becomes active again.
    LMCommandResult finish();

private:
    const LMCommandParts& m_parts;
    std::optional<LMRunningApplication> m_activeAtStart;
};

/// Shows the progress window with a label for as long as it lives.
class LMProgressScope {
public:
    LMProgressScope(LMUserInterface& userInterface, const QString& label, bool isIndeterminate);
    ~LMProgressScope();
    Q_DISABLE_COPY_MOVE(LMProgressScope)

    LMProgressWindow& progress() { return m_progress; }

private:
    LMProgressWindow& m_progress;
};

/// The reasons commands give for not running.
namespace LMRefusal {
QString permission(const LMPermissionCheck& check);
QString noCurrentWorkspace();
QString noActiveApplication();
QString noFocusedWindow();
/// This process shows no windows.
QString noWindows();
QString notStored(const QString& applicationName);
QString alreadyStored(const QString& what);
} // namespace LMRefusal
