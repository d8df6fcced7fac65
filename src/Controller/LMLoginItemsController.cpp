// SPDX-License-Identifier: MIT
#include "Controller/LMLoginItemsController.h"

#include "Controller/LMLauncherPrompt.h"
#include "Platform/LMDesktopEntry.h"
#include "Platform/LMEnvironment.h"
#include "Platform/LMKeyFile.h"
#include "Utilities/LMBaseDirectories.h"
#include "Utilities/LMFormat.h"
#include "Utilities/LMNotificationCenter.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSet>
#include <QStandardPaths>

#include <algorithm>
#include <chrono>

using namespace std::chrono_literals;

namespace {

const QString& entryName() {
    static const QString name = QStringLiteral("org.rook.Rook.desktop");
    return name;
}

const QString& group() {
    static const QString name = QStringLiteral("Desktop Entry");
    return name;
}

/// The desktops that are running, by the names that entries use.
bool isForThisDesktop(const LMKeyFile& entry) {
    const QStringList desktops =
        qEnvironmentVariable("XDG_CURRENT_DESKTOP").split(QLatin1Char(':'), Qt::SkipEmptyParts);
    const auto names = [&](const char* key) {
        const QStringList list = entry.list(group(), QLatin1String(key));
        return std::ranges::any_of(desktops, [&](const auto& name) { return list.contains(name); });
    };
    const bool isChosen = !entry.value(group(), QStringLiteral("OnlyShowIn")).isEmpty();
    return isChosen ? names("OnlyShowIn") : !names("NotShowIn");
}

/// With the path a program is found under now; null when it is not.
QString canonicalProgram(const QString& program) {
    const QString path =
        QDir::isAbsolutePath(program) ? program : QStandardPaths::findExecutable(program);
    return QFileInfo(path).canonicalFilePath();
}

bool isSwitchedOn(const LMKeyFile& entry) {
    const QString tried = entry.value(group(), QStringLiteral("TryExec"));
    const QString enabled = entry.value(group(), QStringLiteral("X-GNOME-Autostart-enabled"));
    return !entry.isTrue(group(), QStringLiteral("Hidden")) &&
           enabled.compare(QLatin1String("false"), Qt::CaseInsensitive) != 0 &&
           (tried.isEmpty() || !canonicalProgram(tried).isEmpty()) && isForThisDesktop(entry);
}

/// What a session starts for an entry: no files, and a percent sign is written twice.
QStringList commandLine(const LMKeyFile& entry) {
    QStringList words = LMArgumentsOfExec(entry.value(group(), QStringLiteral("Exec")));
    words.removeIf([](const QString& word) {
        return word.size() == 2 && word.startsWith(QLatin1Char('%')) && word.at(1).isLetter();
    });
    return words.replaceInStrings(QStringLiteral("%%"), QStringLiteral("%"));
}

/// The files of the folder that are entries; none when there is no such folder.
QStringList entryNames(const QString& folder) {
    return QDir(folder).entryList({QStringLiteral("*.desktop")}, QDir::Files | QDir::Hidden);
}

} // namespace

LMLoginItemsController::LMLoginItemsController(LMEnvironment& environment)
    : LMLoginItemsController(environment, QCoreApplication::applicationFilePath(),
                             LMConfigHomeDirectory().isNull() ? QStringList()
                                                              : LMConfigDirectories()) {}

LMLoginItemsController::LMLoginItemsController(LMEnvironment& environment, QString executable,
                                               const QStringList& configDirectories)
    : m_environment(environment), m_executable(std::move(executable)) {
    for (const QString& directory : configDirectories)
        m_folders.append(directory + QStringLiteral("/autostart"));
    m_settling.setSingleShot(true);
    m_settling.setInterval(100ms);
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, this, [this] { m_settling.start(); });
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, [this](const QString& path) {
        // Much happens in the folders above that is none of our business.
        const QStringList watched = m_watcher.directories(), wanted = nearestFolders();
        if (m_folders.contains(path) ||
            QSet(watched.begin(), watched.end()) != QSet(wanted.begin(), wanted.end()))
            m_settling.start();
    });
    connect(&m_settling, &QTimer::timeout, this, [this] {
        renewWatch();
        m_environment.notificationCenter.postNotification(LMNotification::LoginItemsChanged);
    });
    renewWatch();
}

// --- finding -------------------------------------------------------------------------------

QString LMLoginItemsController::loginItemForCurrentApplication() const {
    QSet<QString> masked;
    for (const QString& folder : m_folders) {
        const QStringList names = entryNames(folder);
        for (const QString& name : names) {
            const QString path = folder + QLatin1Char('/') + name;
            if (!masked.contains(name) && startsThisProgram(path))
                return path;
        }
        masked.unite({names.begin(), names.end()});
    }
    return {};
}

bool LMLoginItemsController::startsThisProgram(const QString& path) const {
    const auto entry = LMKeyFile::fromFile(path);
    if (!entry || !isSwitchedOn(*entry))
        return false;
    QStringList arguments = commandLine(*entry);
    const QString program =
        arguments.isEmpty() ? QString() : canonicalProgram(arguments.takeFirst());
    if (program.isEmpty()) // It was there once; the session starts nothing.
        return false;
    if (QFileInfo(path).fileName() == entryName())
        return true;
    if (program != QFileInfo(m_executable).canonicalFilePath())
        return false;
    // With a command it would only talk to the resident process.
    return std::ranges::all_of(
        arguments, [](const QString& word) { return word.startsWith(QLatin1Char('-')); });
}

QString LMLoginItemsController::userFile(const QString& name) const {
    return m_folders.constFirst() + QLatin1Char('/') + name;
}

/// The first of the system's entries with that name, which the user's would mask.
QString LMLoginItemsController::systemFile(const QString& name) const {
    for (const QString& folder : m_folders.mid(1)) {
        const QString path = folder + QLatin1Char('/') + name;
        if (QFileInfo::exists(path))
            return path;
    }
    return {};
}

// --- changing ------------------------------------------------------------------------------

QString LMLoginItemsController::addCurrentApplicationToLoginItems() {
    if (m_folders.isEmpty())
        return LMLocalized("There is no home directory.");
    if (isCurrentApplicationInLoginItems())
        return {};
    const QString path = userFile(entryName());
    // Nothing is written through a link, and the system's entry need only be unmasked.
    if (QFileInfo(path).isSymLink() || !systemFile(entryName()).isNull())
        QFile::remove(path);
    return isCurrentApplicationInLoginItems()
               ? QString()
               : LMWriteFileAtomically(path, LMAutostartEntry(m_executable));
}

QString LMLoginItemsController::removeCurrentApplicationFromLoginItems() {
    QStringList hidden;
    for (;;) {
        const QString path = loginItemForCurrentApplication();
        if (path.isNull() || hidden.contains(path))
            return {};
        hidden.append(path);
        if (const QString failure = hide(path); !failure.isNull())
            return failure;
    }
}

/// Removes the user's entry, or masks the system's, which is not ours to remove.
QString LMLoginItemsController::hide(const QString& path) {
    const QString name = QFileInfo(path).fileName();
    QFile file(userFile(name));
    if (file.exists() && !file.remove())
        return file.errorString();
    if (systemFile(name).isNull())
        return {};
    return LMWriteFileAtomically(file.fileName(),
                                 "[Desktop Entry]\nType=Application\nName=Rook\nHidden=true\n");
}

// --- watching ------------------------------------------------------------------------------

/// The folders, or, where there is none yet, the nearest one above it.
QStringList LMLoginItemsController::nearestFolders() const {
    QStringList nearest = m_folders;
    for (QString& folder : nearest) {
        while (!QFileInfo(folder).isDir())
            folder = QFileInfo(folder).path();
    }
    nearest.removeDuplicates();
    return nearest;
}

/// The system watches the file that was there, not the path: one that replaced it is another.
void LMLoginItemsController::renewWatch() {
    QStringList paths = nearestFolders();
    QStringList stale = m_watcher.directories();
    stale.removeIf([&](const QString& path) { return paths.contains(path); });
    stale.append(m_watcher.files());
    if (!stale.isEmpty())
        m_watcher.removePaths(stale);
    for (const QString& folder : m_folders)
        for (const QString& name : entryNames(folder))
            paths.append(folder + QLatin1Char('/') + name);
    if (!paths.isEmpty())
        m_watcher.addPaths(paths);
}
