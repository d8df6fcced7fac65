// SPDX-License-Identifier: MIT
#pragma once

#include "Controller/LMCommandFrame.h"

class LMApplication;
class LMWindow;
class LMWorkspace;
struct LMSuppressibleAlert;

/// The commands that remember windows. Each takes whether to replace what is stored without asking,
/// and whether somebody can be asked: without confirmation nothing is replaced unless told to, and
/// no success is reported.
class LMStoreCommands {
public:
    explicit LMStoreCommands(const LMCommandParts& parts) : m_parts(parts) {}

    bool canStoreActiveApplicationWindows() const;
    bool canStoreActiveWindow() const;

    LMCommandResult storeActiveApplicationWindows(bool overwrite, bool withConfirmation);
    LMCommandResult storeActiveWindow(bool overwrite, bool withConfirmation);
    LMCommandResult storeAllWindows(bool overwrite, bool withConfirmation);

private:
    /// None when the replacement may go ahead, else the command's answer.
    std::optional<LMCommandResult> askToReplace(const LMSuppressibleAlert& question,
                                                bool withConfirmation);
    void reportSuccess(QLatin1String suppressionKey, const QString& text, bool withConfirmation);
    /// The focused window and the application it is stored with (made when there is none yet), or
    /// why there is none.
    struct FocusedWindow {
        LMApplication* application;
        LMWindow* window;
        QString refusal;
    };
    FocusedWindow findFocusedWindow(const std::optional<LMRunningApplication>& active);
    LMApplication* addApplication(LMWorkspace& workspace, const LMRunningApplication& running);

    const LMCommandParts& m_parts;
};
