// SPDX-License-Identifier: MIT
#include "Platform/LMKnownApplications.h"

#include "Utilities/LMPropertyList.h"

#include <QVariant>

#include <array>
#include <utility>

namespace {

using Role = LMKnownApplications::Role;

constexpr std::array<std::pair<Role, const char*>, 11> RoleNames{{
    {Role::WebBrowser, "WebBrowser"},
    {Role::ChromiumFamily, "ChromiumFamily"},
    {Role::MusicPlayer, "MusicPlayer"},
    {Role::Messaging, "Messaging"},
    {Role::Reminders, "Reminders"},
    {Role::SocialClient, "SocialClient"},
    {Role::TerminalWithNumberSuffix, "TerminalWithNumberSuffix"},
    {Role::TerminalWithNumberPrefix, "TerminalWithNumberPrefix"},
    {Role::NeverActive, "NeverActive"},
    {Role::FileManager, "FileManager"},
    {Role::Desktop, "Desktop"},
}};

} // namespace

LMKnownApplications::LMKnownApplications(QHash<Role, QSet<QString>> identifiers)
    : m_identifiers(std::move(identifiers)) {}

LMKnownApplications LMKnownApplications::fromPropertyList(const QString& path, QString* error) {
    QHash<Role, QSet<QString>> identifiers;
    const std::optional<QVariant> list = LMPropertyListFromFile(path, error);
    const QVariantMap table = list ? list->toMap() : QVariantMap();
    for (const auto& [role, name] : RoleNames) {
        const QStringList members = table.value(QLatin1String(name)).toStringList();
        identifiers.insert(role, QSet<QString>(members.begin(), members.end()));
    }
    if (list && table.isEmpty() && error)
        *error = QStringLiteral("The table of known applications is no dictionary: %1").arg(path);
    return LMKnownApplications(std::move(identifiers));
}

bool LMKnownApplications::plays(Role role, const QString& bundleIdentifier) const {
    const auto found = m_identifiers.constFind(role);
    return found != m_identifiers.cend() && found->contains(bundleIdentifier);
}
