// SPDX-License-Identifier: MIT
#include "UserInterface/LMWidgetUserInterface.h"

#include "Platform/LMDesktop.h"
#include "Platform/LMEnvironment.h"
#include "UserInterface/LMAccessibleRoles.h"
#include "UserInterface/LMAlertWindow.h"
#include "UserInterface/LMGeneralPreferencesViewController.h"
#include "UserInterface/LMHotKeysPreferencesViewController.h"
#include "UserInterface/LMPreferencesWindowController.h"
#include "UserInterface/LMStatusItem.h"
#include "UserInterface/LMStoredWindowsList.h"
#include "UserInterface/LMWindowPlacement.h"
#include "UserInterface/WindowLinking/LMStoredWindowPicker.h"
#include "Utilities/LMFormat.h"

#include <QAccessible>
#include <QApplication>
#include <QWindow>

LMWidgetUserInterface::LMWidgetUserInterface(LMEnvironment& environment,
                                             LMStoredWindowsStore& store,
                                             LMBundleInformation bundle, Look look)
    : m_environment(environment), m_store(store), m_look(look),
      m_aboutWindowController(std::move(bundle)), m_permissionPrompt(environment.desktop) {
    QAccessible::installFactory(LMMakeAccessibleInterface);
}

LMWidgetUserInterface::~LMWidgetUserInterface() = default;

void LMWidgetUserInterface::followAppearance() {
    if (m_look == Look::OfDesktop)
        m_appearance.follow(m_environment.desktop.appearance());
}

LMProgressWindow& LMWidgetUserInterface::progressWindow() {
    closeStoredWindowPicker(); // What it shows is about to change.
    followAppearance();
    return m_progressWindowController;
}

LMAlertAnswer LMWidgetUserInterface::runModal(const LMAlert& alert) {
    followAppearance();
    LMAlertWindow window(alert);
    window.adjustSize();
    LMCentreWindow(window);
    LMBringToFront(window, m_environment.desktop);
    window.exec();
    return window.answer();
}

bool LMWidgetUserInterface::isModalWindowOpen() const {
    return QApplication::activeModalWidget() != nullptr;
}

void LMWidgetUserInterface::activateIgnoringOtherApplications() {
    // Without a window there is nothing to bring to the front, and nothing is lost by trying.
    m_environment.desktop.applications().activate(QCoreApplication::applicationPid());
}

void LMWidgetUserInterface::showPermissionPrompt(const QString& missing) {
    followAppearance();
    m_permissionPrompt.show(missing);
}

LMStatusMenuView& LMWidgetUserInterface::popUpMenu(LMStatusMenu& menu) {
    if (!m_popUpMenu) {
        m_popUpMenu = std::make_unique<LMStatusMenuView>(menu, LMStatusMenuView::Drawn::ByUs);
        QObject::connect(&m_popUpMenu->menu(), &QMenu::aboutToShow, m_popUpMenu.get(),
                         [this] { followAppearance(); });
    }
    return *m_popUpMenu;
}

void LMWidgetUserInterface::showStatusItem(LMStatusMenu& menu) {
    followAppearance();
    m_statusItem = std::make_unique<LMStatusItem>(m_environment.desktop, menu, popUpMenu(menu));
}

void LMWidgetUserInterface::removeStatusItem() {
    m_statusItem.reset();
}

void LMWidgetUserInterface::displayMenuAtCursor(LMStatusMenu& menu) {
    popUpMenu(menu).popUpAtCursor();
}

void LMWidgetUserInterface::showAboutPanel() {
    closeStoredWindowPicker();
    followAppearance();
    m_aboutWindowController.showWindow();
    LMBringToFront(*m_aboutWindowController.window(), m_environment.desktop);
}

void LMWidgetUserInterface::showStoredWindowPicker(LMWorkspace& workspace,
                                                   LMWindow& focusedWindow) {
    followAppearance();
    if (!m_storedWindowPicker)
        m_storedWindowPicker =
            std::make_unique<LMStoredWindowPicker>(m_environment, m_store, *this);
    m_storedWindowPicker->setFocusedWindow(focusedWindow);
    m_storedWindowPicker->setWorkspace(workspace);
    m_storedWindowPicker->showWindow();
}

void LMWidgetUserInterface::closeStoredWindowPicker() {
    if (m_storedWindowPicker)
        m_storedWindowPicker->close(false);
}

void LMWidgetUserInterface::setUpPreferencesWindow(LMHotKeyCenter& hotKeys) {
    LMPreferencesWindowController::Panes panes;
    panes.push_back(std::make_unique<LMGeneralPreferencesViewController>(m_environment));
    panes.push_back(std::make_unique<LMHotKeysPreferencesViewController>(m_environment, hotKeys));
    m_preferencesWindowController = std::make_unique<LMPreferencesWindowController>(
        std::move(panes), LMLocalized("Preferences"), m_environment.desktop);
}

void LMWidgetUserInterface::showPreferencesWindow() {
    closeStoredWindowPicker();
    followAppearance();
    if (m_preferencesWindowController)
        m_preferencesWindowController->showWindow();
}

void LMWidgetUserInterface::showStoredWindowsList() {
    closeStoredWindowPicker();
    followAppearance();
    if (!m_storedWindowsList)
        m_storedWindowsList = std::make_unique<LMStoredWindowsList>(m_environment, m_store);
    m_storedWindowsList->showWindow();
}

void LMWidgetUserInterface::reloadTableViews() {
    if (m_storedWindowsList)
        m_storedWindowsList->reloadTableViews();
}
