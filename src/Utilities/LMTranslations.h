// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

#include <memory>
#include <vector>

class QTranslator;

/// The first of the user's languages ("de-AT", "en", …, the preferred one first) that the program
/// speaks, as one of the languages given ("de"). Empty when that is English, or when it speaks none
/// of them.
QString LMSpokenLanguage(const QStringList& wanted, const QStringList& languages);

/// Texts in the user's language, for as long as this lives. Needs the application object, and must
/// go before it. Nothing is loaded for people who read English.
class LMTranslations {
public:
    enum class Scope {
        Program,           ///< The program's own texts.
        ProgramAndToolkit, ///< Also those of dialogs, keys and context menus, where installed.
    };

    /// The languages are those of LMSpokenLanguage; the session's own, as LANGUAGE, LC_MESSAGES and
    /// their kin name them, unless others are given.
    explicit LMTranslations(Scope scope, const QStringList& wanted = languagesOfSession());
    ~LMTranslations();
    Q_DISABLE_COPY_MOVE(LMTranslations)

    /// "de"; empty for English.
    const QString& language() const { return m_language; }

private:
    static QStringList languagesOfSession();
    void install(const QString& name, const QString& directory);

    QString m_language;
    std::vector<std::unique_ptr<QTranslator>> m_translators;
};
