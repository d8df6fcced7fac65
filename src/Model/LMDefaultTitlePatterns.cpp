// SPDX-License-Identifier: MIT
#include "Model/LMDefaultTitlePatterns.h"

#include <algorithm>
#include <array>

namespace {

using Patterns = std::vector<std::optional<QString>>;
using Role = LMKnownApplications::Role;

constexpr QChar commandKeySign(u'\u2318');

Patterns noPatterns(const QStringList& titles) {
    return Patterns(static_cast<std::size_t>(titles.size()));
}

/// A rule that looks at each title by itself.
template <class Rule>
Patterns patternsOfEach(const QStringList& titles, Rule rule) {
    Patterns patterns;
    std::transform(titles.begin(), titles.end(), std::back_inserter(patterns), rule);
    return patterns;
}

Patterns firstWithTitle(const QStringList& titles, QLatin1String title) {
    Patterns patterns = noPatterns(titles);
    const qsizetype index = titles.indexOf(title);
    if (index >= 0)
        patterns[static_cast<std::size_t>(index)] = titles[index];
    return patterns;
}

/// A browser shows the page's title; with one window there is nothing to tell apart.
Patterns anyTitleOfOnlyWindow(const QStringList& titles) {
    return titles.size() == 1 ? Patterns{QStringLiteral(".*")} : noPatterns(titles);
}

Patterns musicPlayerTitles(const QStringList& titles) {
    return patternsOfEach(titles, [](const QString& title) {
        const bool isKnown =
            title == QLatin1String("iTunes") || title == QLatin1String("MiniPlayer");
        return isKnown ? std::optional(title) : std::nullopt;
    });
}

Patterns firstMessagesTitle(const QStringList& titles) {
    return firstWithTitle(titles, QLatin1String("Messages"));
}

Patterns remindersTitleOfOnlyWindow(const QStringList& titles) {
    return titles.size() == 1 ? firstWithTitle(titles, QLatin1String("Reminders"))
                              : noPatterns(titles);
}

Patterns firstMainWindowTitle(const QStringList& titles) {
    return firstWithTitle(titles, QLatin1String("Main Window"));
}

/// The command-key sign and the one character after it end the title: the window's shortcut.
Patterns shortcutsAtEnd(const QStringList& titles) {
    return patternsOfEach(titles, [](const QString& title) {
        const QString end = title.right(2);
        const bool isShortcut = end.size() == 2 && end.front() == commandKeySign;
        return isShortcut ? std::optional(end) : std::nullopt;
    });
}

/// Whether the text begins with a decimal integer, white space and a sign before it allowed.
bool beginsWithInteger(QStringView text) {
    text = text.trimmed();
    if (text.startsWith(u'-') || text.startsWith(u'+'))
        text = text.mid(1);
    return !text.isEmpty() && text.front() >= u'0' && text.front() <= u'9';
}

/// A number of at most two characters and a full stop begin the title: the window's number.
Patterns numbersAtFront(const QStringList& titles) {
    return patternsOfEach(titles, [](const QString& title) -> std::optional<QString> {
        const QString number = title.section(u'.', 0, 0);
        if (title.size() < 2 || number.size() > 2 || !beginsWithInteger(number))
            return std::nullopt;
        return QStringLiteral("^") + number + QStringLiteral("\\.");
    });
}

struct Row {
    Role role;
    Patterns (*patterns)(const QStringList& titles);
};

constexpr std::array<Row, 7> rows{{
    {Role::WebBrowser, anyTitleOfOnlyWindow},
    {Role::MusicPlayer, musicPlayerTitles},
    {Role::Messaging, firstMessagesTitle},
    {Role::Reminders, remindersTitleOfOnlyWindow},
    {Role::SocialClient, firstMainWindowTitle},
    {Role::TerminalWithNumberSuffix, shortcutsAtEnd},
    {Role::TerminalWithNumberPrefix, numbersAtFront},
}};

} // namespace

Patterns LMDefaultTitlePatterns(const LMKnownApplications& knownApplications,
                                const QString& bundleIdentifier, const QStringList& titles) {
    for (const Row& row : rows) {
        if (knownApplications.plays(row.role, bundleIdentifier))
            return row.patterns(titles);
    }
    return noPatterns(titles);
}
