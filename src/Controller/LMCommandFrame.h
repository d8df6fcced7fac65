// SPDX-License-Identifier: MIT
#pragma once

#include "Controller/LMCommandResult.h"
#include "Model/Store/LMTransientScope.h"
#include "Platform/LMActivity.h"
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

/// What all commands do around their work, for as long as it lives: what is being typed in open
/// windows counts as it stood before, no other command begins, the application that was active gets
/// the focus back when the work was done, and the live records that only served the command are let
/// go.
class LMCommandFrame {
public:
    /// label: what the command does, for people who ask what the process is doing.
    LMCommandFrame(const LMCommandParts& parts, const QString& label);

    /// The work is done: the user's application becomes active again.
    LMCommandResult finish();

private:
    const LMCommandParts& m_parts;
    LMActivityScope m_activity;
    LMTransientScope m_transients;
    std::optional<LMRunningApplication> m_activeAtStart;
};

/// Whether something goes on, or waits for the user's answer, that a command must not interfere
/// with. Asked because alerts have an event loop of their own, through which everything arrives.
bool LMIsOccupied(const LMCommandParts& parts);

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
/// What every command that reads or moves windows asks first: the reason why it must not begin.
std::optional<LMCommandResult> beforeCommand(const LMCommandParts& parts);
/// The same for commands that need no permission.
std::optional<LMCommandResult> whileOccupied(const LMCommandParts& parts);
QString permission(const LMPermissionCheck& check);
QString noCurrentWorkspace();
QString noActiveApplication();
QString noFocusedWindow();
/// This process shows no windows.
QString noWindows();
QString notStored(const QString& applicationName);
QString alreadyStored(const QString& what);
/// The user was asked and wants nothing replaced.
QString declined();
} // namespace LMRefusal
