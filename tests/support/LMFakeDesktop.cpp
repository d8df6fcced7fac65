// SPDX-License-Identifier: MIT
#include "support/LMFakeDesktop.h"

#include <stdexcept>

LMFakeDesktop::LMFakeDesktop()
    : m_accessibility(m_world), m_windowServer(m_world), m_windowStates(m_world, m_accessibility),
      m_screens(m_world), m_applications(m_world) {
    setScreens({QRectF(0, 0, 1440, 900)});
}

LMPermission LMFakeDesktop::checkPermission() {
    if (!m_world.isConnected)
        return {false, {QStringLiteral("The connection is lost.")}};
    return m_world.permission;
}

QList<LMCapability> LMFakeDesktop::capabilities() const {
    return {{QStringLiteral("arrangeDisplays"), m_world.canArrangeDisplays},
            {QStringLiteral("hotKeys"), m_hotKeys.isAvailable()}};
}

QString LMFakeDesktop::windowManagerName() const {
    return m_world.isConnected ? QStringLiteral("Fake 1.0") : QString();
}

qint64 LMFakeDesktop::addApplication(const QString& bundleIdentifier, const QString& localizedName,
                                     const QList<qint64>& processIdentifiers,
                                     LMActivationPolicy policy) {
    m_world.applications.append(
        {.bundleIdentifier = bundleIdentifier,
         .localizedName = localizedName.isNull() ? bundleIdentifier : localizedName,
         .processIdentifiers = processIdentifiers,
         .activationPolicy = policy});
    QList<qint64>& processes = m_world.applications.last().processIdentifiers;
    if (processes.isEmpty())
        processes = {++m_lastProcessIdentifier};
    return processes.first();
}

void LMFakeDesktop::removeApplication(const QString& bundleIdentifier) {
    for (const quint32 number : m_world.windowsOf(*m_world.application(bundleIdentifier)))
        m_world.removeWindow(number);
    m_world.applications.removeIf(
        [&](const auto& other) { return other.bundleIdentifier == bundleIdentifier; });
}

LMElement LMFakeDesktop::addWindow(const QString& bundleIdentifier, LMFakeWindow window) {
    const LMFakeApplication* application = m_world.application(bundleIdentifier);
    if (!application)
        throw std::logic_error("no such application: " + bundleIdentifier.toStdString());
    const bool isLaunch = m_world.windowsOf(*application).isEmpty();
    window.bundleIdentifier = bundleIdentifier;
    if (!window.state.desktop && !window.state.isOnAllDesktops)
        window.state.desktop = m_world.currentDesktop;
    const quint32 number = ++m_lastWindowNumber;
    m_world.windows.insert(number, window);
    m_world.stacking.append(number);
    if (isLaunch)
        Q_EMIT m_applications.applicationLaunched(bundleIdentifier);
    return {LMElement::Kind::Window, number, 0};
}

LMFakeWindow& LMFakeDesktop::window(const LMElement& element) {
    const auto window = m_world.windows.find(quint32(element.identifier));
    if (window == m_world.windows.end())
        throw std::logic_error("no such window");
    return *window;
}

void LMFakeDesktop::focus(const LMElement& element) {
    m_world.focusedWindow.reset();
    if (element.isNull())
        return;
    raise(element);
    m_world.focusedWindow = quint32(element.identifier);
}

void LMFakeDesktop::makeActive(const QString& bundleIdentifier) {
    const QList<quint32> windows = m_world.windowsOf(*m_world.application(bundleIdentifier));
    focus({LMElement::Kind::Window, windows.first(), 0});
}

void LMFakeDesktop::setScreens(const QList<QRectF>& displayBounds) {
    QList<LMScreen> screens;
    for (const QRectF& bounds : displayBounds)
        screens.emplaceBack().displayBounds = bounds;
    m_screens.setScreens(screens);
}

void LMFakeDesktop::loseConnection(const QString& reason) {
    m_world.isConnected = false;
    Q_EMIT connectionLost(reason);
}
