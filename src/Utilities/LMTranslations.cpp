// SPDX-License-Identifier: MIT
#include "Utilities/LMTranslations.h"

#include <QCoreApplication>
#include <QDir>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include <utility>

namespace {

constexpr QLatin1String Directory{":/rook/translations"};
constexpr QLatin1String Prefix{"rook_"};

/// Those that the program carries a catalogue for.
QStringList spokenLanguages() {
    QStringList result;
    for (const QString& name : QDir(Directory).entryList({Prefix + QLatin1String("*.qm")}))
        result.append(name.sliced(Prefix.size()).section(u'.', 0, 0));
    return result;
}

} // namespace

QString LMSpokenLanguage(const QStringList& wanted, const QStringList& languages) {
    for (const QString& name : wanted) {
        const QString language = name.section(u'-', 0, 0).section(u'_', 0, 0);
        if (languages.contains(language))
            return language;
        if (language == u"en" || language == u"C")
            return {};
    }
    return {};
}

LMTranslations::LMTranslations(Scope scope, const QStringList& wanted)
    : m_language(LMSpokenLanguage(wanted, spokenLanguages())) {
    if (m_language.isEmpty())
        return;
    // The one installed last is asked first.
    if (scope == Scope::ProgramAndToolkit)
        install(QLatin1String("qtbase_") + m_language,
                QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    install(Prefix + m_language, Directory);
}

LMTranslations::~LMTranslations() = default;

QStringList LMTranslations::languagesOfSession() {
    return QLocale::system().uiLanguages();
}

void LMTranslations::install(const QString& name, const QString& directory) {
    auto translator = std::make_unique<QTranslator>();
    if (translator->load(name, directory) && QCoreApplication::installTranslator(translator.get()))
        m_translators.push_back(std::move(translator));
}
