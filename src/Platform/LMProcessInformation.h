// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

#include <optional>

/// What the system tells about a running process. Every part may be missing: the process may end
/// while it is read, or belong to another user.
struct LMProcessInformation {
    qint64 processIdentifier = 0;
    quint64 startTime = 0;     ///< Clock ticks since the system started; 0 when unknown.
    QString executable;        ///< Path as the process sees it; null when it may not be read.
    QStringList arguments;     ///< The first 4 KiB of its command line.
    QString controlGroup;      ///< The path in the unified (or systemd's) hierarchy.
    QString flatpakIdentifier; ///< Of the sandbox the process runs in; null outside.

    bool operator==(const LMProcessInformation&) const = default;
};

/// Nothing when no such process can be seen. Reads at most a few kilobytes and never blocks on what
/// a sandbox puts in the place of its files.
std::optional<LMProcessInformation>
LMReadProcessInformation(qint64 processIdentifier,
                         const QString& processFolder = QStringLiteral("/proc"));

/// The name this computer goes by on the network, as clients put it into WM_CLIENT_MACHINE.
QString LMHostName();
