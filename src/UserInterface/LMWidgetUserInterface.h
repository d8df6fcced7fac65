// SPDX-License-Identifier: MIT
#pragma once

#include "Controller/LMUserInterface.h"
#include "UserInterface/LMAboutWindowController.h"
#include "UserInterface/LMDesktopAppearance.h"
#include "UserInterface/LMPermissionPrompt.h"
#include "UserInterface/LMProgressWindowController.h"

#include <memory>

class LMPreferencesWindowController;
class LMStatusItem;
class LMStatusMenuView;
class LMStoredWindowPicker;
class LMStoredWindowsList;
class LMStoredWindowsStore;
struct LMEnvironment;

/// The user interface made of widgets. Each part is made when it is first needed.
class LMWidgetUserInterface final : public LMUserInterface {
public:
    enum class Look {
        OfToolkit, ///< The toolkit reads the desktop's settings itself.
        OfDesktop, ///< We tell it what the desktop wants.
    };

    /// The environment and the store outlive the user interface.
    LMWidgetUserInterface(LMEnvironment& environment, LMStoredWindowsStore& store,
                          LMBundleInformation bundle, Look look);
    ~LMWidgetUserInterface() override;

    bool canShowWindows() const override { return true; }

    LMProgressWindow& progressWindow() override;
    LMAlertAnswer runModal(const LMAlert& alert) override;
    bool isModalWindowOpen() const override;
    void activateIgnoringOtherApplications() override;
    void showPermissionPrompt(const QString& missing) override;

    void showStatusItem(LMStatusMenu& menu) override;
    void removeStatusItem() override;
    void displayMenuAtCursor(LMStatusMenu& menu) override;

    void showStoredWindowPicker(LMWorkspace& workspace, LMWindow& focusedWindow) override;
    void closeStoredWindowPicker() override;
    void showStoredWindowsList() override;
    void setUpPreferencesWindow(LMHotKeyCenter& hotKeys) override;
    void showPreferencesWindow() override;
    void showAboutPanel() override;
    void reloadTableViews() override;

    /// Called now and then while the program waits for something in the middle of its work.
    void animateProgress() { m_progressWindowController.animate(); }

private:
    LMStatusMenuView& popUpMenu(LMStatusMenu& menu);
    void followAppearance();

    LMEnvironment& m_environment;
    LMStoredWindowsStore& m_store;
    Look m_look;
    LMDesktopAppearance m_appearance;
    LMProgressWindowController m_progressWindowController;
    LMAboutWindowController m_aboutWindowController;
    LMPermissionPrompt m_permissionPrompt;
    std::unique_ptr<LMStoredWindowsList> m_storedWindowsList;
    std::unique_ptr<LMPreferencesWindowController> m_preferencesWindowController;
    std::unique_ptr<LMStatusMenuView> m_popUpMenu;
    std::unique_ptr<LMStatusItem> m_statusItem; ///< Uses the menu above.
    std::unique_ptr<LMStoredWindowPicker> m_storedWindowPicker;
};
