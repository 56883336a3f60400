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

TEST_F(Numbering, makesRoomForTheLastNumber) {
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
