// SPDX-License-Identifier: MIT
#include "spelling_world.h"

#include "spelling/language_rows.h"
#include "spelling/languages.h"
#include "spelling/locales.h"

namespace tolvo::test {

class ProofingWorld : public SpellingWorld, public SpellingWalk {
  public:
    bool CheckSpelling(ProofingHost &, QString &text, int LangID, bool grammar) override {
        asked += QStringLiteral("%1|%2|%3").arg(text).arg(LangID).arg(grammar);
        if (failure)
            throw *failure;
        if (cancels)
            throw CheckCancelled();
        text = corrected;
        return confirmed;
    }

    QString proof(const char *before, int LangID = -1, bool grammar = false) {
        Proofing proofing(services, *this, *this);
        QString text = u(before);
        done = grammar ? proofing.CheckGrammar(text, LangID) : proofing.CheckSpelling(text, LangID);
        return text;
    }

    QStringList asked;
    QString corrected;
    bool confirmed = true;
    bool done = false;
    bool cancels = false;
    std::optional<Failure> failure;
};

TEST_F(ProofingWorld, GivesTheWalkLinesThatEndInCR) {
    corrected = u("the\rfox");
    EXPECT_EQ(proof("teh\r\nfox", 2057, true), u("the\r\nfox"));
    EXPECT_EQ(asked, QStringList(u("teh\rfox|2057|1")));
    EXPECT_EQ(status.last(), u("Spelling check complete"));
    EXPECT_TRUE(done);
    confirmed = false;
    EXPECT_EQ(proof("teh\r\nfox"), u("teh\r\nfox"));
    EXPECT_TRUE(done);
}

TEST_F(ProofingWorld, CatchesFailuresAndLeavesTheTextAlone) {
    failure = Failure(5012, u("Not Found"));
    EXPECT_EQ(proof("lone\rCR"), u("lone\rCR"));
    EXPECT_FALSE(done);
    EXPECT_EQ(said(), QStringList(u("5012 Not Found (cTextMethods::Proofing)")));
    EXPECT_EQ(status.last(), QString());
    failure.reset();
    cancels = true; // a request ended by Esc
    EXPECT_EQ(proof("text"), u("text"));
    EXPECT_FALSE(done);
    EXPECT_EQ(said(), QStringList());
    EXPECT_EQ(status.last(), QString());
    failure = Failure(failureNumber::objectNotCreated, u("anything"));
    EXPECT_EQ(proof("text"), u("text"));
    EXPECT_FALSE(done);
    EXPECT_EQ(said(), QStringList(u("Microsoft Word must be installed to check spelling and grammar")));
}

TEST_F(ProofingWorld, ChecksInWordsOwnDialog) {
    const std::tuple<const char *, const char *, int, bool, QStringList> cases[] = {
        {"the\rfox\r", "the\r\nfox\r\n", -1, false, {u("foreground"), u("spelling")}},
        {"the", "the", 1036, true, {u("language 1036"), u("foreground"), u("grammar")}},
        {"\n", "", 0, false, {u("language 0"), u("foreground"), u("spelling")}},
        {"the\n", "the\n", -1, false, {u("foreground"), u("spelling")}},
    };
    setProvider(0);
    for (const auto &[answer, text, LangID, grammar, steps] : cases) {
        word.answer = u(answer);
        word.log.clear();
        EXPECT_EQ(proof("teh\r\n", LangID, grammar), u(text));
        EXPECT_EQ(word.log, QStringList({u("create"), u("add"), u("visible"), u("text teh\r")}) + steps +
                                QStringList({u("close"), u("quit"), u("release")}));
    }
    word.log.clear();
    word.failing = u("spelling"); // Word stays as it is
    EXPECT_EQ(proof("teh\r\n"), u("teh\r\n"));
    EXPECT_EQ(said(), QStringList(u("1004 Word refused (cTextMethods::Proofing)")));
    EXPECT_FALSE(word.log.contains(u("quit")));
    EXPECT_EQ(asked, QStringList());
    EXPECT_EQ(status.first(), u("Contacting Microsoft Word. Please wait..."));

    store.SaveSetting(u("Tolvo"), u("Spelling"), u("UseWordDialog"), u("False"));
    (void)proof("teh");
    EXPECT_EQ(asked.size(), 1);
}

TEST_F(ProofingWorld, ListsWordsErrors) {
    word.errors = {{u("teh"), 0, 3}};
    word.customFolder = folder.path();
    writeFile(folder.path() + u("/custom.dic"), "one\r\n");
    {
        Check spelling(*this, 0, 0);
        EXPECT_TRUE(spelling.Spell(u("teh"), true));
        EXPECT_EQ(told(spelling.SpellingErrors()), QStringList(u("teh 0-3 1 TEH")));
        spelling.AddToCustomDic(u("teh"));
    }
    EXPECT_EQ(word.log, QStringList({u("create"), u("add"), u("text teh"), u("language 2057"), u("close"),
                                     u("quit"), u("release")}));
    EXPECT_EQ(fileContents(folder.path() + u("/custom.dic")), "one\r\nteh\r\n");
}

TEST_F(ProofingWorld, FallsBackToHunspellWithoutWord) {
    word.installed = false;
    writeFile(services.dataFolder + u("/Locales.txt"), "h\nh\nen-gb\tx\tEnglish\t2057\n");
    for (const auto &[number, expected] : {std::pair(0, "en-gb"), {2057, "en-gb"}, {1036, ""}}) {
        Check spelling(*this, 0, number);
        EXPECT_EQ(spelling.locale, u(expected));
        EXPECT_EQ(spelling.ProviderType(), 1);
        EXPECT_EQ(spelling.Spell(u("teh")), !spelling.locale.isEmpty());
        QStringList boxesShown{u("429 no Word (CSpelling::instantiateWord)")};
        if (spelling.locale.isEmpty())
            boxesShown += u("5003 Unable to initialise Hunspell provider (CSpelling::init)");
        EXPECT_EQ(said(), boxesShown);
    }
}

using LanguageLists = SpellingWorld;

TEST_F(LanguageLists, AreReadFromTheStore) {
    QFile::copy(qEnvironmentVariable("TOLVO_SOURCE") + u("/data/Locales.txt"),
                services.dataFolder + u("/Locales.txt"));
    LanguageList lists(store);
    const auto rows = [&](int provider) {
        QStringList texts;
        for (const LanguageRow &row : languageRows(services, provider))
            texts += row.language.row() + u'|' + QString::number(row.language.ID);
        return texts;
    };
    EXPECT_EQ(rows(0), QStringList(u(" - <Default>|-1")));
    EXPECT_EQ(rows(1), QStringList(u("English (GB) - en-gb|2057")));

    EXPECT_EQ(readWordLanguages(word, [] { return true; }), QString());
    const QString list = readWordLanguages(word, [] { return false; });
    EXPECT_EQ(list, u("MS Word Default|<Default>|-1#French|français|1036#German|Deutsch|1031"));
    EXPECT_EQ(word.log.count(u("quit")), 2);
    lists.saveWordLanguages(list + u("#broken|entry#no|number|x"));
    lists.saveWordQuickList({u("-1"), u("1031"), u("7")});
    EXPECT_EQ(rows(0), QStringList({u("MS Word Default - <Default>|-1"), u("German - Deutsch|1031")}));

    const auto set = [&](const char *key, const char *value) {
        store.SaveSetting(u("Tolvo"), u("Spelling"), u(key), u(value));
    };
    set("HunLangList", "English|en-gb#German|de-de#Klingon|tlh");
    EXPECT_EQ(rows(3).last(), u("Klingon - tlh|-1"));
    set("HunQuickList", "de-de|fr-fr");
    EXPECT_EQ(rows(1), QStringList(u("German - de-de|1031")));
}

TEST(LocaleTable, IsReadRobustly) {
    const Locales shipped(qEnvironmentVariable("TOLVO_SOURCE") + u("/data/Locales.txt"));
    EXPECT_GT(shipped.count(), 120);
    for (const auto &[number, locale] :
         {std::pair(2057, "en-gb"), {3082, "es-es"}, {1034, "es-es"}, {1046, "pt-br"}, {99999, ""}, {0, ""}})
        EXPECT_EQ(shipped.localeOf(number), u(locale)) << number;
    EXPECT_EQ(shipped.idOf(u("ES-es"), -1), 3082);
    EXPECT_EQ(shipped.idOf(u("tlh"), -1), -1);

    QTemporaryDir folder;
    const QString path = folder.path() + u("/Locales.txt");
    EXPECT_EQ(Locales(path).count(), 0);
    writeFile(path, "a\tb\tc\t1\nx\ty\tz\t2\nthree\tfields\tonly\nempty\tfourth\tfield\t\n"
                    "word\tb\tc\tnumber\nbig\tb\tc\t99999999999\nok\tb\tlocal\t7\textra\r\n" +
                        QByteArray(100000, 'x') + "\nlater\tb\tc\t7\nlast\tb\tc\t8");
    const Locales odd(path);
    EXPECT_EQ(odd.count(), 2);
    EXPECT_EQ(odd.localeOf(7), u("ok"));
    EXPECT_EQ(odd.localeOf(8), u("last"));
}

} // namespace tolvo::test
