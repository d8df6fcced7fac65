// SPDX-License-Identifier: MIT
#pragma once

#include <QFileSystemWatcher>
#include <QObject>
#include <QStringList>
#include <QTimer>

struct LMEnvironment;

/// Whether this program starts with the user's session, by the XDG autostart rules: the desktop
/// entries in the "autostart" folders of the configuration directories, those of the user before
/// those of the system. The files are the truth; others change them too.
///
/// An entry is this program's when it bears its identifier, or starts this very file as resident
/// process. What an entry says about being hidden, switched off or meant for other desktops counts.
class LMLoginItemsController final : public QObject {
    Q_OBJECT
public:
    /// Observes the folders as long as it lives and posts "LoginItemsChangedNotification" whenever
    /// something changed there. The user's configuration directory comes first; a user without one
    /// has no login items. The environment outlives the controller.
    LMLoginItemsController(LMEnvironment& environment, QString executable,
                           const QStringList& configDirectories);
    /// For this program and the user who runs it.
    explicit LMLoginItemsController(LMEnvironment& environment);

    /// The path of an entry that starts this program; null when there is none.
    QString loginItemForCurrentApplication() const;
    bool isCurrentApplicationInLoginItems() const {
        return !loginItemForCurrentApplication().isNull();
    }

    /// Both do nothing where nothing is to be done. Null, or why it could not be done, for people.
    QString addCurrentApplicationToLoginItems();
    QString removeCurrentApplicationFromLoginItems();

private:
    QString userFile(const QString& name) const;
    QString systemFile(const QString& name) const;
    QString hide(const QString& path);
    bool startsThisProgram(const QString& path) const;
    QStringList nearestFolders() const;
    void renewWatch();

    LMEnvironment& m_environment;
    QString m_executable;
    QStringList m_folders; ///< The user's first. Empty without a home directory.
    QFileSystemWatcher m_watcher;
    QTimer m_settling; ///< A file is written in several steps.
};
