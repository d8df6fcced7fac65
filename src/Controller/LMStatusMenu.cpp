// SPDX-License-Identifier: MIT
#include "Controller/LMStatusMenu.h"

#include "Controller/LMFrontmostApplication.h"
#include "Controller/LMPermissionCheck.h"
#include "Controller/LMUserCommands.h"
#include "Model/LMApplication.h"
#include "Platform/LMDesktop.h"
#include "Platform/LMEnvironment.h"
#include "Utilities/LMFormat.h"

#include <algorithm>

namespace {

using Command = LMMenuCommand;

namespace Tag {
constexpr int RestoreAll = 1, RestoreActiveApplication = 2, ActiveApplication = 3,
              StoreActiveApplication = 4, StoreActiveWindow = 5, LinkActiveWindow = 6,
              StoredWindows = 7, Preferences = 9, About = 10, Quit = 11;
}

constexpr int IconPoints = 16;
constexpr int IconScale = 3; // Sharp on every screen up to three device pixels per point.

LMMenuItem separator() {
    LMMenuItem item;
    item.isSeparator = true;
    return item;
}

QString restoreTitle(const QString& application) {
    return LMFormat(LMLocalized("Restore Windows for %@"), {application});
}

QString storeTitle(const QString& application) {
    return LMFormat(LMLocalized("Store All Windows for %@"), {application});
}

QString noApplicationName() {
    return LMLocalized("Finder");
}

QList<LMMenuItem> menuResource() {
    const QString none = noApplicationName();
    return {
        {Tag::ActiveApplication, Command::None, none, false},
        {Tag::StoreActiveApplication, Command::StoreActiveApplicationWindows, storeTitle(none)},
        {Tag::RestoreActiveApplication, Command::RestoreActiveApplicationWindows,
         restoreTitle(none)},
        {Tag::StoreActiveWindow, Command::StoreActiveWindow, LMLocalized("Store Active Window")},
        {Tag::LinkActiveWindow, Command::LinkActiveWindow, LMLocalized("Link Active Window…")},
        separator(),
        {0, Command::StoreAllWindows, LMLocalized("Store All Windows")},
        {Tag::RestoreAll, Command::RestoreAllWindows, LMLocalized("Restore All Windows")},
        separator(),
        {Tag::StoredWindows, Command::ShowStoredWindowsEditor, LMLocalized("Stored Windows…")},
        separator(),
        {Tag::Preferences, Command::ShowPreferencesWindow, LMLocalized("Preferences…")},
        {0, Command::CheckForUpdates, LMLocalized("Check for Updates…")},
        {Tag::About, Command::ShowAboutPanel, LMLocalized("About Rook")},
        separator(),
        {Tag::Quit, Command::Quit, LMLocalized("Quit Rook")},
    };
}

} // namespace

LMStatusMenu::LMStatusMenu(const LMCommandParts& parts, LMUserCommands& commands)
    : m_parts(parts), m_commands(commands), m_items(menuResource()) {}

LMMenuItem& LMStatusMenu::itemWithTag(int tag) {
    return *std::find_if(m_items.begin(), m_items.end(),
                         [tag](const LMMenuItem& item) { return item.tag == tag; });
}

void LMStatusMenu::enableAll(bool isEnabled) {
    for (LMMenuItem& item : m_items)
        item.isEnabled = isEnabled;
}

void LMStatusMenu::menuNeedsUpdate() {
    if (!m_parts.frontmostApplication.updateFrontmostApplication()) {
        showNoApplication();
        return;
    }
    showApplication(*m_parts.frontmostApplication.frontmostApplication());
    if (LMIsOccupied(m_parts))
        enableAll(false);
    else
        setEnabledStates();
}

void LMStatusMenu::showNoApplication() {
    LMMenuItem& information = itemWithTag(Tag::ActiveApplication);
    information.title = noApplicationName();
    information.representedObject.clear();
    information.image = QImage();
    // Both entries take the title of storing, as the menu always had it.
    for (const int tag : {Tag::RestoreActiveApplication, Tag::StoreActiveApplication})
        itemWithTag(tag).title = storeTitle(noApplicationName());
    for (const int tag :
         {Tag::RestoreActiveApplication, Tag::ActiveApplication, Tag::StoreActiveApplication,
          Tag::StoreActiveWindow, Tag::LinkActiveWindow, Tag::StoredWindows})
        itemWithTag(tag).isEnabled = false;
}

void LMStatusMenu::showApplication(const LMRunningApplication& application) {
    LMEnvironment& environment = m_parts.environment;
    const QString& name = application.localizedName;
    const bool isBlocked =
        LMApplication::blockedApplications(environment).contains(application.bundleIdentifier);
    LMMenuItem& information = itemWithTag(Tag::ActiveApplication);
    information.title = isBlocked ? LMFormat(LMLocalized("%@ (Incompatible)"), {name}) : name;
    information.representedObject = application.bundleIdentifier;
    information.image = environment.desktop.applications().iconForApplication(
        application.bundleIdentifier, IconPoints * IconScale);
    information.image.setDevicePixelRatio(IconScale);
    itemWithTag(Tag::RestoreActiveApplication).title = restoreTitle(name);
    itemWithTag(Tag::StoreActiveApplication).title = storeTitle(name);
}

void LMStatusMenu::setEnabledStates() {
    const bool isPermitted = m_parts.permissionCheck.checkAccessibilityEnabled();
    enableAll(isPermitted);
    if (!isPermitted) {
        for (const int tag : {Tag::Preferences, Tag::About, Tag::Quit})
            itemWithTag(tag).isEnabled = true;
        return;
    }
    itemWithTag(Tag::ActiveApplication).isEnabled = false;
    for (const int tag :
         {Tag::RestoreAll, Tag::RestoreActiveApplication, Tag::StoreActiveApplication,
          Tag::StoreActiveWindow, Tag::LinkActiveWindow}) {
        LMMenuItem& item = itemWithTag(tag);
        item.isEnabled = m_commands.isAvailable(item.command);
    }
}

void LMStatusMenu::perform(LMMenuCommand command) {
    const auto chosen =
        std::find_if(m_items.cbegin(), m_items.cend(),
                     [command](const LMMenuItem& item) { return item.command == command; });
    if (command != LMMenuCommand::None && chosen != m_items.cend() && chosen->isEnabled)
        m_commands.perform(command);
}
