// SPDX-License-Identifier: MIT
// How the general preferences are put together.
#include "Platform/LMEnvironment.h"
#include "UserInterface/LMDefaultsBinding.h"
#include "UserInterface/LMGeneralPreferencesViewController.h"
#include "Utilities/LMFormat.h"
#include "Utilities/LMUserDefaultsKeys.h"

#include <QCheckBox>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace Keys = LMUserDefaultsKeys;

namespace {

constexpr int Margin = 20;
constexpr int GroupSpacing = 14;
constexpr double SmallFont = 0.88;

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
