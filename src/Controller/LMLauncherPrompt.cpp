// SPDX-License-Identifier: MIT
#include "Controller/LMLauncherPrompt.h"

#include "Controller/LMUserInterface.h"
#include "Platform/LMDesktopEntry.h"
#include "Platform/LMEnvironment.h"
#include "Utilities/LMBaseDirectories.h"
#include "Utilities/LMFormat.h"
#include "Utilities/LMLogger.h"
#include "Utilities/LMNotificationCenter.h"
#include "Utilities/LMUserDefaults.h"
#include "Utilities/LMUserDefaultsKeys.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <algorithm>

namespace {

constexpr QLatin1String Entry{"/applications/org.rook.Rook.desktop"};
constexpr QLatin1String Icon{"/icons/hicolor/128x128/apps/org.rook.Rook.png"};

QByteArray resource(const QString& name) {
    QFile file(QStringLiteral(":/rook/") + name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// The entry that packages install, starting this very file instead of what the path finds.
QByteArray entryFor(const QString& executable, const QString& name) {
    QString asString = executable;
    asString.replace(u'\\', QLatin1String("\\\\")).replace(u'\n', QLatin1String("\\n"));
    QByteArray entry = resource(name);
    return entry.replace("\nExec=rook", "\nExec=" + LMExecOfArgument(executable).toUtf8())
        .replace("\nTryExec=rook", "\nTryExec=" + asString.toUtf8());
}

} // namespace

void LMOfferLauncher(LMEnvironment& environment, LMUserInterface& userInterface) {
    constexpr QLatin1String Key = LMUserDefaultsKeys::moveToApplicationsFolderAlertSuppress;
    const QString executable = QCoreApplication::applicationFilePath();
    if (!userInterface.canShowWindows() || environment.userDefaults.boolForKey(Key) ||
        LMHasLauncher(executable))
        return;
    userInterface.activateIgnoringOtherApplications();
    const LMAlertAnswer answer = userInterface.runModal(
        {LMLocalized("Add Rook to your applications?"),
         LMFormat(LMLocalized("Rook runs from “%@”, where your desktop does not look for "
                              "programs. A launcher lets you start it like any other."),
                  {QFileInfo(executable).path()}),
         {LMLocalized("Add Launcher"), LMLocalized("Not Now")}});
    environment.userDefaults.setObject(Key, true);
    environment.notificationCenter.postNotification(LMNotification::SupressedAlertsChanged);
    if (answer.buttonCode != LMAlertAnswer::FirstButton)
        return;
    if (const QString failure = LMWriteLauncher(executable); !failure.isNull())
        environment.logger.error(QStringLiteral("Launcher not written: %@"), {failure});
}

bool LMHasLauncher(const QString& executable) {
    // "<prefix>/bin/rook" belongs to "<prefix>/share", whatever $XDG_DATA_DIRS says.
    QStringList directories = LMDataDirectories();
    directories.append(QFileInfo(executable).path() + QStringLiteral("/../share"));
    return std::any_of(directories.begin(), directories.end(), [](const QString& directory) {
        return QFileInfo::exists(directory + Entry);
    });
}

QString LMWriteFileAtomically(const QString& path, const QByteArray& data) {
    if (const auto made = LMCreateDirectory(QFileInfo(path).path()); !made)
        return QString::fromStdString(made.error().message());
    // What the desktop starts by itself nobody else may write, whatever the umask.
    constexpr auto OwnerOnly = QFileDevice::ReadOwner | QFileDevice::WriteOwner;
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly) && file.setPermissions(OwnerOnly) &&
        file.write(data) == data.size() && file.commit())
        return {};
    return file.errorString();
}

QByteArray LMLauncherEntry(const QString& executable) {
    return entryFor(executable, QStringLiteral("org.rook.Rook.desktop"));
}

QByteArray LMAutostartEntry(const QString& executable) {
    return entryFor(executable, QStringLiteral("org.rook.Rook.autostart.desktop"));
}

QString LMWriteLauncher(const QString& executable) {
    const QString directory = LMDataHomeDirectory();
    if (directory.isNull())
        return QStringLiteral("there is no home directory");
    const QByteArray icon = resource(QStringLiteral("Rook-128.png"));
    if (!icon.isEmpty())
        LMWriteFileAtomically(directory + Icon, icon);
    return LMWriteFileAtomically(directory + Entry, LMLauncherEntry(executable));
}
