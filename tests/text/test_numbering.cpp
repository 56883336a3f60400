// SPDX-License-Identifier: MIT
#include "tests/text/engine.h"
#include "text/numbering.h"

using namespace tolvo;
using namespace tolvo::test;
using namespace Qt::StringLiterals;

namespace {

using Numbering = Engine;
using enum ListStyle;
using enum FollowChar;

TEST(ListNumber, isFormattedByStyle) {
    struct Case {
        qint64 number;
        ListStyle style;
        FollowChar around;
        const char16_t *expected;
        int spaces = 0; ///< 0: a TAB after the mark
    };
    for (const Case &c : {Case{7, Decimal, None, u"7\t"},
                          {27, LowerLetters, None, u"aa\t"},
                          {702, UpperLetters, Bracket, u"ZZ)\t"},
                          {4, LowerRoman, Stop, u"iv.\t"},
                          {4999, UpperRoman, Brackets, u"(MMMMCMXCIX)\t"},
                          {5000, UpperRoman, None, u"???\t"},
                          {0, LowerRoman, None, u"?\t"},
                          {3, Decimal, Stop, u"3.  ", 4},
                          {123, Decimal, Stop, u"12", 2},
                          {0, LowerLetters, None, u"a\t"},
                          {9, Decimal, None, u"9", -5}})
        EXPECT_EQ(numlistFormatNumber(c.number, c.style, c.around, c.spaces == 0, c.spaces), c.expected);
}

TEST_F(Numbering, numbersLinesAndOutlines) {
    struct Case {
        ListStyle style;
        int spaces; ///< 0: TABs
        const char16_t *text, *expected;
        int start = 1;
    };
    for (const Case &c : {Case{Decimal, 0, u"a||b|  |c", u"1.\ta||2.\tb|  |3.\tc"},
                          {Decimal, 4, u"a| more|b|", u"1.  a|     more|2.  b|"},
                          {LowerRoman, 0, u"a|\tmore|b", u"iv.\ta|\t\tmore|v.\tb", 4},
                          {Outline, 0, u"a|\tb|\tc|d", u"1.\ta|\t1.1.\tb|\t1.2.\tc|2.\td"},
                          {Outline, 0, u"a|\tb|c|\td", u"1.\ta|\t1.1.\tb|2.\tc|\t2.1.\td"},
                          {Outline, 0, u"a|\t\tb|\tc|", u"3.\ta|\t\t3.0.1.\tb|\t3.1.\tc|", 3},
                          {Outline, 4, u"a|    b|\tc| d ", u"1.  a|    1.1.b|    1.2.c|2.  d"},
                          {Outline, -1, u"a| b", u"1a| 1b"},
                          {Decimal, 0, u"", u""}})
        EXPECT_EQ(engine.number(lines(c.text), c.start, c.style, Stop, c.spaces == 0, c.spaces),
                  lines(c.expected));
}

TEST_F(Numbering, numbersLinesOfAListing) {
    struct Case {
        const char16_t *text, *expected;
        int start = 1;
        int step = 1;
        int every = 1;
        bool blankLines = false;
        bool pad = true;
        bool right = true;
    };
    for (const Case &c :
         {Case{u"a||b", u"1 a||2 b"},
          {u"a||b|", u"1 a|2 |3 b|4 ", 1, 1, 1, true},
          {u"a|b|c", u" 8 a| 9 b|10 c", 8},
          {u"a|b|c", u"8  a|9  b|10 c", 8, 1, 1, false, true, false},
          {u"a|b|c", u"8 a|9 b|10 c", 8, 1, 1, false, false},
          {u"a|b|c|d", u"   a|12 b|   c|16 d", 10, 2, 2},
          {u"a|b|c", u"10 a|12 b|14 c", 10, 2, 0},
          {u"a|b", u"1 a|2 b", 1, -7},
          {u"a|b|c", u"1          a|1000000001 b|2000000001 c", 1, 1'000'000'000, 1, false, true, false},
          {u"", u""}})
        EXPECT_EQ(engine.LineNumber(lines(c.text), c.start, c.step, c.every, c.blankLines, c.pad, c.right),
                  lines(c.expected));
    const QString listing = engine.LineNumber(u"x\r\n"_s.repeated(119) + u'x', 1, 1, 1, true, true, true);
    EXPECT_TRUE(listing.startsWith(u"  1 x\r\n  2 x\r\n"));
    EXPECT_TRUE(listing.endsWith(u"\r\n120 x"));
}

TEST_F(Numbering, asksTheNeighboursOfARomanNumeral) {
    EXPECT_EQ(RomanNeighbourAgrees({u"i. a"_s, u"ii. b"_s}, 0), 2);
    EXPECT_EQ(RomanNeighbourAgrees({u"i. said so"_s}, 0), std::nullopt);
}

TEST_F(Numbering, givesTheTextBack) {
    QStringList plain;
    for (int i = 0; i < 60; ++i)
        plain.append(u"Entry of a list"_s);
    const QString text = plain.join(u"\r\n"_s);
    for (const ListStyle style : {Decimal, LowerRoman, UpperRoman, Outline}) {
        for (const bool tab : {false, true})
            EXPECT_EQ(engine.removeNumbers(engine.number(text, 1, style, Stop, tab, 12)), text)
                << static_cast<int>(style);
    }
    EXPECT_EQ(engine.RemoveLineNumbers(engine.LineNumber(text, 1, 1, 1, true, true, true)), text);
    EXPECT_EQ(engine.removeBullets(engine.Indent(text, u"\u2022\t")), text);
}

} // namespace
