// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QSet>
#include <QString>

/// The applications that a rule names: several identifiers may play one role, because the same
/// program bears another identifier on another system.
class LMKnownApplications {
public:
    /// Roles are keys of the resource "Known Applications.plist": a dictionary from role to an
    /// array of identifiers.
    enum class Role {
        WebBrowser,
        ChromiumFamily,
        MusicPlayer,
        Messaging,
        Reminders,
        SocialClient,
        TerminalWithNumberSuffix, ///< Title ends in the command-key sign and the window's number.
        TerminalWithNumberPrefix, ///< Title begins with the window's number and a full stop.
        NeverActive,              ///< Never treated as the active application.
        FileManager,              ///< Beside the one the platform names.
        Desktop,                  ///< The desktop itself, shown as an application.
    };

    LMKnownApplications() = default;
    explicit LMKnownApplications(QHash<Role, QSet<QString>> identifiers);

    /// Reads the table; roles that are missing or malformed stay empty, and error says so.
    static LMKnownApplications fromPropertyList(const QString& path, QString* error = nullptr);

    bool plays(Role role, const QString& bundleIdentifier) const;

private:
    QHash<Role, QSet<QString>> m_identifiers;
};
