// SPDX-License-Identifier: MIT
#include "base/code_page.h"
#include "base/list_marks.h"
#include "base/numbers.h"
#include "tests/base/print.h"

#include <gtest/gtest.h>

using namespace tolvo;

namespace {

struct Case {
    const char16_t *line;
    const char16_t *number = nullptr; ///< none: no mark
    int length = 0;
    int tenths = 0;
};

void expectMarks(std::optional<ListMark> (*parse)(QStringView), std::initializer_list<Case> cases) {
    for (const Case &c : cases) {
        const auto mark = parse(c.line);
        ASSERT_EQ(mark.has_value(), c.number != nullptr) << shown(c.line);
        if (!mark)
            continue;
        EXPECT_EQ(mark->number, QStringView(c.number));
        EXPECT_EQ(mark->length, c.length) << shown(c.line);
        EXPECT_EQ(mark->tenths, c.tenths) << shown(c.line);
    }
}

TEST(ListMarks, ofDecimalNumbers) {
    expectMarks(ParseDecimalMark, {{u"12. Item", u"12", 3, 5},
                                   {u"12 apples", u"12", 3, 3},
                                   {u"137) x", u"137", 4, 3},
                                   {u"(4) x", u"4", 3, 5},
                                   {u"1.2.3 x", u"1.2.3", 6, 3},
                                   {u"1.2.3. x", u"1.2.3", 6, 5},
                                   {u"7\tx", u"7", 2, 5},
                                   {u"12.", u"12", 3, 5},
                                   {u"(4. x"},
                                   {u"12"},
                                   {u"12a"},
                                   {u"1,2 x"},
                                   {u" 1. x"},
                                   {u"("},
                                   {u""}});
}

TEST(ListMarks, ofRomanNumerals) {
    expectMarks(ParseRomanMark, {{u"(iv) x", u"iv", 4, 5},
                                 {u"(II) x", u"ii", 4, 9},
                                 {u"x. y", u"x", 2, 7},
                                 {u"MIX) it", u"mix", 4, 3},
                                 {u"i.", u"i", 2, 3},
                                 {u"iii\tz", u"iii", 4, 7},
                                 {u"i said"},
                                 {u"(i. x"},
                                 {u"iiii. x"},
                                 {u"ivxlcdm"},
                                 {u"()"},
                                 {u""}});
}

TEST(ListMarks, romanNumeralsAreTold) {
    for (int number = 1; number < 4000; ++number) {
        EXPECT_TRUE(IsRomanNumeral(ToRoman(number))) << number;
        EXPECT_TRUE(IsRomanNumeral(toLower(ToRoman(number)))) << number;
    }
    for (const char16_t *text : {u"mmmm", u"iiii", u"vv", u"ic", u"cmcm", u"xm", u"iviv", u"mm m", u"x1"})
        EXPECT_FALSE(IsRomanNumeral(text)) << shown(text);
    EXPECT_TRUE(IsRomanNumeral(u""));
}

} // namespace
