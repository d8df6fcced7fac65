// SPDX-License-Identifier: MIT
#include "LMFrontEnd.h"

#include "Controller/LMWindowlessUserInterface.h"
#include "Platform/LMClock.h"
#include "Platform/LMEnvironment.h"
#include "UserInterface/LMWidgetUserInterface.h"

#include <QApplication>
#include <QIcon>
#include <QLocale>
#include <QSessionManager>

#include <malloc.h>

namespace {

/// The theme plug-in for GTK desktops loads all of GTK: 70 MB for a program that waits in the panel
/// and shows a small window now and then. Plasma's settings are read by Qt itself, and a theme that
/// the user names on purpose is used.
bool wantsDesktopSettings() {
    const QByteArrayList desktops = qgetenv("XDG_CURRENT_DESKTOP").toUpper().split(':');
    return desktops.contains("KDE") || qEnvironmentVariableIsSet("QT_QPA_PLATFORMTHEME");
}

/// Pictures of screens and windows take megabytes for a moment. Once the first of them is freed,
/// the C library would keep room for the next one for good, unless its threshold is set.
void returnLargeBlocksWhenFreed() {
#ifdef M_MMAP_THRESHOLD
    mallopt(M_MMAP_THRESHOLD, 1024 * 1024);
#endif
}

QIcon applicationIcon() {
    QIcon icon;
    for (const int edge : {16, 24, 32, 48, 64, 128, 256})
        icon.addFile(QStringLiteral(":/rook/Rook-%1.png").arg(edge));
    return icon;
}

std::unique_ptr<QCoreApplication> makeApplication(int& argumentCount, char** arguments,
                                                  bool showsWindows) {
    if (!showsWindows)
        return std::make_unique<QCoreApplication>(argumentCount, arguments);
    QApplication::setDesktopSettingsAware(wantsDesktopSettings());
    QApplication::setDesktopFileName(QStringLiteral("org.rook.Rook"));
    QApplication::setQuitOnLastWindowClosed(false);
    auto application = std::make_unique<QApplication>(argumentCount, arguments);
    QApplication::setWindowIcon(applicationIcon());
    return application;
}

/// Windows stand the way the texts in them are read.
std::unique_ptr<LMTranslations> loadTranslations(bool showsWindows) {
    using Scope = LMTranslations::Scope;
    auto translations =
        std::make_unique<LMTranslations>(showsWindows ? Scope::ProgramAndToolkit : Scope::Program);
    if (showsWindows && QLocale(translations->language()).textDirection() == Qt::RightToLeft)
        QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    return translations;
}

LMBundleInformation bundleInformation() {
    return {QStringLiteral("Rook"), QStringLiteral(":/rook/Rook-256.png"),
            QCoreApplication::applicationVersion(), QStringLiteral(ROOK_BUILD)};
}

} // namespace

LMFrontEnd::LMFrontEnd(int argc, char** argv, bool showsWindows)
    : m_arguments(argv, argv + argc), m_showsWindows(showsWindows) {
    // The toolkit must speak to the same server as the desktop's back end, whatever the environment
    // prefers.
    if (showsWindows)
        for (std::string& word : m_platformOption)
            m_arguments.push_back(word.data());
    m_argumentCount = int(m_arguments.size());
    m_arguments.push_back(nullptr);
    returnLargeBlocksWhenFreed();
    m_application = makeApplication(m_argumentCount, m_arguments.data(), showsWindows);
    m_translations = loadTranslations(showsWindows);
}

LMFrontEnd::~LMFrontEnd() = default;

std::unique_ptr<LMUserInterface> LMFrontEnd::makeUserInterface(LMEnvironment& environment,
                                                               LMStoredWindowsStore& store,
                                                               LMSystemClock& clock) {
    if (!m_showsWindows)
        return std::make_unique<LMWindowlessUserInterface>(environment.logger);
    using Look = LMWidgetUserInterface::Look;
    auto userInterface = std::make_unique<LMWidgetUserInterface>(
        environment, store, bundleInformation(),
        wantsDesktopSettings() ? Look::OfToolkit : Look::OfDesktop);
    clock.setSleepObserver([widgets = userInterface.get()] { widgets->animateProgress(); });
    return userInterface;
}

void LMFrontEnd::setCommitDataHandler(std::function<void()> handler) {
    auto* application = qobject_cast<QGuiApplication*>(m_application.get());
    if (application == nullptr)
        return;
    QObject::connect(
        application, &QGuiApplication::commitDataRequest, application,
        [save = std::move(handler)](QSessionManager&) { save(); }, Qt::DirectConnection);
    // The desktop's autostart brings Rook back, not the saved session: once is enough.
    QObject::connect(
        application, &QGuiApplication::saveStateRequest, application,
        [](QSessionManager& manager) { manager.setRestartHint(QSessionManager::RestartNever); },
        Qt::DirectConnection);
}

void LMFrontEnd::setLastWindowClosedHandler(std::function<void()> handler) {
    if (auto* application = qobject_cast<QGuiApplication*>(m_application.get()))
        QObject::connect(application, &QGuiApplication::lastWindowClosed, application,
                         std::move(handler));
}
