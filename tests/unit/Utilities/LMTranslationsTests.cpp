// SPDX-License-Identifier: MIT
#include "Utilities/LMFormat.h"
#include "Utilities/LMTranslations.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

TEST(Translations, SpeakTheFirstLanguageThatIsKnown) {
    const std::pair<QStringList, const char*> rows[] = {
        {{u"de-AT"_s}, "de"},        {{u"pt-BR"_s, u"fr"_s, u"de"_s}, "fr"},
        {{u"en-GB"_s, u"de"_s}, ""}, {{u"ja_JP"_s}, "ja"},
        {{u"den"_s, u"nl"_s}, ""},   {{}, ""},
    };
    for (const auto& [wanted, language] : rows)
        EXPECT_EQ(LMSpokenLanguage(wanted, {u"de"_s, u"fr"_s, u"ja"_s}), QLatin1String(language))
            << wanted.join(u' ').toStdString();
}

TEST(Translations, AreThereAndGoAgain) {
    int argumentCount = 0;
    const QCoreApplication application(argumentCount, nullptr);
    {
        const LMTranslations german(LMTranslations::Scope::Program, {u"de"_s});
        EXPECT_EQ(LMLocalized("Delete"), u"Löschen"_s);
        EXPECT_EQ(LMLocalized("Delete", "key"), u"Entf"_s);
        EXPECT_EQ(LMLocalized("Cancel", "no such sense"), u"Abbrechen"_s);
    }
    EXPECT_EQ(LMLocalized("Delete"), u"Delete"_s);
}
