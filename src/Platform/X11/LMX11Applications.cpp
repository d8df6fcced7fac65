// SPDX-License-Identifier: MIT
#include "Platform/X11/LMX11Applications.h"

#include "Platform/LMDefaultApplications.h"
#include "Platform/LMDesktopEntries.h"
#include "Platform/X11/LMX11Settings.h"
#include "Platform/X11/LMX11WindowIcon.h"
#include "Platform/X11/LMX11WindowManager.h"
#include "Platform/X11/LMX11WindowReader.h"
#include "Utilities/LMBaseDirectories.h"

#include <algorithm>

using namespace std::chrono_literals;

namespace {

/// How long an application's windows may take to do what was asked of them.
constexpr auto longestWait = 500ms;
/// How long a window manager that has read a request may take to carry it out.
constexpr auto shortWait = 150ms;

} // namespace

LMX11Applications::LMX11Applications(LMX11Connection& connection, LMX11ApplicationIndex& index,
                                     LMDesktopEntries& desktopEntries,
                                     LMX11WindowManager& windowManager)
    : m_connection(connection), m_index(index), m_desktopEntries(desktopEntries),
      m_windowManager(windowManager) {
    connect(&m_index, &LMX11ApplicationIndex::applicationLaunched, this,
            &LMX11Applications::applicationLaunched);
}

QList<LMRunningApplication> LMX11Applications::runningApplications() {
    m_index.refresh();
    const LMX11Application* active = m_index.applicationOfWindow(m_index.activeWindow());
    QList<LMRunningApplication> running;
    for (const LMX11Application& application : m_index.applications())
        running.append({application.bundleIdentifier, application.localizedName,
                        application.processIdentifier, policyOf(application),
                        &application == active, isHidden(application)});
    return running;
}

LMActivationPolicy LMX11Applications::policyOf(const LMX11Application& application) const {
    const auto isInTaskBars = [this](xcb_window_t window) {
        const auto presence = m_index.presence(window);
        return presence && presence->isInTaskBars;
    };
    if (application.windows.isEmpty())
        return LMActivationPolicy::Prohibited;
    return std::ranges::any_of(application.windows, isInTaskBars) ? LMActivationPolicy::Regular
                                                                  : LMActivationPolicy::Accessory;
}

bool LMX11Applications::isMinimized(xcb_window_t window) const {
    const auto presence = m_index.presence(window);
    return presence && presence->isMinimized;
}

LMX11Applications::Windows LMX11Applications::minimized(const Windows& windows) const {
    Windows result;
    std::ranges::copy_if(windows, std::back_inserter(result),
                         [this](xcb_window_t window) { return isMinimized(window); });
    return result;
}

bool LMX11Applications::isHidden(const LMX11Application& application) const {
    const bool isRegular = policyOf(application) == LMActivationPolicy::Regular;
    const auto isShown = [&](xcb_window_t window) {
        const auto presence = m_index.presence(window);
        return presence && (presence->isInTaskBars || !isRegular) && !presence->isMinimized;
    };
    return !application.windows.isEmpty() && std::ranges::none_of(application.windows, isShown);
}

/// Managers answer requests by changing properties.
bool LMX11Applications::waitUntil(const std::function<bool()>& isDone,
                                  std::chrono::milliseconds limit) {
    const auto deadline = std::chrono::steady_clock::now() + limit;
    bool hasNews = false;
    const auto isNews = [&hasNews](const xcb_generic_event_t& event) {
        const uint8_t type = LMXcbEventType(event);
        hasNews = hasNews || type == XCB_PROPERTY_NOTIFY || type == XCB_DESTROY_NOTIFY;
        return hasNews;
    };
    // News may come at the end of a refresh, too late for it and too early for the wait.
    const auto observer = m_connection.addEventObserver(isNews);
    while (true) {
        const bool isLast = std::chrono::steady_clock::now() >= deadline;
        hasNews = false;
        m_index.refresh();
        if (isDone())
            return true;
        if (isLast || !m_connection.isConnected())
            return false;
        if (!hasNews)
            m_connection.waitForEvent(isNews, deadline);
    }
}

LMX11Applications::Windows LMX11Applications::windowsInSight(const Windows& windows) const {
    Windows result;
    std::ranges::copy_if(windows, std::back_inserter(result), [this](xcb_window_t window) {
        const auto presence = m_index.presence(window);
        return presence && presence->isInSight;
    });
    return result;
}

/// The most recently used window; windows never used count by their place in the stack.
xcb_window_t LMX11Applications::mostRecentlyUsed(const Windows& windows) const {
    const auto lastActive = [this](xcb_window_t window) {
        const auto presence = m_index.presence(window);
        return presence ? presence->lastActive : 0;
    };
    return *std::ranges::max_element(windows, {}, lastActive);
}

void LMX11Applications::requestActivation(xcb_window_t window) {
    m_windowManager.activate(window, m_index.activeWindow());
}

bool LMX11Applications::activate(qint64 processIdentifier) {
    m_index.refresh();
    const LMX11Application* application = m_index.application(processIdentifier);
    if (application == nullptr || application->windows.isEmpty())
        return false;
    const QString identifier = application->bundleIdentifier;
    const auto isActive = [this, &identifier] {
        const LMX11Application* active = m_index.applicationOfWindow(m_index.activeWindow());
        return active != nullptr && active->bundleIdentifier == identifier;
    };
    if (isActive() && !isMinimized(m_index.activeWindow()))
        return true;
    const Windows shown = windowsInSight(application->windows);
    if (shown.isEmpty())
        return false;
    return requestActivation(mostRecentlyUsed(shown), isActive);
}

bool LMX11Applications::activateOwnWindow(quint64 nativeIdentifier) {
    const auto window = static_cast<xcb_window_t>(nativeIdentifier);
    const auto isActive = [this, window] { return m_index.activeWindow() == window; };
    m_index.refresh();
    return isActive() || requestActivation(window, isActive);
}

bool LMX11Applications::requestActivation(xcb_window_t window,
                                          const std::function<bool()>& isDone) {
    requestActivation(window);
    if (waitUntil(isDone, longestWait / 2))
        return true;
    // Managers refuse requests older than what they carry out at the moment (mutter). When they
    // are busy, they date a request without a time later than ours that came after it.
    requestActivation(window);
    return waitUntil(isDone, longestWait / 2);
}

bool LMX11Applications::hide(qint64 processIdentifier) {
    m_index.refresh();
    const LMX11Application* application = m_index.application(processIdentifier);
    if (application == nullptr)
        return false;
    const QString identifier = application->bundleIdentifier;
    const Windows windows = application->windows;
    for (const xcb_window_t window : windows) {
        if (isMinimized(window))
            continue;
        m_hidden[identifier].insert(window);
        m_windowManager.minimize(window);
    }
    return waitUntil(
        [this, &identifier] {
            const LMX11Application* found = m_index.applicationWithIdentifier(identifier);
            return found == nullptr || isHidden(*found);
        },
        longestWait);
}

bool LMX11Applications::unhide(qint64 processIdentifier) {
    m_index.refresh();
    const LMX11Application* application = m_index.application(processIdentifier);
    if (application == nullptr)
        return false;
    const QSet<xcb_window_t> hidden = m_hidden.take(application->bundleIdentifier);
    Windows windows = minimized(application->windows);
    windows.removeIf([&hidden](xcb_window_t window) { return !hidden.contains(window); });
    if (windows.isEmpty())
        return true;
    // From back to front, so that managers that raise what appears keep the order.
    std::ranges::reverse(windows);
    const xcb_window_t active = m_index.activeWindow();
    showWithoutFocus(windows);
    if (!minimized(windows).isEmpty()) {
        // With the focus rather than not at all.
        for (const xcb_window_t window : minimized(windows))
            requestActivation(window);
        waitUntil([&] { return minimized(windows).isEmpty(); }, longestWait);
    }
    if (m_index.activeWindow() != active && m_index.presence(active)) {
        requestActivation(active);
        waitUntil([&] { return m_index.activeWindow() == active; }, longestWait);
    }
    return minimized(windows).isEmpty();
}

/// openbox and xfwm4 let states be changed, but give the focus to what is mapped; marco, kwin and
/// mutter keep states to themselves, but map without focus.
void LMX11Applications::showWithoutFocus(const Windows& windows) {
    for (const xcb_window_t window : windows)
        m_windowManager.changeState(window, LMX11WindowManager::Change::Remove,
                                    m_connection.ewmhAtoms()._NET_WM_STATE_HIDDEN);
    m_windowManager.waitUntilCaughtUp(std::chrono::steady_clock::now() + longestWait);
    m_index.refresh();
    const Windows remaining = minimized(windows);
    if (remaining.isEmpty())
        return;
    const LMX11Reading reading = LMX11WindowReader(m_connection).readFrames(remaining);
    for (const LMX11Window& window : reading.windows)
        m_windowManager.map(window.identifier, window.desktop);
    m_windowManager.waitUntilCaughtUp(std::chrono::steady_clock::now() + longestWait);
    waitUntil([&] { return minimized(windows).isEmpty(); }, shortWait);
}

QImage LMX11Applications::iconForApplication(const QString& bundleIdentifier, int size) {
    const QImage installed = installedIcon(bundleIdentifier, size);
    if (!installed.isNull())
        return installed;
    m_index.refresh();
    const LMX11Application* application = m_index.applicationWithIdentifier(bundleIdentifier);
    if (application == nullptr)
        return {};
    const Windows windows = application->windows + application->otherWindows;
    for (const xcb_window_t window : windows) {
        const QImage icon = LMX11IconOfWindow(m_connection, window, size);
        if (!icon.isNull())
            return icon;
    }
    return {};
}

QImage LMX11Applications::installedIcon(const QString& bundleIdentifier, int size) {
    const auto entries = m_desktopEntries.table();
    const LMDesktopEntry* entry = entries->entryWithIdentifier(bundleIdentifier);
    if (entry == nullptr || entry->icon.isEmpty())
        return {};
    const QString themeName = iconThemeName();
    if (!m_iconTheme || themeName != m_iconThemeName) {
        m_iconThemeName = themeName;
        m_iconTheme = std::make_unique<LMIconTheme>(m_desktopEntries.dataDirectories(), themeName);
    }
    return LMSquareImageFromFile(m_iconTheme->pathOfIcon(entry->icon, size), size);
}

QString LMX11Applications::iconThemeName() {
    const QString name = LMX11StringSetting(m_connection, QStringLiteral("Net/IconThemeName"));
    return name.isEmpty() ? LMIconThemeNameFromSettings(LMConfigDirectories()) : name;
}

QString LMX11Applications::fileManagerIdentifier() {
    const QStringList desktops =
        qEnvironmentVariable("XDG_CURRENT_DESKTOP").split(QLatin1Char(':'), Qt::SkipEmptyParts);
    const auto entries = m_desktopEntries.table();
    const LMDesktopEntry* entry = LMDefaultApplication(
        QStringLiteral("inode/directory"),
        LMAssociationFiles(LMConfigDirectories(), m_desktopEntries.dataDirectories(), desktops),
        *entries);
    return entry != nullptr ? entry->identifier : QString();
}
