// SPDX-License-Identifier: MIT
#include "spelling_world.h"

#include "preferences/settings_keys.h"
#include "spelling/found_languages.h"
#include "spelling/language_names.h"
#include "spelling/language_rows.h"
#include "spelling/spelling_walk.h"

namespace tolvo::test {

TEST(LanguageNames, AreTheLanguagesOwn) {
    const std::tuple<const char *, const char *, const char *> cases[] = {
        {"en-us", "English (United States)", "United States"},
        {"de-at", "Deutsch (Österreich)", "Österreich"},
        {"de-de-frami", "Deutsch (Deutschland, FRAMI)", "Deutschland"},
        {"fr", "Français", ""},
        {"hu-hu", "Magyar (Magyarország)", "Magyarország"},
        {"el-gr", "Ελληνικά (Ελλάδα)", "Ελλάδα"},
        {"tlh", "Klingon", ""}, // has a name in English only
        {"xq", "xq", ""},       // of no language
        {"dictionary", "dictionary", ""},
    };
    for (const auto &[locale, name, territory] : cases) {
        EXPECT_EQ(languageName(u(locale)), u(name));
        EXPECT_EQ(territoryName(u(locale)), u(territory));
    }
    EXPECT_TRUE(isKnownLanguage(u("de-de-frami")));
    for (const char *locale : {"de", "de-de", "hu-hu", "sv-se"})
        EXPECT_TRUE(isOfMainTerritory(u(locale))) << locale;
    for (const char *locale : {"de-at", "es-mx", "sr-latn"})
        EXPECT_FALSE(isOfMainTerritory(u(locale))) << locale;
    EXPECT_FALSE(isKnownLanguage(u("dictionary")));
}

class Languages : public SpellingWorld {
  public:
    Languages() {
        QFile::copy(qEnvironmentVariable("TOLVO_SOURCE") + u("/data/Locales.txt"),
                    services.dataFolder + u("/Locales.txt"));
    }
    void pair(const QString &path) {
        QDir().mkpath(QFileInfo(path).path());
        writeFile(path + u(".aff"), "SET UTF-8\n");
        writeFile(path + u(".dic"), "1\nHaus\n");
    }
    QStringList rows() {
        QStringList texts;
        for (const LanguageRow &row : languageRows(services, 1))
            texts +=
                QStringList{row.language.row(), QString::number(row.language.ID), row.place}.join(u(" | "));
        return texts;
    }

    const QString system = folder.path() + u("/system");
};

TEST_F(Languages, AreFoundWhereDictionariesLie) {
    services.systemDictionaries = {system, folder.path() + u("/none")};
    pair(system + u("/de_AT"));
    pair(system + u("/en_GB")); // the program's own comes first
    pair(system + u("/qqq"));
    pair(services.userFolder + u("/Dictionaries/fr/fr"));
    writeFile(system + u("/hyph_de_DE.dic"), "1\nx\n"); // without rules
    writeFile(system + u("/ru_RU.aff"), "SET UTF-8\n"); // without words
    const QString own = QString::number(ownLanguageNumber(u("qqq")));
    EXPECT_EQ(rows(),
              QStringList({u("English (GB) - en-gb | 2057 | With Tolvo"),
                           u("Deutsch (Österreich) - de-at | 3079 | ") + QDir::toNativeSeparators(system),
                           u("Français - fr | 12 | Added by you"),
                           u("qqq - qqq | ") + own + u(" | ") + QDir::toNativeSeparators(system)}));
    const std::pair<int, const char *> numbers[] = {
        {3079, "de-at"}, {2057, "en-gb"}, {own.toInt(), "qqq"}, {-1, ""}, {1049, ""}, {-77, ""}, {0, ""}};
    for (const auto &[number, locale] : numbers)
        EXPECT_EQ(chosenLocale(services, number), u(locale)) << number;

    const auto set = [&](const auto &key, const char *value) { tolvo::set(store, key, u(value)); };
    set(settingKeys.spelling.hunLangList, "English|en-gb#Russian|ru-ru");
    EXPECT_EQ(rows().at(1), u("Russian - ru-ru | 1049 | No dictionary found"));
    set(settingKeys.spelling.hunQuickList, "fr|xx|ru-ru");
    EXPECT_EQ(rows(), QStringList({u("Français - fr | 12 | Added by you"),
                                   u("Russian - ru-ru | 1049 | No dictionary found")}));
}

TEST_F(Languages, BeginWithTheDesktops) {
    services.systemDictionaries = {system};
    pair(system + u("/de_AT"));
    const auto first = [&](int LangID) {
        const QList<LanguageRow> all = languageRows(services, 1);
        const int row = firstRow(all, services, LangID);
        return row < 0 ? QString() : all[row].language.Locale;
    };
    EXPECT_EQ(first(-1), u("en-gb"));
    services.desktopLocale = u("de-at");
    EXPECT_EQ(first(-1), u("de-at"));
    EXPECT_EQ(first(2057), u("en-gb")); // what has been chosen
    EXPECT_EQ(first(-77), QString());
    services.desktopLocale = u("fr-fr"); // no dictionary
    EXPECT_EQ(first(-1), u("en-gb"));
    services.desktopLocale = u("de-at");
    set(store, settingKeys.spelling.hunLocale, u("en-gb"));
    EXPECT_EQ(first(-1), u("en-gb"));
}

TEST_F(Languages, AreThoseOfTheCheck) {
    dictionary(u("de_AT"), "SET UTF-8\n", "2\nHaus\nJänner\n");
    const std::tuple<int, const char *, const char *> cases[] = {
        {-1, "", "Haus"}, // the default
        {2057, "", "Haus"},
        {3079, "Deutsch (Österreich)", "hello"},
        {1036, "English (United Kingdom), as there is no dictionary for Français (France)", "Haus"},
        {-77, "English (United Kingdom), as the dictionary of your choice is gone", "Haus"},
    };
    for (const auto &[LangID, title, mistake] : cases) {
        ErrorWalk walk(services, *this);
        ASSERT_TRUE(walk.start(u("hello Haus"), LangID, false)) << LangID;
        EXPECT_EQ(walk.controls().caption, u("Spelling and Grammar - ") + u(title));
        EXPECT_EQ(walk.controls().labMistake, u(mistake)) << LangID;
        if (LangID == 3079) { // what is loaded stays
            QFile::remove(dictionaries() + u("/de_AT.aff"));
            QFile::remove(dictionaries() + u("/de_AT.dic"));
        }
        walk.cmdIgnore();
        EXPECT_TRUE(walk.isOver());
    }
    EXPECT_EQ(said(), QStringList());
}

} // namespace tolvo::test
