// SPDX-License-Identifier: MIT
#include "tests/text/engine.h"
#include "text/Tokens.h"
#include "text/top_level_domains.h"

using namespace tolvo;
using namespace tolvo::test;
using namespace Qt::StringLiterals;

namespace {

using Checks = Engine;

TEST_F(Checks, punctuation) {
    (void)engine.checkPunctuation(u"(", false);
    EXPECT_EQ(said.titles, QStringList(u"Punctuation check"_s));
    (void)engine.checkPunctuation(u"(", true);
    EXPECT_EQ(said.titles.size(), 1);
}

TEST_F(Checks, statisticsHaveAColumnForTheSelection) {
    const TextStatistics selected = engine.statistics(u"x", lines(u"a b. c d?|"));
    EXPECT_EQ(selected.rows.front().selection, u"22"_s);
    EXPECT_EQ(selected.rows.front().fullText, u"2"_s);
    EXPECT_TRUE(selected.hasSelection);
    EXPECT_FALSE(engine.statistics(u"x", {}).hasSelection);
}

TEST_F(Checks, wordRules) {
    for (const auto *word : {u"e.g.", u"U.S.A.", u"wait...", u"(e.g.)", u"…", u"a.1.", u"[a.b.]"})
        EXPECT_TRUE(IsAbbreviation(word));
    for (const auto *word : {u"", u"a.", u"ab", u"U.S", u"Ph.D.", u"etc.", u"1.a.", u"a.b.c", u"abc."})
        EXPECT_FALSE(IsAbbreviation(word));

    AddressRules addresses([](const QString &extension) { return extension == u"txt"; });
    addresses.setTopLevelDomains(shortTopLevelDomains());
    for (const auto *word : {u"example.org.", u"\"b.COM\")", u"a.txt", u"c:\\x", u"a//", u"a/b\\c", u"me@x",
                             u"a.b.c", u"x.ac,ad"})
        EXPECT_TRUE(addresses.IsWebOrFileName(word));
    for (const auto *word : {u"", u"word.", u"1.2", u"a/b", u"make.it", u"a:b", u"...", u"a.txt/b"})
        EXPECT_FALSE(addresses.IsWebOrFileName(word));
    addresses.setTopLevelDomains(longTopLevelDomains());
    EXPECT_TRUE(addresses.IsWebOrFileName(u"make.it"));
    EXPECT_EQ(shortTopLevelDomains().count(u','), 248);
    EXPECT_EQ(longTopLevelDomains().count(u','), 280);

    // The caret stands at the quote mark in question.
    const auto isQuoteMark = [](const char16_t *picture) {
        const QString text = lines(picture);
        return IsQuoteMark(QString(text).replace(u'^', u'\''), text.indexOf(u'^') + 2);
    };
    for (const auto *picture : {u"^quoted", u"quoted^", u"s^", u"x s^", u"rock^rev"})
        EXPECT_TRUE(isQuoteMark(picture));
    for (const auto *picture : {u"can^t", u"dogs^ bones", u"they^VE.", u"x|s^"})
        EXPECT_FALSE(isQuoteMark(picture));
}

TEST_F(Checks, wordsAndTheirPlaces) {
    EXPECT_TRUE(unitAt(u"ab", 2) == u'b' && unitAt(u"ab", 3) == noUnit);
    EXPECT_EQ(StripBrackets(u"([a)]}"), QStringView(u"a"));
    EXPECT_EQ(WordBefore(u"a re-run", 8, false), QStringView(u"re-run"));
    EXPECT_EQ(WordBefore(u"a re-run", 8, true), QStringView(u"run"));
    EXPECT_EQ(WordAfter(u"don't go", 1, 8, true), QStringView(u"don't"));
    EXPECT_EQ(WordAfter(u"don't go", 1, 2, true), QStringView(u"do"));
    EXPECT_EQ(Tokens(u"see (e.g. this)", AddressRules({})).WordAt(6), QStringView(u"(e.g."));
}

TEST_F(Checks, primitives) {
    EXPECT_EQ(engine.Count(u"aaaa", u"aa", Qt::CaseSensitive), u"3");
    EXPECT_EQ(engine.Count(u"aAaa", u"aa", Qt::CaseSensitive), u"1");
    for (const auto &[position, place] :
         {std::pair(0, "1 1"), {2, "1 3"}, {3, "2 0"}, {4, "2 1"}, {6, "2 3"}, {7, "-1 -1"}}) {
        int row = -1, column = -1;
        engine.getColRow(u"ab\r\ncd", position, row, column);
        EXPECT_EQ(QString("%1 %2").arg(row).arg(column), place) << position;
    }
    EXPECT_TRUE(engine.atStartOfWord(u"a b", 1) && engine.atStartOfWord(u"a b", 3) &&
                engine.atEndOfWord(u"abc", 3));
    EXPECT_FALSE(engine.atStartOfWord(u"ab", 2) || engine.atEndOfWord(u"abc", 2));
    EXPECT_TRUE(engine.IsInList(u"B", u",a,b,") && engine.IsInList(u"a,B", u",a,b,"));
    EXPECT_FALSE(engine.IsInList(u"a", u"a,b") || engine.IsInList(u"", u",a,b,"));
}

} // namespace
