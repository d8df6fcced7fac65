// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/LMDesktop.h"
#include "support/LMFakeAccessibility.h"
#include "support/LMFakeApplications.h"
#include "support/LMFakeHotKeys.h"
#include "support/LMFakeScreens.h"
#include "support/LMFakeWindowServer.h"
#include "support/LMFakeWindowStates.h"
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
    LMFakeDesktop();

    QString backendName() const override { return QStringLiteral("Fake"); }
    LMFakeAccessibility& accessibility() override { return m_accessibility; }
    LMFakeWindowServer& windowServer() override { return m_windowServer; }
    LMFakeWindowStates& windowStates() override { return m_windowStates; }
    LMFakeScreens& screens() override { return m_screens; }
    LMFakeApplications& applications() override { return m_applications; }
    LMFakeHotKeys& hotKeys() override { return m_hotKeys; }
    LMPermission checkPermission() override;
    QList<LMCapability> capabilities() const override;
    QString windowManagerName() const override;
    bool hasSystemTray() override { return false; }
    LMAppearance appearance() override { return {}; }

    // --- for tests ----------------------------------------------------------------------------
    /// Everything there is; change it freely.
    LMFakeWorld& world() { return m_world; }
    LMEventLog& log() { return m_world.log; }

    /// Starts an application. Without a name it gets the identifier for a name, without process
    /// identifiers one that is new. It counts as running from its first window on. Answers the
    /// process identifier that stands for it.
    qint64 addApplication(const QString& bundleIdentifier, const QString& localizedName = {},
                          const QList<qint64>& processIdentifiers = {},
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
    void announceScreenChange() { Q_EMIT m_screens.screenParametersChanged(); }

    /// Breaks the connection: lists are empty from now on and calls fail.
    void loseConnection(const QString& reason);

private:
    LMFakeWorld m_world;
    LMFakeAccessibility m_accessibility;
    LMFakeWindowServer m_windowServer;
    LMFakeWindowStates m_windowStates;
    LMFakeScreens m_screens;
    LMFakeApplications m_applications;
    LMFakeHotKeys m_hotKeys;
    quint32 m_lastWindowNumber = 0;
    qint64 m_lastProcessIdentifier = 1000;
};
