// SPDX-License-Identifier: MIT
#include "UserInterface/LMGeneralPreferencesViewController.h"

#include "Platform/LMEnvironment.h"
#include "Platform/LMShortcut.h"
#include "UserInterface/LMAlertWindow.h"
#include "UserInterface/LMDefaultsBinding.h"
#include "Utilities/LMFormat.h"
#include "Utilities/LMLogger.h"
#include "Utilities/LMNotificationCenter.h"
#include "Utilities/LMUserDefaultsKeys.h"

#include <QCheckBox>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>

#include <algorithm>
#include <array>

namespace Keys = LMUserDefaultsKeys;

namespace {

constexpr int Margin = 20;
constexpr int GroupSpacing = 14;
constexpr double SmallFont = 0.88;

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

QCheckBox* checkBox(const char* name, const QString& text) {
    auto* box = new QCheckBox(text);
    box->setObjectName(QLatin1String(name));
    return box;
}

/// A row of the form, further away from the one before it than the lines of a row. The caption
/// stands on the line of the first of them.
void addRow(QFormLayout& form, const QString& caption, QLayout* content) {
    auto* label = new QLabel(caption);
    const int lineHeight = content->itemAt(0)->widget()->sizeHint().height();
    label->setContentsMargins(0, qMax(0, (lineHeight - label->sizeHint().height()) / 2), 0, 0);
    label->setAlignment(Qt::AlignTrailing | Qt::AlignTop);
    content->setContentsMargins(0, 0, 0, GroupSpacing);
    form.addRow(label, content);
}

template <class... Controls>
QVBoxLayout* lines(Controls*... controls) {
    auto* layout = new QVBoxLayout;
    layout->setSpacing(6);
    (layout->addWidget(controls, 0, Qt::AlignLeading), ...);
    return layout;
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

// --- the view ------------------------------------------------------------------------------

QWidget* LMGeneralPreferencesViewController::loadView() {
    auto* view = new QWidget;
    auto* form = new QFormLayout(view);
    form->setContentsMargins(Margin, Margin, Margin, Margin - GroupSpacing / 2);
    form->setLabelAlignment(Qt::AlignTrailing);
    form->setFormAlignment(Qt::AlignTop | Qt::AlignHCenter);
    form->setVerticalSpacing(0);
    addStartControls(*form);
    addRestoreControls(*form);
    addStoreControls(*form);
    addMenuIconControls(*form);
    addUpdateControls(*form);
    addWarningControls(*form);
    updateUI();
    return view;
}

void LMGeneralPreferencesViewController::addStartControls(QFormLayout& form) {
    m_startAtLoginCheckbox = checkBox("startAtLoginCheckbox", LMLocalized("Start Rook at &login"));
    connect(m_startAtLoginCheckbox, &QCheckBox::clicked, this,
            &LMGeneralPreferencesViewController::startAtLoginStatusChanged);
    addRow(form, LMLocalized("Startup:"), lines(m_startAtLoginCheckbox.data()));
}

void LMGeneralPreferencesViewController::addRestoreControls(QFormLayout& form) {
    LMUserDefaults& userDefaults = m_environment.userDefaults;
    auto* onChange =
        checkBox("restoreOnDisplayChangeCheckbox", LMLocalized("When the &displays change"));
    onChange->setAccessibleName(LMLocalized("Restore windows when the displays change"));
    LMBindToDefaults(*onChange, userDefaults, Keys::RestoreWindowsAutomatically);
    auto* onLaunch =
        checkBox("restoreOnLaunchCheckbox", LMLocalized("When an &application launches, after"));
    onLaunch->setAccessibleName(LMLocalized("Restore an application’s windows when it launches"));
    LMBindToDefaults(*onLaunch, userDefaults, Keys::RestoreWindowsAsApplicationsLaunch);
    auto* delay = new QDoubleSpinBox;
    delay->setObjectName(QStringLiteral("launchDelaySpinBox"));
    delay->setAccessibleName(LMLocalized("Seconds to wait after an application’s launch"));
    delay->setRange(0, 60);
    delay->setSingleStep(0.1);
    delay->setDecimals(1);
    delay->setSuffix(LMLocalized(" s"));
    LMBindToDefaults(*delay, userDefaults, Keys::ApplicationLaunchRestoreDelay);
    delay->setEnabled(onLaunch->isChecked());
    connect(onLaunch, &QCheckBox::toggled, delay, &QWidget::setEnabled);
    auto* launch = new QHBoxLayout;
    launch->setSpacing(4);
    launch->addWidget(onLaunch);
    launch->addWidget(delay);
    launch->addStretch();
    QVBoxLayout* layout = lines(onChange);
    layout->addLayout(launch);
    addRow(form, LMLocalized("Restore windows:"), layout);
    addStateControls(form);
}

void LMGeneralPreferencesViewController::addStateControls(QFormLayout& form) {
    LMUserDefaults& userDefaults = m_environment.userDefaults;
    auto* states = checkBox("restoreStatesCheckbox",
                            LMLocalized("Whether they are &maximized, minimized and so on"));
    states->setAccessibleName(LMLocalized("Restore whether windows are maximized, minimized "
                                          "and so on"));
    LMBindToDefaults(*states, userDefaults, Keys::RestoreWindowStates);
    auto* desktops =
        checkBox("restoreDesktopsCheckbox", LMLocalized("Which &virtual desktop they are on"));
    desktops->setAccessibleName(LMLocalized("Restore which virtual desktop windows are on"));
    LMBindToDefaults(*desktops, userDefaults, Keys::RestoreVirtualDesktops);
    auto* order =
        checkBox("restoreStackingOrderCheckbox", LMLocalized("Which windows are &in front"));
    order->setAccessibleName(LMLocalized("Restore which windows are in front of others"));
    LMBindToDefaults(*order, userDefaults, Keys::RestoreStackingOrder);
    addRow(form, LMLocalized("Restore also:"), lines(states, desktops, order));
}

void LMGeneralPreferencesViewController::addStoreControls(QFormLayout& form) {
    auto* screenshots = checkBox("screenshotsCheckbox", LMLocalized("Take &pictures of windows"));
    screenshots->setAccessibleName(LMLocalized("Take pictures of windows when storing them"));
    LMBindToDefaults(*screenshots, m_environment.userDefaults,
                     Keys::CreateScreenshotsWhenStoringWindows);
    addRow(form, LMLocalized("Store windows:"), lines(screenshots));
}

void LMGeneralPreferencesViewController::addMenuIconControls(QFormLayout& form) {
    m_hideMenuIconCheckbox = checkBox("hideMenuIconCheckbox", LMLocalized("&Hide the menu icon"));
    LMBindToDefaults(*m_hideMenuIconCheckbox, m_environment.userDefaults,
                     Keys::DisableStatusBarItem);
    auto* text = new QLabel;
    text->setObjectName(QStringLiteral("hotKeySubscriptTextField"));
    text->setTextFormat(Qt::PlainText);
    text->setWordWrap(true);
    QFont font = text->font();
    font.setPointSizeF(font.pointSizeF() * SmallFont);
    text->setFont(font);
    // As wide as it takes for both texts to have two lines.
    const QFontMetrics metrics(font);
    text->setFixedSize(metrics.averageCharWidth() * 54, metrics.lineSpacing() * 2);
    text->setAlignment(Qt::AlignLeading | Qt::AlignTop);
    m_hotKeySubscriptTextField = text;
    addRow(form, LMLocalized("Menu icon:"), lines(m_hideMenuIconCheckbox.data(), text));
}

void LMGeneralPreferencesViewController::addUpdateControls(QFormLayout& form) {
    auto* updates =
        checkBox("automaticUpdatesCheckbox", LMLocalized("Check for &updates automatically"));
    LMBindToDefaults(*updates, m_environment.userDefaults, Keys::SUEnableAutomaticChecks);
    connect(updates, &QCheckBox::clicked, this,
            &LMGeneralPreferencesViewController::automaticUpdatesStatusChanged);
    addRow(form, LMLocalized("Updates:"), lines(updates));
}

void LMGeneralPreferencesViewController::addWarningControls(QFormLayout& form) {
    m_resetWarningsButton = new QPushButton(LMLocalized("Reset &Warnings"));
    m_resetWarningsButton->setObjectName(QStringLiteral("resetWarningsButton"));
    m_resetWarningsButton->setToolTip(
        LMLocalized("Shows all messages again that were switched off"));
    connect(m_resetWarningsButton, &QPushButton::clicked, this,
            &LMGeneralPreferencesViewController::resetAllWarnings);
    addRow(form, LMLocalized("Warnings:"), lines(m_resetWarningsButton.data()));
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
