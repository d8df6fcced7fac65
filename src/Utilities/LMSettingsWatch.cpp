// SPDX-License-Identifier: MIT
#include "Utilities/LMSettingsWatch.h"

#include <QDir>
#include <QFileInfo>

#include <chrono>
#include <utility>

using namespace std::chrono_literals;

LMSettingsWatch::LMSettingsWatch(QString path, const std::function<void()>& handler)
    : m_path(std::move(path)) {
    // Editors empty a file before they write it, or write it in pieces.
    m_settling.setSingleShot(true);
    m_settling.setInterval(100ms);
    QObject::connect(&m_settling, &QTimer::timeout, &m_settling, [this, handler] {
        renew();
        handler();
    });
    const auto changed = [this] { m_settling.start(); };
    QObject::connect(&m_watcher, &QFileSystemWatcher::fileChanged, &m_settling, changed);
    QObject::connect(&m_watcher, &QFileSystemWatcher::directoryChanged, &m_settling, changed);
    renew();
}

/// The system watches the file that was there, not the path: one that replaced it is another.
void LMSettingsWatch::renew() {
    const QFileInfo file(m_path);
    if (m_path.isEmpty() || !file.dir().exists())
        return;
    if (!m_watcher.directories().contains(file.path()))
        m_watcher.addPath(file.path());
    if (m_watcher.files().contains(m_path))
        m_watcher.removePath(m_path);
    if (file.exists())
        m_watcher.addPath(m_path);
}
