// SPDX-License-Identifier: MIT
#include "Utilities/LMFormat.h"
#include "Utilities/LMTranslations.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

TEST(Translations, SpeakTheFirstLanguageThatIsKnown) {
    const std::pair<QStringList, const char*> rows[] = {
        {{u"de-AT"_s}, "de"},
        {{u"pt-BR"_s, u"fr"_s, u"de"_s}, "fr"},
        {{u"en-GB"_s, u"de"_s}, ""},
        {{u"C"_s}, ""},
        {{u"ja_JP"_s}, "ja"},
        {{u"den"_s, u"nl"_s}, ""},
        {{}, ""},
    };
    for (const auto& [wanted, language] : rows)
        EXPECT_EQ(LMSpokenLanguage(wanted, {u"de"_s, u"fr"_s, u"ja"_s}), QLatin1String(language))
            << wanted.join(u' ').toStdString();
}

TEST(Translations, AreThereForEveryLanguageAndGoAgain) {
    int argumentCount = 0;
    const QCoreApplication application(argumentCount, nullptr);
    const std::tuple<const char*, QString, QString> rows[] = {
        {"ar", u"حذف"_s, u"حذف"_s},       {"de", u"Löschen"_s, u"Entf"_s},
        {"es", u"Eliminar"_s, u"Supr"_s}, {"fr", u"Supprimer"_s, u"Suppr"_s},
        {"ja", u"削除"_s, u"Delete"_s},   {"en", u"Delete"_s, u"Delete"_s},
    };
    for (const auto& [language, button, key] : rows) {
        const LMTranslations translations(LMTranslations::Scope::Program,
                                          {QLatin1String(language)});
        EXPECT_EQ(LMLocalized("Delete"), button);
        EXPECT_EQ(LMLocalized("Delete", "key"), key);
        EXPECT_EQ(LMLocalized("Cancel", "no such sense") == u"Cancel"_s, button == u"Delete"_s);
    }
    EXPECT_EQ(LMLocalized("Delete"), u"Delete"_s);
}
