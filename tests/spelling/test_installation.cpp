// SPDX-License-Identifier: MIT
#include "spelling_world.h"

#include "spelling/dictionary_check.h"
#include "spelling/dictionary_installation.h"
#include "spelling/dictionary_package.h"
#include "spelling/found_languages.h"

#include <minizip/zip.h>

namespace tolvo::test {

class Installation : public SpellingWorld {
  public:
    QString place(const char *name) const { return folder.path() + u'/' + u(name); }
    void zip(const char *name, const std::vector<std::pair<const char *, QByteArray>> &files) {
        zipFile to = zipOpen64(place(name).toUtf8().constData(), APPEND_STATUS_CREATE);
        for (const auto &[path, contents] : files) {
            const zip_fileinfo info{};
            zipOpenNewFileInZip(to, path, &info, nullptr, 0, nullptr, 0, nullptr, Z_DEFLATED, 1);
            zipWriteInFileInZip(to, contents.constData(), unsigned(contents.size()));
            zipCloseFileInZip(to);
        }
        zipClose(to, nullptr);
    }
    QString add(const char *name) { return addDictionaries(services, place(name)).fault; }
    /// The locales that the user has added, and nothing else lies in the folder.
    QStringList own() const {
        QStringList locales;
        for (const FoundLanguage &found : foundLanguages(services)) {
            if (found.source == DictionarySource::User)
                locales += found.locale;
        }
        const QStringList folders =
            QDir(userDictionaries(services)).entryList(QDir::Dirs | QDir::Hidden | QDir::NoDotAndDotDot);
        EXPECT_EQ(folders.size(), locales.size()) << folders.join(u' ').toStdString();
        return locales;
    }

    const QByteArray aff = "SET UTF-8\n";
    const QByteArray dic = "2\nHaus/A\nJ\xc3\xa4nner\n";
};

TEST_F(Installation, TakesPairsAndPackages) {
    writeFile(place("de_AT.AFF"), aff);
    writeFile(place("de_AT.dic"), dic);
    EXPECT_EQ(add("de_AT.dic"), QString());
    EXPECT_EQ(own(), QStringList(u("de-at")));
    zip("suite.oxt", {{"META-INF/manifest.xml", "<m/>"},
                      {"dictionaries.xcu",
                       "<a><node><prop oor:name=\"Locations\"><value>%origin%/x/de_frami.aff "
                       "%origin%/x/de_frami.dic</value></prop><prop oor:name=\"Locales\"><value>de-CH de-LI"
                       "</value></prop></node></a>"},
                      {"x/de_frami.aff", aff},
                      {"x/de_frami.dic", dic},
                      {"x/fr.aff", aff},
                      {"x/fr.dic", dic},
                      {"hyph_de.dic", "UTF-8\n"}});
    EXPECT_EQ(addDictionaries(services, place("suite.oxt")).locales, QStringList({u("de-ch"), u("fr")}));
    EXPECT_EQ(own(), QStringList({u("de-at"), u("de-ch"), u("fr")}));
    EXPECT_EQ(dictionariesToAdd({folder.path()}), QStringList({place("de_AT.dic"), place("suite.oxt")}));

    writeFile(place("de_AT.dic"), "1\nFeber\n"); // replaces the one before
    EXPECT_EQ(add("de_AT.AFF"), QString());
    HunspellEngine engine;
    const auto files = findDictionary(u("de-at"), services);
    ASSERT_TRUE(engine.init(files->aff, files->dic));
    EXPECT_TRUE(engine.Spell(u("Feber")));
    EXPECT_FALSE(engine.Spell(u("Haus")));

    EXPECT_EQ(removeDictionary(services, *files), QString());
    EXPECT_EQ(own(), QStringList({u("de-ch"), u("fr")}));
    const auto ours = findDictionary(u("en-gb"), services);
    EXPECT_NE(removeDictionary(services, *ours), QString());
    EXPECT_NE(removeDictionary(services, {place("de_AT.AFF"), place("de_AT.dic")}), QString());
    EXPECT_TRUE(QFile::exists(place("de_AT.dic")) && findDictionary(u("en-gb"), services));
}

TEST_F(Installation, RefusesBrokenPairsInWords) {
    const std::tuple<const char *, QByteArray, QByteArray, const char *> cases[] = {
        {"de_DE", aff, "", "de_DE.dic is empty."},
        {"de_DE", aff, "Haus\n", "de_DE.dic is not a list of words: it doesn't begin with their number."},
        {"de_DE", aff, "2000000000\nHaus\n", "de_DE.dic claims to hold more words than it can."},
        {"de_DE", "SET KLINGON-8\n", dic, "de_DE.aff names an encoding that isn't known: KLINGON-8"},
        {"de_DE", aff, "1\nJ\xe4nner\n", "de_DE.dic isn't written in the encoding that de_DE.aff names."},
        {"de_DE", "SET ISO8859-1\n", dic, "de_DE.dic isn't written in the encoding that de_DE.aff names."},
        {"de_DE", "SET UTF-8\nFORBIDDENWORD A\n", "1\nHaus/A\n",
         "de_DE.aff and de_DE.dic don't fit together: not one of the words is accepted."},
        {"index", aff, dic,
         "The name 'index' doesn't say which language it is. Name the files as de_DE.aff and de_DE.dic are."},
        {"en_GB", aff, dic, "English (United Kingdom) comes with Tolvo already."},
    };
    for (const auto &[name, rules, words, fault] : cases) {
        writeFile(place(name) + u(".aff"), rules);
        writeFile(place(name) + u(".dic"), words);
        EXPECT_EQ(addDictionaries(services, place(name) + u(".aff")).fault, u(fault));
        EXPECT_EQ(own(), QStringList());
    }
    QFile::remove(place("de_DE.aff"));
    EXPECT_EQ(add("de_DE.dic"), u("de_DE.aff is missing."));
    QFile large(place("de_DE.aff"));
    ASSERT_TRUE(large.open(QIODevice::WriteOnly) && large.resize(200LL << 20));
    EXPECT_EQ(add("de_DE.dic"), u("de_DE.aff is too large: such a file may have at most 48 MB."));
    EXPECT_FALSE(HunspellEngine().init(place("de_DE.aff"), place("en_GB.dic")));
}

TEST_F(Installation, RefusesBrokenPackagesAsAWhole) {
    zip("out.oxt", {{"de_AT.aff", aff}, {"de_AT.dic", dic}, {"../../escaped.dic", dic}});
    zip("bomb.oxt", {{"de_AT.aff", aff + QByteArray(largestAff, '#')}, {"de_AT.dic", dic}});
    zip("half.oxt", {{"de_AT.aff", aff}, {"de_AT.dic", dic}, {"fr.aff", "SET X\n"}, {"fr.dic", dic}});
    zip("none.oxt", {{"readme.txt", "hello"}, {"de_AT.aff", aff}});
    writeFile(place("text.oxt"), "hello");
    zip("torn.oxt", {{"de_AT.aff", aff + QByteArray(5000, '#')}, {"de_AT.dic", dic}});
    QByteArray torn = fileContents(place("torn.oxt"));
    torn[45] = char(torn[45] ^ 0x55);
    writeFile(place("torn.oxt"), torn);
    const std::pair<const char *, const char *> cases[] = {
        {"out.oxt", "out.oxt holds a file that would lie outside of it: ../../escaped.dic"},
        {"bomb.oxt", "bomb.oxt is too large when it is unpacked."},
        {"half.oxt", "fr.aff names an encoding that isn't known: X"},
        {"none.oxt", "none.oxt holds no dictionary: no pair of an .aff and a .dic file."},
        {"text.oxt", "text.oxt is not a zip file, or is damaged."},
        {"torn.oxt", "torn.oxt is damaged."},
        {"missing.oxt", "missing.oxt is not a zip file, or is damaged."},
    };
    for (const auto &[name, fault] : cases) {
        EXPECT_EQ(add(name), u(fault));
        EXPECT_EQ(own(), QStringList()) << name;
    }
    EXPECT_TRUE(localesInList("<a><prop oor:name='Locations'><value>x.aff</prop>").isEmpty());
}

/// Rules that lead in a circle: a suggestion takes each once.
TEST_F(Installation, LivesWithRulesInACircle) {
    dictionary(u("de_AT"), "SET UTF-8\nREP 3\nREP a b\nREP b a\nREP ab ba\n", "2\nabab\nHaus\n");
    HunspellEngine engine;
    ASSERT_TRUE(engine.init(dictionaries() + u("/de_AT.aff"), dictionaries() + u("/de_AT.dic")));
    EXPECT_FALSE(engine.Spell(u("baba")));
    EXPECT_EQ(engine.suggest(u("bbab")), u("abab"));
}

} // namespace tolvo::test
