// SPDX-License-Identifier: MIT
#include "Platform/LMApplicationIdentity.h"

#include "Platform/LMApplicationScope.h"

#include <QStringList>

#include <algorithm>
#include <array>

namespace {

constexpr qsizetype longestIdentifier = 255;
constexpr qsizetype longestName = 1000;

QString baseName(const QString& path) {
    return path.section(QLatin1Char('/'), -1);
}

QString withoutSuffix(const QString& name) {
    const QLatin1String suffix(".desktop");
    return name.endsWith(suffix) ? name.chopped(suffix.size()) : name;
}

/// The facts about one window, and the questions that several rungs ask of them.
class Ladder {
public:
    Ladder(const LMWindowIdentityFacts& facts, const LMDesktopEntryTable& table);

    const LMDesktopEntry* entryAt(LMIdentitySource rung) const;
    QString identifierAt(LMIdentitySource rung) const;

private:
    const LMDesktopEntry* entryOfScope(LMApplicationScope::Kind kind) const;
    const LMDesktopEntry* entryOfFlatpak() const;
    const LMDesktopEntry* entryOfSnap() const;
    const LMDesktopEntry* entryOfProgram() const;
    QString snapIdentifier() const;
    bool isConsistent(const LMDesktopEntry& entry, const LMApplicationScope* scope) const;
    bool isOfSandbox(const QString& name) const;
    bool runs(const QString& program) const;

    const LMWindowIdentityFacts& m_facts;
    const LMDesktopEntryTable& m_table;
    std::optional<LMApplicationScope> m_scope;
    QStringList m_programs;   ///< What the process runs, best first.
    QString m_snapFolderName; ///< From the path of the executable.
    const LMDesktopEntry* m_startupWMClassEntry = nullptr;
    const LMDesktopEntry* m_classEntry = nullptr; ///< What WM_CLASS says, in one way or other.
};

Ladder::Ladder(const LMWindowIdentityFacts& facts, const LMDesktopEntryTable& table)
    : m_facts(facts), m_table(table) {
    m_startupWMClassEntry = table.entryWithStartupWMClass(facts.wmClassInstance, facts.wmClassName);
    m_classEntry = m_startupWMClassEntry
                       ? m_startupWMClassEntry
                       : table.entryWithWMClass(facts.wmClassInstance, facts.wmClassName);
    if (!facts.process || LMForwardsWindows(*facts.process))
        return;
    m_scope = LMApplicationScopeFromControlGroup(facts.process->controlGroup);
    m_programs = {LMProgramName(facts.process->arguments),
                  LMProgramName({facts.process->executable})};
    m_programs.removeAll(QString());
    const QStringList folders = facts.process->executable.split(QLatin1Char('/'));
    if (folders.value(1) == QLatin1String("snap") && folders.size() > 4)
        m_snapFolderName = folders.at(2);
}

bool Ladder::runs(const QString& program) const {
    return !program.isEmpty() && m_programs.contains(program);
}

/// A control group is inherited: whatever is started from a terminal or an editor sits in that
/// one's group. So the group counts only for the process it was made for, and for windows that
/// fit its application by program or class; and never against a class that names another one.
bool Ladder::isConsistent(const LMDesktopEntry& entry, const LMApplicationScope* scope) const {
    if (m_classEntry != nullptr)
        return m_classEntry == &entry;
    if (scope != nullptr && scope->mainProcess == m_facts.process->processIdentifier)
        return true;
    return runs(entry.program);
}

const LMDesktopEntry* Ladder::entryOfScope(LMApplicationScope::Kind kind) const {
    if (!m_scope || m_scope->kind != kind)
        return nullptr;
    const LMDesktopEntry* entry = m_table.entryWithIdentifier(m_scope->identifier);
    return entry != nullptr && isConsistent(*entry, &*m_scope) ? entry : nullptr;
}

/// One sandbox may hold several applications, each with an entry of its own.
bool Ladder::isOfSandbox(const QString& name) const {
    return m_classEntry != nullptr && m_classEntry->sandboxName == name;
}

const LMDesktopEntry* Ladder::entryOfFlatpak() const {
    if (!m_facts.process || m_facts.process->flatpakIdentifier.isEmpty())
        return nullptr;
    const QString& name = m_facts.process->flatpakIdentifier;
    if (isOfSandbox(name))
        return m_classEntry;
    const LMDesktopEntry* entry = m_table.entryWithIdentifier(name);
    return entry ? entry : m_table.entryWithSandboxName(name);
}

const LMDesktopEntry* Ladder::entryOfSnap() const {
    if (const LMDesktopEntry* entry = entryOfScope(LMApplicationScope::Kind::Snap))
        return entry;
    // Unlike the control group, the place of the executable is the process's own.
    if (m_snapFolderName.isEmpty())
        return nullptr;
    return isOfSandbox(m_snapFolderName) ? m_classEntry
                                         : m_table.entryWithSandboxName(m_snapFolderName);
}

const LMDesktopEntry* Ladder::entryOfProgram() const {
    for (const QString& program : m_programs) {
        if (const LMDesktopEntry* entry = m_table.entryWithProgram(program))
            return entry;
    }
    return nullptr;
}

const LMDesktopEntry* Ladder::entryAt(LMIdentitySource rung) const {
    switch (rung) {
    case LMIdentitySource::GtkApplicationID:
        return m_table.entryWithIdentifier(m_facts.gtkApplicationID);
    case LMIdentitySource::KdeDesktopFile:
        return m_table.entryWithIdentifier(baseName(m_facts.kdeDesktopFile));
    case LMIdentitySource::SystemdScope:
        return entryOfScope(LMApplicationScope::Kind::Systemd);
    case LMIdentitySource::Flatpak:
        return entryOfFlatpak();
    case LMIdentitySource::Snap:
        return entryOfSnap();
    case LMIdentitySource::StartupWMClass:
        return m_startupWMClassEntry;
    case LMIdentitySource::WMClass:
        return m_classEntry;
    case LMIdentitySource::Program:
        return entryOfProgram();
    case LMIdentitySource::None:
        break;
    }
    return nullptr;
}

QString Ladder::snapIdentifier() const {
    if (m_snapFolderName.isEmpty())
        return {};
    const bool isOwnScope = m_scope && m_scope->snapName == m_snapFolderName;
    return isOwnScope ? m_scope->identifier
                      : m_snapFolderName + QLatin1Char('_') + m_snapFolderName;
}

/// The identifier of an application that has no entry. Two rungs give none: a control group that
/// names no installed application cannot be checked against the window, and StartupWMClass is a
/// word of entries.
QString Ladder::identifierAt(LMIdentitySource rung) const {
    switch (rung) {
    case LMIdentitySource::GtkApplicationID:
        return m_facts.gtkApplicationID;
    case LMIdentitySource::KdeDesktopFile:
        return withoutSuffix(baseName(m_facts.kdeDesktopFile));
    case LMIdentitySource::Flatpak:
        return m_facts.process ? m_facts.process->flatpakIdentifier : QString();
    case LMIdentitySource::Snap:
        return snapIdentifier();
    case LMIdentitySource::WMClass: {
        const QString name = LMSanitizedIdentifier(m_facts.wmClassName);
        return (name.isEmpty() ? m_facts.wmClassInstance : name).toLower();
    }
    case LMIdentitySource::Program:
        return m_programs.value(0).toLower();
    case LMIdentitySource::SystemdScope:
    case LMIdentitySource::StartupWMClass:
    case LMIdentitySource::None:
        break;
    }
    return {};
}

/// For the user's eyes: WM_CLASS as it is written, but on one line.
QString nameWithoutEntry(const LMWindowIdentityFacts& facts, const QString& identifier) {
    for (const QString& text : {facts.wmClassName, facts.wmClassInstance}) {
        QString name = text.left(longestName);
        const auto isUnprintable = [](QChar character) { return !character.isPrint(); };
        std::replace_if(name.begin(), name.end(), isUnprintable, QLatin1Char(' '));
        name = name.simplified();
        if (!name.isEmpty())
            return name;
    }
    return identifier;
}

} // namespace

LMApplicationIdentity LMIdentifyApplication(const LMWindowIdentityFacts& facts,
                                            const LMDesktopEntryTable& table) {
    // What an application says on purpose comes first, then what those say who started it, then
    // names that may coincide.
    static constexpr std::array rungs{
        LMIdentitySource::GtkApplicationID,
        LMIdentitySource::KdeDesktopFile,
        LMIdentitySource::SystemdScope,
        LMIdentitySource::Flatpak,
        LMIdentitySource::Snap,
        LMIdentitySource::StartupWMClass,
        LMIdentitySource::WMClass,
        LMIdentitySource::Program,
    };
    const Ladder ladder(facts, table);
    for (const LMIdentitySource rung : rungs) {
        if (const LMDesktopEntry* entry = ladder.entryAt(rung))
            return {entry->identifier, entry->localizedName, rung};
    }
    for (const LMIdentitySource rung : rungs) {
        const QString identifier = LMSanitizedIdentifier(ladder.identifierAt(rung));
        if (!identifier.isEmpty())
            return {identifier, nameWithoutEntry(facts, identifier), rung};
    }
    return {};
}

QString LMSanitizedIdentifier(const QString& text) {
    QString identifier;
    bool hasName = false;
    for (const QChar character : text) {
        if (identifier.size() == longestIdentifier)
            break;
        const bool isName = character.isLetterOrNumber();
        hasName = hasName || isName;
        if (isName || character.isMark() || character.isSurrogate() ||
            character == QLatin1Char('_') ||
            (character == QLatin1Char('.') && !identifier.isEmpty()))
            identifier.append(character);
        else if (!identifier.isEmpty() && !identifier.endsWith(QLatin1Char('-')))
            identifier.append(QLatin1Char('-'));
    }
    if (!identifier.isEmpty() && identifier.back().isHighSurrogate())
        identifier.chop(1);
    while (identifier.endsWith(QLatin1Char('-')) || identifier.endsWith(QLatin1Char('.')))
        identifier.chop(1);
    return hasName ? identifier : QString();
}

bool LMForwardsWindows(const LMProcessInformation& process) {
    static const QStringList forwarders{QStringLiteral("ssh"), QStringLiteral("sshd"),
                                        QStringLiteral("sshd-session"), QStringLiteral("xpra")};
    return forwarders.contains(LMProgramName({process.executable})) ||
           forwarders.contains(LMProgramName(process.arguments));
}
