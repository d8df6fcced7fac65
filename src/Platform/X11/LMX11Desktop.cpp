// SPDX-License-Identifier: MIT
#include "Platform/X11/LMX11Desktop.h"

#include "Platform/LMDesktopEntries.h"
#include "Platform/X11/LMX11Accessibility.h"
#include "Platform/X11/LMX11ApplicationIndex.h"
#include "Platform/X11/LMX11Applications.h"
#include "Platform/X11/LMX11Connection.h"
#include "Platform/X11/LMX11HotKeys.h"
#include "Platform/X11/LMX11NormalFrames.h"
#include "Platform/X11/LMX11Screens.h"
#include "Platform/X11/LMX11Settings.h"
#include "Platform/X11/LMX11SystemTray.h"
#include "Platform/X11/LMX11WindowManager.h"
#include "Platform/X11/LMX11WindowServer.h"
#include "Platform/X11/LMX11WindowStates.h"
#include "Utilities/LMFormat.h"

/// In the order in which they are built on each other.
struct LMX11Desktop::Parts {
    explicit Parts(std::unique_ptr<LMX11Connection> opened)
        : connection(std::move(opened)), desktopEntries(), windowManager(*connection),
          index(*connection, desktopEntries), normalFrames(*connection, index),
          accessibility(*connection, index, windowManager, normalFrames),
          windowServer(*connection, index),
          windowStates(*connection, index, windowManager, accessibility, normalFrames),
          screens(*connection), applications(*connection, index, desktopEntries, windowManager),
          hotKeys(*connection), systemTray(*connection) {}

    std::unique_ptr<LMX11Connection> connection;
    LMDesktopEntries desktopEntries;
    LMX11WindowManager windowManager;
    LMX11ApplicationIndex index;
    LMX11NormalFrames normalFrames;
    LMX11Accessibility accessibility;
    LMX11WindowServer windowServer;
    LMX11WindowStates windowStates;
    LMX11Screens screens;
    LMX11Applications applications;
    LMX11HotKeys hotKeys;
    LMX11SystemTray systemTray;
};

std::unique_ptr<LMX11Desktop> LMX11Desktop::open(const LMLogger& logger, QString* reason) {
    std::unique_ptr<LMX11Connection> connection = LMX11Connection::open(QString(), logger, reason);
    if (!connection)
        return nullptr;
    return std::unique_ptr<LMX11Desktop>(
        new LMX11Desktop(std::make_unique<Parts>(std::move(connection))));
}

LMX11Desktop::LMX11Desktop(std::unique_ptr<Parts> parts) : d(std::move(parts)) {
    connect(d->connection.get(), &LMX11Connection::connectionLost, this,
            &LMDesktop::connectionLost);
    connect(&d->systemTray, &LMX11SystemTray::appeared, this, &LMDesktop::systemTrayAppeared);
}

LMX11Desktop::~LMX11Desktop() = default;

QString LMX11Desktop::backendName() const {
    return QStringLiteral("X11");
}

LMAccessibility& LMX11Desktop::accessibility() {
    return d->accessibility;
}

LMWindowServer& LMX11Desktop::windowServer() {
    return d->windowServer;
}

LMWindowStates& LMX11Desktop::windowStates() {
    return d->windowStates;
}

LMScreens& LMX11Desktop::screens() {
    return d->screens;
}

LMApplications& LMX11Desktop::applications() {
    return d->applications;
}

LMHotKeys& LMX11Desktop::hotKeys() {
    return d->hotKeys;
}

LMPermission LMX11Desktop::checkPermission() {
    return d->windowManager.checkPermission();
}

QList<LMCapability> LMX11Desktop::capabilities() const {
    return {{QStringLiteral("arrangeDisplays"), d->screens.canArrangeDisplays()},
            {QStringLiteral("hotKeys"), d->hotKeys.isAvailable()}};
}

bool LMX11Desktop::hasSystemTray() {
    return d->systemTray.isAvailable();
}

LMAppearance LMX11Desktop::appearance() {
    LMAppearance appearance =
        LMAppearanceFromTheme(LMX11StringSetting(*d->connection, QStringLiteral("Net/ThemeName")),
                              LMX11StringSetting(*d->connection, QStringLiteral("Gtk/FontName")));
    appearance.isComposited = LMX11IsComposited(*d->connection);
    return appearance;
}

QString LMX11Desktop::windowManagerName() const {
    return d->windowManager.name();
}

namespace {

bool isX11Session(const QProcessEnvironment& environment, QString* reason) {
    const auto has = [&](const char* variable) {
        return !environment.value(QLatin1String(variable)).isEmpty();
    };
    const QString sessionType = environment.value(QStringLiteral("XDG_SESSION_TYPE"));
    if (has("WAYLAND_DISPLAY") || sessionType == QStringLiteral("wayland")) {
        *reason = LMLocalized("Wayland sessions are not supported yet: most windows are out of "
                              "reach there. Log in to an X11 session.");
        return false;
    }
    if (!has("DISPLAY")) {
        *reason = LMLocalized("There is no X server to connect to: DISPLAY is not set.");
        return false;
    }
    xcb_connection_t* connection = xcb_connect(nullptr, nullptr);
    const bool answers = xcb_connection_has_error(connection) == 0;
    xcb_disconnect(connection);
    if (!answers)
        *reason = LMLocalized("The X server does not answer.");
    return answers;
}

} // namespace

LMBackend LMX11Backend() {
    return {QStringLiteral("X11"), isX11Session,
            [](LMLogger& logger, QString* reason) -> std::unique_ptr<LMDesktop> {
                return LMX11Desktop::open(logger, reason);
            }};
}
