// SPDX-License-Identifier: MIT
#include "tests/text/engine.h"
#include "text/top_level_domains.h"

using namespace tolvo;
using namespace tolvo::test;

namespace {

using Checks = Engine;

TEST_F(Checks, punctuation) {
    struct Case {
        const char16_t *text;
        const char16_t *expected;
        const char16_t *messages = u"";
    };
    for (const Case &c : {
             Case{u"Hello ,world.", u"Hello, world."},
             {u"a  .", u"a."},
             {u"3.14 and 1,000 at 10:30", u"3.14 and 1,000 at 10:30"},
             {u"e.g. this and a.b.c. next,one", u"e.g. this and a.b.c. next, one"},
             {u"a.b.c:80/x(y) (", u"a.b.c:80/x(y) (", u"There is 1 unmatched opening ( bracket"},
             {u"a.b.c:80/x(y [", u"a.b.c:80/x(y [",
              u"There is 1 unmatched opening ( bracket|There is 1 unmatched opening [ bracket"},
             {u"word(s) call() word (aside) word(aside)", u"word(s) call() word (aside) word (aside)"},
             {u"( aside )b", u"(aside) b"},
             {u"(end).", u"(end)."},
             {u"\" word \"next", u"\"word\" next"},
             {u"don't 'x'y", u"don't 'x' y"},
             {u"say 'this", u"say 'this", u"There appears to be a closing single quote (') missing"},
             {u"say\"this", u"say \"this", u"There appears to be a closing quotes (\") missing"},
             {u"a)", u"a)", u"There is 1 unmatched closing ) bracket"},
             {u"[[ {", u"[ [{",
              u"There are 2 unmatched opening [ brackets|There is 1 unmatched opening { bracket"},
             {u"to a@b. next,one two", u"to a@b. next,one two"},
             {u"end.|next:-) ok", u"end.|next:-) ok", u"There is 1 unmatched closing ) bracket"},
             {u"a.b\tc,|\"d\"|", u"a. b\tc,|\"d\"|"},
         }) {
        said = {};
        EXPECT_EQ(engine.checkPunctuation(lines(c.text), false), lines(c.expected));
        EXPECT_EQ(said.warnings.join(u'~'), lines(c.messages)) << testing::PrintToString(lines(c.text));
    }
    said = {};
    (void)engine.checkPunctuation(u"(", false);
    EXPECT_EQ(said.titles, QStringList(QStringLiteral("Punctuation check")));
    (void)engine.checkPunctuation(u"(", true);
    EXPECT_EQ(said.titles.size(), 1);
}

TEST_F(Checks, statistics) {
    const auto column = [](const TextStatistics &statistics, bool selection) {
        QStringList values;
        for (const StatisticsRow &row : statistics.rows)
            values += selection ? row.selection : row.fullText;
        return values.join(u' ');
    };
    struct Case {
        const char16_t *text;
        const char *expected;
    };
    for (const Case &c : {
             Case{u"", "0 0 0 0 0 0 0 0 words"},
             {u"a b. c d?|", "22 9 6 4 2 1 2 2 words"},
             {u"see a.b.c now.", "28 14 12 5 1 1 1 5 words"},
             {u"go to a.b.c. now", "32 16 13 6 1 1 1 6 words"},
             {u"at a.b.c", "16 8 7 4 1 1 0 0 words"},
             {u"don't\u00A0well-known abc123 123abc a1b a- b a -b", "88 44 36 10 1 1 0 0 words"},
             {u"what?! e.g. \u00A0| a b", "38 17 12 5 2 2 3 1.67 words"},
         })
        EXPECT_EQ(column(engine.statistics(lines(c.text), {}), false), QLatin1StringView(c.expected))
            << testing::PrintToString(lines(c.text));
    const TextStatistics selected = engine.statistics(u"x", lines(u"a b. c d?|"));
    EXPECT_EQ(column(selected, true), QStringLiteral("22 10 6 4 2 1 2 2 words"));
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
    for (const auto *word :
         {u"example.org.", u"\"b.COM\")", u"a.txt", u"c:\\x", u"a//", u"a/b\\c", u"me@x", u"a.b.c", u"x.ac,ad"})
        EXPECT_TRUE(addresses.IsWebOrFileName(word));
    for (const auto *word : {u"", u"word.", u"1.2", u"a/b", u"make.it", u"a:b", u"...", u"a.txt/b"})
        EXPECT_FALSE(addresses.IsWebOrFileName(word));
    addresses.setTopLevelDomains(longTopLevelDomains());
    EXPECT_TRUE(addresses.IsWebOrFileName(u"make.it"));
    EXPECT_EQ(shortTopLevelDomains().count(u','), 248);
    EXPECT_EQ(longTopLevelDomains().count(u','), 280);

    struct Quote {
        const char16_t *before, *behind;
        bool isQuoteMark;
    };
    for (const Quote &c : {Quote{u"can", u"t", false},
                           {u"dogs", u" bones", false},
                           {u"", u"quoted", true},
                           {u"quoted", u"", true},
                           {u"they", u"VE.", false},
                           {u"s", u"", true},
                           {u"x s", u"", true},
                           {u"x|s", u"", false},
                           {u"rock", u"rev", true}})
        EXPECT_EQ(IsQuoteMark(lines(c.before) + u'\'' + lines(c.behind), lines(c.before).size() + 2),
                  c.isQuoteMark);
}

TEST_F(Checks, primitives) {
    EXPECT_EQ(engine.Count(u"aaaa", u"aa", Qt::CaseSensitive), QStringLiteral("3"));
    EXPECT_EQ(engine.Count(u"aAaa", u"aa", Qt::CaseSensitive), QStringLiteral("1"));
    EXPECT_EQ(engine.Count(u"", u"a", Qt::CaseInsensitive), QStringLiteral("0"));
    struct Place {
        int position, row, column;
    };
    for (const Place &c : {Place{0, 1, 1}, {2, 1, 3}, {3, 2, 0}, {4, 2, 1}, {6, 2, 3}, {7, -1, -1}}) {
        int row = -1;
        int column = -1;
        engine.getColRow(u"ab\r\ncd", c.position, row, column);
        EXPECT_TRUE(row == c.row && column == c.column) << c.position;
    }
    EXPECT_TRUE(engine.atStartOfWord(u"a b", 1) && engine.atStartOfWord(u"a b", 3));
    EXPECT_FALSE(engine.atStartOfWord(u"ab", 2));
    EXPECT_TRUE(engine.atEndOfWord(u"abc", 3));
    EXPECT_FALSE(engine.atEndOfWord(u"abc", 2));
    EXPECT_TRUE(engine.IsInList(u"B", u",a,b,") && engine.IsInList(u"a,B", u",a,b,"));
    EXPECT_FALSE(engine.IsInList(u"a", u"a,b") || engine.IsInList(u"", u",a,b,"));
    for (const auto &[model, expected] : {std::pair("Hello", "World"),
                                          {"HELLO", "WORLD"},
                                          {"hello", "world"},
                                          {"1ello", "world"},
                                          {"H", "World"},
                                          {"", "world"}})
        EXPECT_EQ(engine.smartMatch(QString::fromLatin1(model), u"world"), QLatin1StringView(expected));
}

} // namespace
