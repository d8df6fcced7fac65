// SPDX-License-Identifier: MIT
#include "support/LMFakeDesktop.h"

#include <stdexcept>

QList<LMCapability> LMFakeDesktop::capabilities() const {
    return {{QStringLiteral("arrangeDisplays"), m_world.canArrangeDisplays},
            {QStringLiteral("hotKeys"), m_hotKeys.isAvailable()}};
}

void LMFakeDesktop::addApplication(const QString& bundleIdentifier, const QString& localizedName,
                                   LMActivationPolicy policy) {
    m_world.applications.append(
        {.bundleIdentifier = bundleIdentifier,
         .localizedName = localizedName.isNull() ? bundleIdentifier : localizedName,
         .processIdentifier = ++m_lastProcessIdentifier,
         .activationPolicy = policy});
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
        Q_EMIT m_applications->applicationLaunched(bundleIdentifier);
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
    m_world.setScreens(screens);
}
