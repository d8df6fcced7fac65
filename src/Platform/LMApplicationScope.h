// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <optional>

/// The application that a desktop or service manager started as a unit of its own, as the name of
/// the process's control group tells it.
struct LMApplicationScope {
    enum class Kind { Systemd, Snap };

    Kind kind = Kind::Systemd;
    QString identifier;     ///< Desktop-file identifier; for Snap "name_application".
    QString snapName;       ///< For Snap.
    qint64 mainProcess = 0; ///< What the unit was started with; 0 when its name does not tell.

    bool operator==(const LMApplicationScope&) const = default;
};

/// Reads the innermost unit of a control group's path:
///   app[-LAUNCHER]-IDENTIFIER-RANDOM.scope, app[-LAUNCHER]-IDENTIFIER[@RANDOM].service
///     the systemd convention for desktop environments; dashes within the parts are escaped
///   dbus-:CONNECTION-NAME@NUMBER.service   started by the session bus under its own name
///   snap.NAME.APPLICATION[.-]RANDOM.scope, snap.NAME.APPLICATION.service
/// Nothing for any other unit: a shell in a terminal, a login session.
std::optional<LMApplicationScope> LMApplicationScopeFromControlGroup(const QString& path);
