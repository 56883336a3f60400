// SPDX-License-Identifier: MIT
#include "spelling_world.h"

#include "spelling/UserDictionary.h"
#include "spelling/user_dictionaries.h"
#include "spelling/word_list.h"

#include <thread>

namespace tolvo::test {

class UserDictionaries : public SpellingWorld {
  public:
    UserDictionaries() { dictionary(u("de_AT"), "SET UTF-8\n", "1\nHaus\n"); }

    bool isKnown(const char *one, const char *locale) {
        LocalDictionary local;
        local.initHunspell(services, u(locale));
        return local.Spell(u(one));
    }
    QString path = folder.filePath(u("list.txt"));
};

TEST_F(UserDictionaries, BelongToOneLanguage) {
    addUserWord(services, u("en-gb"), u("zqx"));
    EXPECT_TRUE(isKnown("zqx", "en_GB"));
    EXPECT_FALSE(isKnown("zqx", "de-at"));
    addUserWord(services, u("de-AT"), u("xzj"));
    EXPECT_TRUE(isKnown("xzj", "de-at"));
    EXPECT_FALSE(isKnown("xzj", "en-gb"));
    EXPECT_EQ(fileContents(dictionaries() + u("/persdict.dat")), "zqx\r\n");
    EXPECT_EQ(fileContents(dictionaries() + u("/persdict_de_at.dat")), "xzj\r\n");
    EXPECT_EQ(userDictionaryPath(services, u("../a")), dictionaries() + u("/persdict_.._a.dat"));
}

TEST_F(UserDictionaries, LoseAndKeepWords) {
    const struct {
        QByteArray before;
        QStringList removed;
        QByteArray after;
    } cases[] = {
        {"a\r\nb\r\na\r\n", {u("a")}, "b\r\n"},
        {"a\nb", {u("b"), u("c")}, "a\r\n"},
        {"caf\xe9\nb\n\n", {u("b")}, "caf\xe9\r\n\r\n"},
        {"caf\xe9\ncaf\xc3\xa9\nb", {u("café")}, "b\r\n"},
        {"", {u("a")}, ""},
    };
    for (const auto &row : cases) {
        writeFile(path, row.before);
        removeWords(path, row.removed);
        EXPECT_EQ(fileContents(path), row.after) << row.before.constData();
    }
    expectFailure(
        failureNumber::fileNotFound, [&] { removeWords(path + u("x"), {u("a")}); }, path + u("x"));
}

TEST_F(UserDictionaries, AreEditedAsLists) {
    UserDictionary words(services, u("de-at"));
    EXPECT_EQ(words.words(), QStringList());
    EXPECT_EQ(words.add({u("zebra"), u(" apfel "), u("zwei worte"), u(""), u("zebra")}), 2);
    EXPECT_EQ(words.add({u("apfel"), u("Birne")}), 1);
    EXPECT_EQ(words.words(), QStringList({u("apfel"), u("Birne"), u("zebra")}));
    words.exportTo(path);
    EXPECT_EQ(fileContents(path), "apfel\nBirne\nzebra\n");
    words.remove({u("apfel"), u("zebra")});
    EXPECT_EQ(words.words(), QStringList(u("Birne")));
    EXPECT_EQ(UserDictionary::wordsOf(path), QStringList({u("apfel"), u("Birne"), u("zebra")}));
    writeFile(path, "caf\xe9\r\n\r\ntwo words\ncaf\xc3\xa9");
    EXPECT_EQ(UserDictionary::wordsOf(path), QStringList(u("caf\u00e9")));
    const QString nowhere = folder.filePath(u("no/where"));
    expectFailure(failureNumber::fileAccess, [&] { words.exportTo(nowhere); }, {});
}

TEST_F(UserDictionaries, AreOfferedForEachLanguage) {
    writeFile(dictionaries() + u("/persdict_fr_ch.dat"), "mot\r\n");
    QStringList offered;
    for (const UserLanguage &language : userLanguages(services))
        offered += language.locale;
    EXPECT_EQ(offered.join(u' '), u("de-at en-gb fr-ch"));
}

TEST_F(UserDictionaries, TakeWordsOfSeveralRunsAtTheSameTime) {
    constexpr int words = 40;
    writeFile(path, "first"); // without a line end
    const auto run = [this](const char *name) {
        for (int i = 0; i < words; ++i) {
            appendWords(path, {u(name) + QString::number(i)});
            if (i % 10 == 9)
                removeWords(path, {u(name) + QString::number(i)});
        }
    };
    std::thread one(run, "a");
    std::thread other(run, "b");
    one.join();
    other.join();
    QStringList expected{u("first")};
    for (const char *name : {"a", "b"}) {
        for (int i = 0; i < words; ++i) {
            if (i % 10 != 9)
                expected += u(name) + QString::number(i);
        }
    }
    QStringList found = readWordList(path);
    expected.sort();
    found.sort();
    EXPECT_EQ(found, expected);
    EXPECT_FALSE(QFile::exists(path + u(".lock")));
}

} // namespace tolvo::test
