// SPDX-License-Identifier: MIT
#pragma once

#include "Model/Store/LMObjectID.h"
#include "Platform/LMPlatformTypes.h"
#include "UserInterface/WindowLinking/LMFullscreenWindow.h"

#include <QObject>
#include <QTimer>
#include <QVariantAnimation>

#include <memory>
#include <optional>
#include <vector>

class LMApplication;
class LMObjectContext;
class LMStoredWindow;
class LMStoredWindowPickerView;
class LMStoredWindowsStore;
class LMUserInterface;
class LMWindow;
class LMWorkspace;
struct LMEnvironment;

/// Asks the user which stored window the focused window is to be restored as: a dark overlay with a
/// screenshot of each stored window of the frontmost application, while all other displays are
/// dimmed and no key reaches any other program.
///
/// While it is open records come and go. It holds identifiers, resolves them when they are needed,
/// and reads the focused window again then. It goes away when another window of this program comes.
class LMStoredWindowPicker final : public QObject {
    Q_OBJECT
public:
    /// All of them outlive the picker.
    LMStoredWindowPicker(LMEnvironment& environment, LMStoredWindowsStore& store,
                         LMUserInterface& userInterface);
    ~LMStoredWindowPicker() override;

    /// The live window to be linked. To be set before the picker is shown.
    void setFocusedWindow(const LMWindow& focusedWindow);
    /// Offers the stored windows that the workspace has for the application in front; none when it
    /// has no record of that application.
    void setWorkspace(LMWorkspace& workspace);

    /// Shows the overlay and takes the keyboard. Does not take the focus: it stays where it is.
    void showWindow();
    /// Gives the keyboard back at once, then hides the overlay, slowly or at once. What was chosen
    /// while it was going away slowly is dropped when it is closed at once.
    void close(bool animated);
    /// From showWindow to close.
    bool isOpen() const { return m_isOpen; }

    /// Links the focused window to the stored window. Asks before it replaces another link; does
    /// nothing when one of the two is gone.
    void selectStoredWindow(const LMObjectID& storedWindow);

    LMStoredWindowPickerView* storedWindowPickerView() const { return m_view; }

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    /// What is to be linked, found in the store as it is now.
    struct Link {
        LMApplication* application = nullptr;
        LMStoredWindow* storedWindow = nullptr;
        LMWindow* focusedWindow = nullptr;
    };

    void place();
    void createBlankoutWindows();
    std::vector<LMFullscreenWindow*> fullscreenWindows();
    void setAlpha(double alpha);
    void fadeTo(double alpha);
    void orderFront();
    void orderOut();
    void finishClosing();
    void choose(const LMObjectID& storedWindow);

    LMObjectContext& context() const;
    std::optional<Link> findLink(const LMObjectID& storedWindow) const;
    bool mayReplaceLink(const Link& link);

    LMEnvironment& m_environment;
    LMStoredWindowsStore& m_store;
    LMUserInterface& m_userInterface;

    LMElement m_focusedWindow;
    LMObjectID m_frontmostApplication; ///< Null when the workspace has no record of it.

    LMFullscreenWindow m_window;
    LMStoredWindowPickerView* m_view; ///< A child of the window.
    std::vector<std::unique_ptr<LMFullscreenWindow>> m_blankoutWindows;
    QVariantAnimation m_fade;
    QTimer m_forgotten{this};
    double m_alpha = 0;
    bool m_isOpen = false;
    std::optional<LMObjectID> m_chosen; ///< To be linked when the overlay is gone.
};
