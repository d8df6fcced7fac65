// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/LMScreens.h"
#include "Platform/X11/LMX11ScreensWatcher.h"

/// The monitors of an X server, as RandR knows them.
class LMX11Screens final : public LMScreens {
    Q_OBJECT
public:
    explicit LMX11Screens(LMX11Connection& connection);

    /// Empty only when the connection is lost.
    QList<LMScreen> screens() override;

    /// Needs RandR 1.3.
    bool canArrangeDisplays() const override;
    std::unique_ptr<LMDisplayConfiguration> beginDisplayConfiguration() override;

    /// One space per monitor, for windows on all virtual desktops can be read and moved.
    QList<QStringList> spacesByMonitor() override;
    bool screensHaveSeparateSpaces() const override { return false; }

private:
    LMX11Connection& m_connection;
    LMX11ScreensWatcher m_watcher;
};
