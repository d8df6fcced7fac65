// SPDX-License-Identifier: MIT
#pragma once

#include "Controller/LMLoginItemsController.h"
#include "UserInterface/LMPreferencesViewController.h"
#include "Utilities/LMUserDefaults.h"

#include <QPointer>

#include <vector>

class QCheckBox;
class QFormLayout;
class QLabel;
class QPushButton;
struct LMEnvironment;

/// The pane of what Rook does unasked and how it is reached. It also keeps the menu reachable while
/// nobody looks: a user without the hot key that shows the menu has its icon.
class LMGeneralPreferencesViewController final : public LMPreferencesViewController {
    Q_OBJECT
public:
    /// Observes the user defaults from now on. The environment outlives the pane.
    explicit LMGeneralPreferencesViewController(LMEnvironment& environment);
    LMGeneralPreferencesViewController(LMEnvironment& environment,
                                       std::unique_ptr<LMLoginItemsController> loginItems);

    QString identifier() const override;
    QIcon toolbarItemImage() const override;
    QString toolbarItemLabel() const override;
    QWidget* loadView() override;
    void viewWillAppear() override;

    /// Whether the icon may be hidden: the hot key that shows the menu is set.
    bool showMenuCheckboxEnabled() const;
    QString hideMenuIconCheckboxToolTip() const;
    /// The small text under the check box.
    QString showMenuHotKeyString() const;

    // --- what the controls do -----------------------------------------------------------------
    void startAtLoginStatusChanged(bool isOn);
    void automaticUpdatesStatusChanged(bool isOn);
    void resetAllWarnings();

private:
    void awakeFromNib();
    void observe(const QString& key, const LMUserDefaults::Observer& observer);
    void addStartControls(QFormLayout& form);
    void addRestoreControls(QFormLayout& form);
    void addStateControls(QFormLayout& form);
    void addStoreControls(QFormLayout& form);
    void addMenuIconControls(QFormLayout& form);
    void addUpdateControls(QFormLayout& form);
    void addWarningControls(QFormLayout& form);

    void loginItemsChanged();
    void supressedAlertsChanged();
    void updateUI();
    void enableStatusBarItemIfRequired();
    void showFailure(const QString& message, const QString& reason);

    LMEnvironment& m_environment;
    std::unique_ptr<LMLoginItemsController> m_loginItemsController;
    std::vector<LMUserDefaults::Observation> m_observations;
    // Null without a view.
    QPointer<QCheckBox> m_startAtLoginCheckbox;
    QPointer<QCheckBox> m_hideMenuIconCheckbox;
    QPointer<QLabel> m_hotKeySubscriptTextField;
    QPointer<QPushButton> m_resetWarningsButton;
};
