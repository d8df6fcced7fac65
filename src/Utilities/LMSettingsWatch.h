// SPDX-License-Identifier: MIT
#pragma once

#include <QFileSystemWatcher>
#include <QString>
#include <QTimer>

#include <functional>

/// Notices when a file is written, replaced, made or removed, also while it does not exist, as long
/// as its directory does. Nothing runs while nothing happens there.
class LMSettingsWatch {
public:
    /// The handler is called from the event loop, once for changes that follow each other closely.
    LMSettingsWatch(QString path, const std::function<void()>& handler);

    /// The file or its directory may have been made meanwhile.
    void renew();

private:
    QString m_path;
    QFileSystemWatcher m_watcher;
    QTimer m_settling;
};
