// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/LMDesktop.h"
#include "support/LMFakeAccessibility.h"
#include "support/LMFakeHotKeys.h"
#include "support/LMFakeServices.h"
#include "support/LMFakeWorld.h"

/// A desktop in memory. It keeps the contracts of a real one, and a second interface lets tests
/// furnish it, break it and see what was asked of it.
///
/// It starts with one screen of 1440 by 900 pixels, no application and full permission.
///
///     LMFakeDesktop desktop;
///     desktop.addApplication(u"org.editor"_qs);
///     const LMElement window = desktop.addWindow(u"org.editor"_qs, {.title = u"Draft"_qs});
///     desktop.window(window).ignoredSizeChanges = 1;
class LMFakeDesktop final : public LMDesktop {
    Q_OBJECT
public:
    LMFakeDesktop() { setScreens({QRectF(0, 0, 1440, 900)}); }

    QString backendName() const override { return QStringLiteral("Fake"); }
    LMFakeAccessibility& accessibility() override { return m_accessibility; }
    LMWindowServer& windowServer() override { return *m_windowServer; }
    LMWindowStates& windowStates() override { return *m_windowStates; }
    LMScreens& screens() override { return *m_screens; }
    LMApplications& applications() override { return *m_applications; }
    LMFakeHotKeys& hotKeys() override { return m_hotKeys; }
    LMPermission checkPermission() override { return m_world.permission; }
    QList<LMCapability> capabilities() const override;
    QString windowManagerName() const override { return QStringLiteral("Fake 1.0"); }
    bool hasSystemTray() override { return false; }
    LMAppearance appearance() override { return {}; }

    // --- for tests ----------------------------------------------------------------------------
    /// Everything there is; change it freely.
    LMFakeWorld& world() { return m_world; }
    QStringList& log() { return m_world.log; }

    /// Starts an application. Without a name it gets the identifier for a name. It counts as
    /// running from its first window on.
    void addApplication(const QString& bundleIdentifier, const QString& localizedName = {},
                        LMActivationPolicy policy = LMActivationPolicy::Regular);
    /// Ends it and closes its windows.
    void removeApplication(const QString& bundleIdentifier);

    /// Opens a window of an application that was added, behind all others: windows are listed in
    /// the order in which they were added. A window without a virtual desktop comes to the current
    /// one. Announces the launch with the first window.
    LMElement addWindow(const QString& bundleIdentifier, LMFakeWindow window = {});
    /// Valid until the next window is added or removed.
    LMFakeWindow& window(const LMElement& element);
    void removeWindow(const LMElement& element) {
        m_world.removeWindow(quint32(element.identifier));
    }
    void raise(const LMElement& element) { m_world.raise(quint32(element.identifier)); }

    /// Gives the window the focus and brings it to the front; a null element takes the focus from
    /// all.
    void focus(const LMElement& element);
    /// Makes an application with windows the active one without a trace in the log.
    void makeActive(const QString& bundleIdentifier);

    /// A screen for each rectangle in global display coordinates, the main one first. Says nothing.
    void setScreens(const QList<QRectF>& displayBounds);
    void announceScreenChange() { Q_EMIT m_screens->screenParametersChanged(); }

private:
    LMFakeWorld m_world;
    LMFakeAccessibility m_accessibility{m_world};
    std::unique_ptr<LMWindowServer> m_windowServer = LMMakeFakeWindowServer(m_world);
    std::unique_ptr<LMWindowStates> m_windowStates =
        LMMakeFakeWindowStates(m_world, m_accessibility);
    std::unique_ptr<LMScreens> m_screens = LMMakeFakeScreens(m_world);
    std::unique_ptr<LMApplications> m_applications = LMMakeFakeApplications(m_world);
    LMFakeHotKeys m_hotKeys;
    quint32 m_lastWindowNumber = 0;
    qint64 m_lastProcessIdentifier = 1000;
};
