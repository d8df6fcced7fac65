// SPDX-License-Identifier: MIT
#pragma once

#include "Controller/LMAlert.h"
#include "Model/LMProgress.h"

#include <QString>

class LMHotKeyCenter;
class LMStatusMenu;
class LMWindow;
class LMWorkspace;

/// The window that shows how far a long operation is.
class LMProgressWindow : public LMProgress {
public:
    virtual void setLabel(const QString& label) = 0;
    /// Whether the number of steps is unknown.
    virtual void setIndeterminate(bool isIndeterminate) = 0;
    virtual void showWindow() = 0;
    virtual void close() = 0;
};

/// What the controller asks of whatever faces the user. The widgets implement it; without them
/// LMWindowlessUserInterface does. Main thread only.
class LMUserInterface {
public:
    virtual ~LMUserInterface() = default;

    /// False for a process that never shows a window: what is meant to be seen is refused then.
    virtual bool canShowWindows() const = 0;

    virtual LMProgressWindow& progressWindow() = 0;

    /// Shows a modal alert in front of all applications and waits for the answer (nested event
    /// loop).
    virtual LMAlertAnswer runModal(const LMAlert& alert) = 0;
    /// Whether an alert or another modal window is open.
    virtual bool isModalWindowOpen() const = 0;
    /// Brings this program to the front, whatever is active now.
    virtual void activateIgnoringOtherApplications() = 0;

    /// Shows the one dialog that says what is missing for windows of other applications to be read
    /// and moved. Does not wait for an answer. With nothing missing, the dialog goes away.
    virtual void showPermissionPrompt(const QString& missing) = 0;

    /// Shows the status icon with the menu; the menu outlives the icon. Waits for a tray that is
    /// not there yet.
    virtual void showStatusItem(LMStatusMenu& menu) = 0;
    /// Does nothing when there is no icon.
    virtual void removeStatusItem() = 0;
    /// Pops the menu up at the pointer. Returns at once.
    virtual void displayMenuAtCursor(LMStatusMenu& menu) = 0;

    virtual void showStoredWindowPicker(LMWorkspace& workspace, LMWindow& focusedWindow) = 0;
    virtual void closeStoredWindowPicker() = 0;
    virtual void showStoredWindowsList() = 0;
    /// Once, at launch: the preferences watch over the status icon also while their window is
    /// closed. The hot keys live as long as the controller, after which none of this is called.
    virtual void setUpPreferencesWindow(LMHotKeyCenter& hotKeys) = 0;
    virtual void showPreferencesWindow() = 0;
    virtual void showAboutPanel() = 0;

    /// The store has changed: whatever lists show it read it again.
    virtual void reloadTableViews() = 0;
};
