// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/LMDesktop.h"
#include "Platform/LMDesktopFactory.h"

#include <memory>

class LMLogger;

/// The desktop of an X11 session: X server, window manager (EWMH, ICCCM), monitors (RandR).
class LMX11Desktop final : public LMDesktop {
    Q_OBJECT
public:
    /// Connects to the display that the environment names. Null when that fails, with a plain
    /// sentence in reason. The logger must outlive the desktop.
    static std::unique_ptr<LMX11Desktop> open(const LMLogger& logger, QString* reason);
    ~LMX11Desktop() override;

    QString backendName() const override;
    LMAccessibility& accessibility() override;
    LMWindowServer& windowServer() override;
    LMWindowStates& windowStates() override;
    LMScreens& screens() override;
    LMApplications& applications() override;
    LMHotKeys& hotKeys() override;

    /// Trusted when the server answers and a window manager runs that supports what moving windows
    /// needs.
    LMPermission checkPermission() override;
    QList<LMCapability> capabilities() const override;
    QString windowManagerName() const override;
    bool hasSystemTray() override;
    LMAppearance appearance() override;

private:
    struct Parts;
    explicit LMX11Desktop(std::unique_ptr<Parts> parts);

    std::unique_ptr<Parts> d;
};

/// Serves X11 sessions. Declines Wayland sessions, in which only a part of the windows could be
/// reached, and sessions without a display that answers.
LMBackend LMX11Backend();
