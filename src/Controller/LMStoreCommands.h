// SPDX-License-Identifier: MIT
#pragma once

#include "Controller/LMCommandFrame.h"

class LMApplication;
class LMWindow;
class LMWorkspace;
struct LMElement;
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
    /// The focused window, none when nothing has the focus. While this program is in front, that
    /// of the application the user worked in before.
    LMWindow* focusedWindow(const LMRunningApplication& active) const;
    /// The window to store and the application it is stored with (made when there is none yet), or
    /// why there is none.
    struct StorableWindow {
        LMApplication* application;
        LMWindow* window;
        QString refusal;
    };
    /// The focused window, or that of the element if there is one.
    StorableWindow findWindow(const std::optional<LMRunningApplication>& active,
                              const LMElement& element);
    LMApplication* addApplication(LMWorkspace& workspace, const LMRunningApplication& running);

    const LMCommandParts& m_parts;
};
