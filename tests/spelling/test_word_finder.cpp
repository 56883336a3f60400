// SPDX-License-Identifier: MIT
#include "spelling_world.h"

#include "preferences/settings_keys.h"
#include "spelling/skipped_words.h"
#include "spelling/word_finder.h"
#include "spelling/word_forms.h"
#include "text/top_level_domains.h"

namespace tolvo::test {

QString wordsOf(const char *text, const char *locale, const char *wordCharacters, bool curlyToo = false) {
    const auto conversion = [](const QString &one) {
        return one == u("ﬁ") || one == u("`") ? u("'") : one; // an ICONV of two lines
    };
    WordFinder finder(wordRulesOf(u(locale), curlyToo), u(wordCharacters), conversion);
    const QString whole = u(text);
    QStringList words;
    FoundWord word = finder.next(whole, 0);
    for (; word.length > 0; word = finder.next(whole, word.start + word.length)) {
        const QString outer = whole.mid(word.outerStart, word.outerLength);
        words += whole.mid(word.start, word.length);
        if (outer != words.last())
            words.last() += u'(' + outer + u')';
    }
    return words.join(u' ');
}

TEST(WordFinder_, TakesWordsAsTheLanguageHasThem) {
    const std::tuple<const char *, const char *, const char *, const char *> cases[] = {
        // The default: as ever, but with the letters of Unicode.
        {"en-gb", "", "well-known don't -x y'", "well-known don't x y"},
        {"en-gb", "0123456789'", "abc1def a--b 'tis don’t", "abc def a b tis don t"},
        {"en-gb", "", "cafe\u0301 да \u0301x rock'n'roll", "cafe\u0301 да x rock'n'roll"},
        {"en-gb", "`", "a`b", "a b"},
        // Any other: what its dictionary says.
        {"de-de", "ß-.", "z.B. Haus. E-Mail- Ha--us -x",
         "z.B(z.B.) Haus(Haus.) E-Mail(E-Mail-) Ha--us x(-x)"},
        {"es-es", "", "bien-estar don’t don't", "bien estar don t don t"},
        {"en-us", "’", "don’t don't a''b y’", "don’t don't a b y"},
        {"fr", "-’'1234567890.", "l’homme d'1er 3e aujourd'hui'", "l’homme d'1er 3e aujourd'hui"},
        {"en-us", "0123456789", "abc1def 12 4th", "abc1def 12 4th"},
        {"ru-ru", "", "всё-таки ёж2", "всё таки ёж"},
        {"he-il", "\"'", "צה\"ל \"שלום\"", "צה\"ל שלום(\"שלום\")"},
        {"hi-in", "", "हिन्दी में", "हिन्दी में"},
        {"fa-ir", "", "می\u200cخواهم می\u200c x", "می\u200cخواهم می x"},
        {"ko-kr", "", "한국어, 말", "한국어 말"},
        {"xx-xx", "", "𐐀𐐁 𝟙 a😀b \xed\xa0\x80", "𐐀𐐁 a b"},
        {"xx-xx", "'", "a`b oﬁ ", "a`b oﬁ"}, // by what they are turned into
        {"xx-xx", "", "", ""},
    };
    for (const auto &[locale, characters, text, words] : cases)
        EXPECT_EQ(wordsOf(text, locale, characters), u(words)) << locale << ' ' << text;
    EXPECT_EQ(wordsOf("don’t", "en-gb", "", true), u("don’t"));
}

TEST(WordForms, DifferInApostrophesAndAccents) {
    EXPECT_EQ(otherForms(u("don’t")), QStringList(u("don't")));
    EXPECT_EQ(otherForms(u("don't")), QStringList(u("don’t")));
    EXPECT_EQ(otherForms(u("cafe\u0301")), QStringList(u("café")));
    EXPECT_EQ(otherForms(u("naïve")), QStringList());
    EXPECT_EQ(plainForm(u("l’e\u0301te\u0301")), u("l'été"));
    EXPECT_EQ(withApostropheOf(u("dont’s"), u("don't")), u("don’t"));
    EXPECT_EQ(withApostropheOf(u("dont"), u("don’t")), u("don't"));
}

TEST(SkippedWords_, AreChosenByTheUser) {
    struct Case {
        const char *picture; // the word in brackets
        bool TypedTextOptions::*option;
    };
    const AddressRules rules = [] {
        AddressRules made([](const QString &extension) { return extension == u("txt"); });
        made.setTopLevelDomains(shortTopLevelDomains());
        return made;
    }();
    const Case cases[] = {
        {"a [ab]12 b", &TypedTextOptions::skipDigits},
        {"v2_[final] x", &TypedTextOptions::skipDigits},
        {"the [UNESCO] list", &TypedTextOptions::skipCapitals},
        {"[ÉTÉ]", &TypedTextOptions::skipCapitals},
        {"see (www.[exampel].org).", &TypedTextOptions::skipAddresses},
        {"to <[redaer]@example.org>,", &TypedTextOptions::skipAddresses},
        {"[htpp]://x", &TypedTextOptions::skipAddresses},
        {"example.org/[docz]/x", &TypedTextOptions::skipAddresses},
        {"\"[reedme].txt\"", &TypedTextOptions::skipFileNames},
        {"/usr/[shaer]/doc", &TypedTextOptions::skipFileNames},
        {"a [word] 12 b", nullptr},
        {"end.[Next] one", nullptr},
        {"a [I] b", nullptr},
        {"@ [home]", nullptr},
        {"and/[or]", nullptr},
    };
    bool TypedTextOptions::*const all[] = {&TypedTextOptions::skipDigits, &TypedTextOptions::skipCapitals,
                                           &TypedTextOptions::skipAddresses,
                                           &TypedTextOptions::skipFileNames};
    for (const auto &[picture, option] : cases) {
        const QString text = u(picture).remove(u'[').remove(u']');
        const qsizetype start = u(picture).indexOf(u'[');
        const qsizetype length = u(picture).indexOf(u']') - start - 1;
        EXPECT_FALSE(SkippedWords().skips(text, start, length)) << picture;
        for (bool TypedTextOptions::*one : all) {
            TypedTextOptions options;
            options.*one = true;
            EXPECT_EQ(SkippedWords(options, rules, shortTopLevelDomains()).skips(text, start, length),
                      one == option)
                << picture;
        }
    }
}

class WordsOfDictionaries : public SpellingWorld {
  public:
    WordsOfDictionaries() {
        QFile::copy(qEnvironmentVariable("TOLVO_SOURCE") + u("/data/Locales.txt"),
                    services.dataFolder + u("/Locales.txt"));
        dictionary(u("fr_FR"), "SET UTF-8\nTRY aeiou'\nWORDCHARS '-.\nBREAK 1\nBREAK -\n",
                   "5\nl'homme\nétat\netc.\nmais\noui\n");
    }
    QStringList check(const char *text, const char *locale) {
        CSpelling spelling(services, oTextMethods);
        int LangID = 0;
        QString name = u(locale);
        spelling.init(1, LangID, name);
        spelling.Spell(u(text));
        return told(spelling.SpellingErrors());
    }
};

TEST_F(WordsOfDictionaries, AreThoseOfACheck) {
    const std::pair<const char *, QStringList> cases[] = {
        {"L’homme, l'homme etc. mais-oui e\u0301tat", {}},
        {"l’hmme", {u("l’hmme 0-6 1 l’homme")}}, // as it stood there
        {"l'hmme", {u("l'hmme 0-6 1 l'homme")}},
        {"oui. ouii.", {u("ouii 5-9 1 oui")}},
    };
    for (const auto &[text, errors] : cases)
        EXPECT_EQ(check(text, "fr-fr"), errors) << text;

    const char *text = "don’t HELO x9helo helo@example.org";
    EXPECT_EQ(check(text, "en-gb").size(), 8);
    set(store, settingKeys.typedText.curlyApostrophe, true);
    set(store, settingKeys.typedText.skipCapitals, true);
    set(store, settingKeys.typedText.skipDigits, true);
    EXPECT_EQ(check(text, "en-gb").size(), 3);
    set(store, settingKeys.typedText.skipAddresses, true);
    EXPECT_EQ(check(text, "en-gb"), QStringList());
}

} // namespace tolvo::test
