// SPDX-License-Identifier: MIT
#include "Platform/LMDesktopEntryTable.h"

#include <algorithm>
#include <array>

namespace {

/// Prefixes that distributors and desktops put before an application's own name.
QString withoutVendor(const QString& name) {
    for (const auto* vendor : {"debian-", "fedora-", "gnome-", "kde4-", "kde-", "mozilla-"}) {
        if (name.startsWith(QLatin1String(vendor)))
            return name.mid(QLatin1String(vendor).size());
    }
    return name;
}

/// "org.gnome.gedit" -> "gedit", "debian-xterm" -> "xterm".
QString shortName(const QString& identifier) {
    return withoutVendor(identifier.section(QLatin1Char('.'), -1).toLower());
}

/// The one candidate, or else the one whose property sets it apart.
template <class... Properties>
const LMDesktopEntry* preferred(QList<const LMDesktopEntry*> candidates, Properties... properties) {
    const auto narrow = [&candidates](const auto& property) {
        QList<const LMDesktopEntry*> having;
        std::copy_if(candidates.cbegin(), candidates.cend(), std::back_inserter(having), property);
        if (!having.isEmpty())
            candidates = having;
    };
    (narrow(properties), ...);
    return candidates.size() == 1 ? candidates.first() : nullptr;
}

bool isDisplayed(const LMDesktopEntry* entry) {
    return !entry->isNoDisplay;
}

} // namespace

LMDesktopEntryTable::LMDesktopEntryTable(QList<LMDesktopEntry> entries)
    : m_entries(std::move(entries)) {
    for (qsizetype index = 0; index < m_entries.size(); ++index) {
        const LMDesktopEntry& entry = m_entries.at(index);
        if (m_byIdentifier.contains(entry.identifier))
            continue;
        m_byIdentifier.insert(entry.identifier, index);
        if (entry.isHidden)
            continue;
        m_byLowerIdentifier[entry.identifier.toLower()].append(index);
        m_byShortName[shortName(entry.identifier)].append(index);
        const auto insert = [index](Index& table, const QString& key) {
            if (!key.isEmpty())
                table[key].append(index);
        };
        insert(m_byStartupWMClass, entry.startupWMClass);
        insert(m_byLowerStartupWMClass, entry.startupWMClass.toLower());
        insert(m_byProgram, entry.program);
        insert(m_bySandboxName, entry.sandboxName);
    }
}

QList<const LMDesktopEntry*> LMDesktopEntryTable::all(const Index& index,
                                                      const QString& key) const {
    QList<const LMDesktopEntry*> found;
    const QList<qsizetype> places = index.value(key);
    for (const qsizetype place : places)
        found.append(&m_entries.at(place));
    return found;
}

const LMDesktopEntry* LMDesktopEntryTable::only(const Index& index, const QString& key) const {
    return key.isEmpty() ? nullptr : preferred(all(index, key), isDisplayed);
}

const LMDesktopEntry* LMDesktopEntryTable::entryWithIdentifier(const QString& identifier) const {
    const QLatin1String suffix(".desktop");
    const QString name =
        identifier.endsWith(suffix) ? identifier.chopped(suffix.size()) : identifier;
    const auto found = m_byIdentifier.constFind(name);
    if (found != m_byIdentifier.cend()) {
        const LMDesktopEntry& entry = m_entries.at(*found);
        return entry.isHidden ? nullptr : &entry;
    }
    return only(m_byLowerIdentifier, name.toLower());
}

const LMDesktopEntry* LMDesktopEntryTable::entryWithStartupWMClass(const QString& instance,
                                                                   const QString& className) const {
    for (const QString& exact : {instance, className}) {
        if (const LMDesktopEntry* entry = only(m_byStartupWMClass, exact))
            return entry;
    }
    for (const QString& name : {className, instance}) {
        if (const LMDesktopEntry* entry = only(m_byLowerStartupWMClass, name.toLower()))
            return entry;
    }
    return nullptr;
}

const LMDesktopEntry* LMDesktopEntryTable::entryWithWMClass(const QString& instance,
                                                            const QString& className) const {
    for (const QString& name : {className, instance}) {
        const QString dashed = name.toLower().replace(QLatin1Char(' '), QLatin1Char('-'));
        if (const LMDesktopEntry* entry = only(m_byLowerIdentifier, dashed))
            return entry;
        if (const LMDesktopEntry* entry = only(m_byShortName, dashed))
            return entry;
    }
    return nullptr;
}

const LMDesktopEntry* LMDesktopEntryTable::entryWithProgram(const QString& program) const {
    if (program.isEmpty())
        return nullptr;
    const auto isNamesake = [name = program.toLower()](const LMDesktopEntry* entry) {
        return shortName(entry->identifier) == name;
    };
    const auto startsPlainly = [](const LMDesktopEntry* entry) { return entry->startsPlainly; };
    return preferred(all(m_byProgram, program), isNamesake, startsPlainly, isDisplayed);
}

const LMDesktopEntry* LMDesktopEntryTable::entryWithSandboxName(const QString& name) const {
    if (name.isEmpty())
        return nullptr;
    const QString snap = name + QLatin1Char('_') + name;
    const auto isNamesake = [&](const LMDesktopEntry* entry) {
        return entry->identifier == name || entry->identifier == snap;
    };
    return preferred(all(m_bySandboxName, name), isNamesake, isDisplayed);
}
