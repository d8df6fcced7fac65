// SPDX-License-Identifier: MIT
#include "UserInterface/LMGeneralPreferencesViewController.h"

#include "Platform/LMEnvironment.h"
#include "Platform/LMShortcut.h"
#include "UserInterface/LMAlertWindow.h"
#include "Utilities/LMFormat.h"
#include "Utilities/LMLogger.h"
#include "Utilities/LMNotificationCenter.h"
#include "Utilities/LMUserDefaultsKeys.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>

#include <algorithm>
#include <array>

namespace Keys = LMUserDefaultsKeys;

namespace {

constexpr std::array WarningKeys = {Keys::moveToApplicationsFolderAlertSuppress,
                                    Keys::SuppressStoreActiveApplicationAlert,
                                    Keys::SuppressStoreActiveWindowAlert,
                                    Keys::SuppressLinkActiveWindowAlert,
                                    Keys::SuppressStoreAllAlert,
                                    Keys::SuppressStoreActiveApplicationSuccess,
                                    Keys::SuppressStoreActiveWindowSuccess,
                                    Keys::SuppressStoreAllSuccess};

QString cannotBeHiddenText() {
    return LMLocalized(
        "Rook’s menu icon cannot be hidden until the “Display Menu” hot key is set.");
}

} // namespace

LMGeneralPreferencesViewController::LMGeneralPreferencesViewController(LMEnvironment& environment)
    : LMGeneralPreferencesViewController(environment,
                                         std::make_unique<LMLoginItemsController>(environment)) {}

LMGeneralPreferencesViewController::LMGeneralPreferencesViewController(
    LMEnvironment& environment, std::unique_ptr<LMLoginItemsController> loginItems)
    : m_environment(environment), m_loginItemsController(std::move(loginItems)) {
    awakeFromNib();
}

void LMGeneralPreferencesViewController::awakeFromNib() {
    LMNotificationCenter& center = m_environment.notificationCenter;
    observe(Keys::DisableStatusBarItem, [this, &center] {
        center.postNotification(LMNotification::StatusItemVisibilityChanged);
        updateUI();
    });
    observe(Keys::ShowMenuHotKey, [this] { updateUI(); });
    for (const QLatin1String key : WarningKeys)
        observe(key, [this] { supressedAlertsChanged(); });
    center.addObserver(LMNotification::LoginItemsChanged, this, [this] { loginItemsChanged(); });
    center.addObserver(LMNotification::SupressedAlertsChanged, this,
                       [this] { supressedAlertsChanged(); });
}

void LMGeneralPreferencesViewController::observe(const QString& key,
                                                 const LMUserDefaults::Observer& observer) {
    m_observations.push_back(m_environment.userDefaults.addObserver(key, observer));
}

QString LMGeneralPreferencesViewController::identifier() const {
    return QStringLiteral("GeneralPreferences");
}

QIcon LMGeneralPreferencesViewController::toolbarItemImage() const {
    return LMPreferencesImage(identifier());
}

QString LMGeneralPreferencesViewController::toolbarItemLabel() const {
    return LMLocalized("General");
}

void LMGeneralPreferencesViewController::viewWillAppear() {
    loginItemsChanged();
    supressedAlertsChanged();
    updateUI();
}

// --- start at login ------------------------------------------------------------------------

void LMGeneralPreferencesViewController::loginItemsChanged() {
    if (m_startAtLoginCheckbox)
        m_startAtLoginCheckbox->setChecked(
            m_loginItemsController->isCurrentApplicationInLoginItems());
}

void LMGeneralPreferencesViewController::startAtLoginStatusChanged(bool isOn) {
    const QString failure = isOn ? m_loginItemsController->addCurrentApplicationToLoginItems()
                                 : m_loginItemsController->removeCurrentApplicationFromLoginItems();
    if (!failure.isNull())
        showFailure(isOn ? LMLocalized("Rook cannot be started at login.")
                         : LMLocalized("Rook cannot be kept from starting at login."),
                    failure);
    m_environment.userDefaults.setObject(
        Keys::StartRookAtLogin, m_loginItemsController->isCurrentApplicationInLoginItems());
    loginItemsChanged();
}

void LMGeneralPreferencesViewController::showFailure(const QString& message,
                                                     const QString& reason) {
    m_environment.logger.error(QStringLiteral("%@ %@"), {message, reason});
    if (!m_startAtLoginCheckbox)
        return;
    auto* sheet = new LMAlertWindow({message, reason, {}, false}, m_startAtLoginCheckbox->window());
    sheet->setAttribute(Qt::WA_DeleteOnClose);
    sheet->open();
}

// --- updates and warnings ------------------------------------------------------------------

void LMGeneralPreferencesViewController::automaticUpdatesStatusChanged(bool isOn) {
    if (isOn)
        m_environment.notificationCenter.postNotification(LMNotification::CheckForUpdates);
}

void LMGeneralPreferencesViewController::supressedAlertsChanged() {
    if (m_resetWarningsButton)
        m_resetWarningsButton->setEnabled(
            std::ranges::any_of(WarningKeys, [this](QLatin1String key) {
                return m_environment.userDefaults.boolForKey(key);
            }));
}

void LMGeneralPreferencesViewController::resetAllWarnings() {
    for (const QLatin1String key : WarningKeys)
        m_environment.userDefaults.removeObject(key);
    supressedAlertsChanged();
}

// --- the menu icon -------------------------------------------------------------------------

bool LMGeneralPreferencesViewController::showMenuCheckboxEnabled() const {
    return LMShortcut::fromData(m_environment.userDefaults.dataForKey(Keys::ShowMenuHotKey))
        .has_value();
}

QString LMGeneralPreferencesViewController::hideMenuIconCheckboxToolTip() const {
    return showMenuCheckboxEnabled()
               ? LMLocalized("Removes Rook’s icon from the menu bar when checked.")
               : cannotBeHiddenText();
}

QString LMGeneralPreferencesViewController::showMenuHotKeyString() const {
    const auto shortcut =
        LMShortcut::fromData(m_environment.userDefaults.dataForKey(Keys::ShowMenuHotKey));
    return shortcut ? LMFormat(LMLocalized("With the menu icon disabled, Rook’s menu can be "
                                           "displayed by pressing %@"),
                               {shortcut->description()})
                    : cannotBeHiddenText();
}

void LMGeneralPreferencesViewController::updateUI() {
    if (m_hideMenuIconCheckbox) {
        m_hideMenuIconCheckbox->setEnabled(showMenuCheckboxEnabled());
        m_hideMenuIconCheckbox->setToolTip(hideMenuIconCheckboxToolTip());
        m_hideMenuIconCheckbox->setAccessibleDescription(showMenuHotKeyString());
    }
    enableStatusBarItemIfRequired();
    if (m_hotKeySubscriptTextField)
        m_hotKeySubscriptTextField->setText(showMenuHotKeyString());
}

void LMGeneralPreferencesViewController::enableStatusBarItemIfRequired() {
    LMUserDefaults& userDefaults = m_environment.userDefaults;
    if (!showMenuCheckboxEnabled() && userDefaults.boolForKey(Keys::DisableStatusBarItem))
        userDefaults.removeObject(Keys::DisableStatusBarItem);
}
