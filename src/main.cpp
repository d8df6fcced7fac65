// SPDX-License-Identifier: MIT
// The composition root: the only place that names concrete back ends and joins the parts.
#include "CommandLine/LMClient.h"
#include "CommandLine/LMInvocation.h"
#include "Controller/LMApplicationDelegate.h"
#include "Controller/LMDesktopMessage.h"
#include "Controller/LMUnixSignals.h"
#include "LMExitGuard.h"
#include "LMFrontEnd.h"
#include "LMIdleMemory.h"
#include "Model/LMStoredWindowsStore.h"
#include "Platform/LMClock.h"
#include "Platform/LMDesktopFactory.h"
#include "Platform/LMEnvironment.h"
#include "Platform/LMKnownApplications.h"
#include "Platform/PackageKit/LMPackageKitUpdater.h"
#include "Platform/X11/LMX11Desktop.h"
#include "Utilities/LMFolders.h"
#include "Utilities/LMFormat.h"
#include "Utilities/LMLogger.h"
#include "Utilities/LMNotificationCenter.h"
#include "Utilities/LMTranslations.h"
#include "Utilities/LMUserDefaults.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <unistd.h>

namespace {

/// What is opened later must not take the place of a closed standard stream: messages would go to
/// the X server or the bus. Whoever reads from or writes to the place holder is refused as before.
void occupyClosedStandardStreams() {
    for (const int descriptor : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        if (fcntl(descriptor, F_GETFD) < 0 && errno == EBADF)
            open("/dev/null", descriptor == STDIN_FILENO ? O_WRONLY : O_RDONLY);
    }
}

int complain(const QString& why) {
    std::fprintf(stderr, "rook: %s\n", why.toUtf8().constData());
    return LMExitCode::Refused;
}

/// Hands over to the process that runs already. It answers when it has time; nobody waits for it.
int handOver(const QDBusConnection& bus) {
    constexpr int Milliseconds = 1000;
    bus.call(QDBusMessage::createMethodCall(LMDBusService::ServiceName, LMDBusService::ObjectPath,
                                            QStringLiteral("org.rook.Rook1"),
                                            QStringLiteral("Activate")),
             QDBus::Block, Milliseconds);
    complain(LMLocalized("Rook is running already"));
    return LMExitCode::Done;
}

/// Everything the resident process consists of besides the desktop, in the order it is built.
int serve(LMFrontEnd& frontEnd, LMDesktop& desktop, LMLogger& logger, LMUnixSignals& signals,
          const QDBusConnection& bus) {
    // Outlives the windows, the last of which may close as it is destroyed.
    LMIdleMemory idleMemory;
    frontEnd.setLastWindowClosedHandler([&idleMemory] { idleMemory.releaseSoon(); });
    LMUserDefaults userDefaults(LMUserDefaults::defaultFilePath(), logger);
    LMFolders folders = LMFolders::forCurrentUser(logger);
    LMSystemClock clock;
    LMNotificationCenter notificationCenter;
    const auto knownApplications =
        LMKnownApplications::fromPropertyList(QStringLiteral(":/rook/Known Applications.plist"));
    LMEnvironment environment{desktop, userDefaults,       folders,          clock,
                              logger,  notificationCenter, knownApplications};
    LMPackageKitUpdater updater(QStringLiteral("rook"), &QDBusConnection::systemBus, logger);
    environment.updater = &updater;
    LMStoredWindowsStore store(environment);
    const auto userInterface = frontEnd.makeUserInterface(environment, store, clock);
    LMApplicationDelegate delegate(environment, store, *userInterface);
    QObject::connect(&signals, &LMUnixSignals::terminationRequested, &delegate,
                     [&delegate] { delegate.quit(); });
    int exitCode = LMExitCode::Done;
    QObject::connect(&delegate, &LMApplicationDelegate::quitRequested, qApp,
                     [&exitCode](const QString& reason) {
                         if (!reason.isEmpty())
                             exitCode = complain(reason);
                         // Not quit(), which does nothing while an alert of the launch has the
                         // only event loop.
                         QCoreApplication::exit(LMExitCode::Done);
                     });
    delegate.dbusService().registerOn(bus);
    frontEnd.setCommitDataHandler([&delegate] { delegate.commitData(); });
    // The toolkit leaves by exit() when the X server dies and it notices first.
    const LMExitGuard exitGuard([&delegate] { delegate.cleanAndSave(); });
    if (delegate.finishLaunching()) {
        idleMemory.releaseSoon();
        QCoreApplication::exec();
    }
    delegate.applicationWillTerminate();
    if (!delegate.launchFailure().isEmpty())
        exitCode = complain(delegate.launchFailure());
    else if (!store.saveFailure().isEmpty())
        exitCode = complain(store.saveFailure());
    delegate.dbusService().unregister();
    return exitCode;
}

std::vector<LMBackend> backends() {
    return {LMX11Backend()};
}

/// Whether there is a desktop that windows can be shown on. The toolkit aborts where there is none.
bool canShowWindows(const LMInvocation& invocation) {
    if (invocation.kind != LMInvocation::Kind::Resident || invocation.isHeadless)
        return false;
    const auto all = backends();
    const auto environment = QProcessEnvironment::systemEnvironment();
    QString reason;
    return std::any_of(all.begin(), all.end(), [&](const LMBackend& backend) {
        return backend.isAvailable(environment, &reason);
    });
}

int runResident(LMFrontEnd& frontEnd, LMUnixSignals& signals, const LMInvocation& invocation) {
    signals.listen();
    LMLogger logger;
    if (invocation.isVerbose)
        logger.setLevel(LMLogLevel::Debug);
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return complain(LMLocalized("there is no session bus; Rook cannot be reached without one"));
    // The name first: of two starts at the same moment only one may go on to the store.
    if (!bus.registerService(LMDBusService::ServiceName))
        return handOver(bus);

    QString reason;
    const auto desktop =
        LMCreateDesktop(backends(), QProcessEnvironment::systemEnvironment(), logger, &reason);
    if (!desktop) {
        // Whoever starts Rook from a menu sees no terminal.
        constexpr int Milliseconds = 2000;
        if (!invocation.isHeadless)
            bus.call(LMDesktopMessage(LMLocalized("Rook cannot run here"), reason), QDBus::Block,
                     Milliseconds);
        return complain(reason);
    }
    return serve(frontEnd, *desktop, logger, signals, bus);
}

} // namespace

int main(int argc, char* argv[]) {
    occupyClosedStandardStreams();
    QCoreApplication::setApplicationName(QStringLiteral("rook"));
    QCoreApplication::setApplicationVersion(QStringLiteral(ROOK_VERSION));
    const LMInvocation invocation = LMParseCommandLine(argc, argv);
    if (invocation.kind == LMInvocation::Kind::Resident) {
        LMUnixSignals signals; // Before any thread is made, so that all of them inherit the mask.
        LMFrontEnd frontEnd(argc, argv, canShowWindows(invocation));
        return runResident(frontEnd, signals, invocation);
    }
    const QCoreApplication application(argc, argv);
    const LMTranslations translations(LMTranslations::Scope::Program);
    if (invocation.kind == LMInvocation::Kind::Explain)
        return LMExplainCommandLine(argc, argv);
    return LMClient(QDBusConnection::sessionBus(), stdout, stderr).run(invocation);
}
