// SPDX-License-Identifier: MIT
#include "spelling_world.h"

namespace tolvo::test {

class Hunspell_ : public SpellingWorld {
  public:
    LocalDictionary load(const char *locale = "en-gb") {
        LocalDictionary local;
        local.initHunspell(services, u(locale));
        return local;
    }
    QStringList check(const char *text) { return told(load().checkHunspell(u(text))); }
};

TEST_F(Hunspell_, ChecksWordByWord) {
    const std::pair<const char *, QStringList> cases[] = {
        {"x", {}}, // a text of one character is never checked
        {"", {}},
        {"zqx xzj", {u("zqx 0-3 1"), u("xzj 4-7 1")}},
        {"the\rteh", {u("teh 4-7 1 the")}},
        {"fox1teh", {u("teh 4-7 1 the")}},
        {"don't well-known well-teh", {u("well-teh 17-25 1 well-known")}},
        {"The FOX hELLO", {u("hELLO 8-13 1 hello")}},
    };
    for (const auto &[text, errors] : cases)
        EXPECT_EQ(check(text), errors) << text;
}

TEST_F(Hunspell_, FindsDictionariesWithoutRegardToCase) {
    const QStringList folders{dictionaries(), folder.path() + u("/user")};
    EXPECT_EQ(findDictionary(u("en-gb"), folders)->aff, dictionaries() + u("/en_GB.aff"));
    EXPECT_EQ(findDictionary(u("EN_gb"), folders)->dic, dictionaries() + u("/en_GB.dic"));
    for (const char *wrong : {"", "en", "en-gbx", "../Dictionaries/en_GB", "de-de"})
        EXPECT_FALSE(findDictionary(u(wrong), folders)) << wrong;
    QDir().mkpath(folders[1]);
    dictionary(u("de_de"), "SET UTF-8\n", "1\nHaus\n");
    dictionary(u("DE_DE"), "SET UTF-8\n", "1\nHaus\n");
    EXPECT_EQ(findDictionary(u("de-de"), folders)->dic, dictionaries() + u("/de_de.dic"));
}

TEST_F(Hunspell_, SpeaksTheDictionarysEncoding) {
    dictionary(u("xx_l1"), "SET ISO8859-1\nTRY e\xe9\n", "2\ncaf\xe9\n\xe9t\xe9\n");
    dictionary(u("xx_bom"), "\xef\xbb\xbfSET UTF-8\nTRY e\xc3\xa9\n",
               "\xef\xbb\xbf"
               "2\ncaf\xc3\xa9\n\xc3\xa9t\xc3\xa9\n");
    dictionary(u("xx_cyr"), "SET microsoft-cp1251\nTRY \xe0\xe4\n", "1\n\xe4\xe0\n");
    for (const char *locale : {"xx-l1", "xx-bom"}) {
        LocalDictionary local = load(locale);
        EXPECT_EQ(told(local.checkHunspell(u("caf\u00e9 \u00e9t\u00e9"))), QStringList()) << locale;
        EXPECT_EQ(told(local.checkHunspell(u("cafe"))), QStringList(u("cafe 0-4 1 caf\u00e9"))) << locale;
        EXPECT_FALSE(local.Spell(u("\u0153uvre"))) << locale; // has no place in ISO 8859-1
    }
    LocalDictionary cyrillic = load("xx-cyr");
    EXPECT_TRUE(cyrillic.Spell(u("\u0434\u0430")));
    EXPECT_FALSE(cyrillic.Spell(u("\u0430\u0434")));
    EXPECT_EQ(said(), QStringList());
}

TEST_F(Hunspell_, ReportsADictionaryThatCannotBeLoaded) {
    const std::pair<const char *, const char *> cases[] = {{"SET UTF-8\n", ""},
                                                           {"", "1\nword\n"},
                                                           {"SET UTF-8\n", "word\n"},
                                                           {"SET NO-SUCH-SET\n", "1\nword\n"}};
    const QStringList report{u("5003 Unable to initialise Hunspell provider (CSpelling::init)")};
    for (const auto &[aff, dic] : cases) {
        dictionary(u("xx_yy"), aff, dic);
        LocalDictionary local = load("xx-yy");
        EXPECT_EQ(said(), report) << aff << dic;
        EXPECT_EQ(told(local.checkHunspell(u("zqx qzk"))), QStringList());
    }
    (void)load("no-such");
    EXPECT_EQ(said(), report);
    dictionary(u("xx_yy"), "SET UTF-8\n", "3000\nword\n"); // cut off: what is there counts
    EXPECT_EQ(told(load("xx-yy").checkHunspell(u("word wrod"))), QStringList(u("wrod 5-9 1 word")));
}

TEST_F(Hunspell_, KnowsThePersonalWords) {
    const QString path = personalDictionaryPath(services);
    EXPECT_EQ(path, dictionaries() + u("/persdict.dat"));
    for (const char *list : {"zqx\r\n\r\nqzk\r\n", "zqx\n\nqzk", "\xef\xbb\xbf\nzqx\nqzk\n"}) {
        writeFile(path, list);
        EXPECT_EQ(check("zqx qzk"), QStringList()) << list;
    }
    writeFile(path, "caf\xe9"); // from a program that wrote the 8-bit code page, and no line end
    AddWordToDict(boxes, path, u("h\u00e9zqx"));
    AddWordToDict(boxes, path, u("zqx"));
    EXPECT_EQ(fileContents(path), "caf\xe9\r\nh\xc3\xa9zqx\r\nzqx\r\n");
    EXPECT_EQ(check("caf\u00e9 h\u00e9zqx zqx"), QStringList());
    EXPECT_EQ(said(), QStringList());

    QFile::remove(path);
    expectFailure(
        failureNumber::fileNotFound, [&] { (void)check("word"); }, path);
    AddWordToDict(boxes, path, u("zqx"));
    EXPECT_EQ(said(), QStringList(u("53 File not found: ") + path + u(" (CSpelling::AddWordToDict)")));
    prepareSpelling(services);
    EXPECT_EQ(fileContents(path), "");

    const QString silent =
        u("5007 After the Deadline did not respond. Please try again later' (CSpelling::Spell)");
    for (const int provider : {1, 2}) {
        Check spelling(*this, provider);
        EXPECT_EQ(spelling.locale, u("en-gb"));
        spelling.AddToCustomDic(provider == 1 ? u("zqx") : u("never"));
        EXPECT_TRUE(spelling.Spell(u("zqx")) || provider == 2); // the running check doesn't know the word
        EXPECT_EQ(said(), QStringList(provider - 1, silent));
    }
    EXPECT_EQ(fileContents(path), "zqx\r\n");
    EXPECT_EQ(check("zqx"), QStringList());
}

} // namespace tolvo::test
