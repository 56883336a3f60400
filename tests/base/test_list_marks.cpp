// SPDX-License-Identifier: MIT
#include "base/code_page.h"
#include "base/list_marks.h"
#include "base/numbers.h"
#include "tests/support/print.h"

#include <gtest/gtest.h>

using namespace tolvo;

namespace {

/// Examples "line→number length tenths"; nothing after the arrow: no mark.
void expectMarks(std::optional<ListMark> (*parse)(QStringView), std::initializer_list<QStringView> examples) {
    for (const QStringView example : examples) {
        const qsizetype arrow = example.indexOf(u'→');
        const auto mark = parse(example.first(arrow));
        const QString found =
            mark ? QString("%1 %2 %3").arg(mark->number).arg(mark->length).arg(mark->tenths) : "";
        EXPECT_EQ(found, example.sliced(arrow + 1)) << shown(example);
    }
}

TEST(ListMarks, areNumbersAndNumerals) {
    expectMarks(ParseDecimalMark, {u"12. Item→12 3 5", u"12 apples→12 3 3", u"137) x→137 4 3", u"(4) x→4 3 5",
                                   u"1.2.3 x→1.2.3 6 3", u"1.2.3. x→1.2.3 6 5", u"7\tx→7 2 5", u"12.→12 3 5",
                                   u"(4. x→", u"12→", u"12a→", u"1,2 x→", u" 1. x→", u"(→", u"→"});
    expectMarks(ParseRomanMark,
                {u"(iv) x→iv 4 5", u"(II) x→ii 4 9", u"x. y→x 2 7", u"MIX) it→mix 4 3", u"i.→i 2 3",
                 u"iii\tz→iii 4 7", u"i said→", u"(i. x→", u"iiii. x→", u"ivxlcdm→", u"()→", u"→"});
}

TEST(ListMarks, romanNumeralsAreRecognised) {
    for (int number = 1; number < 4000; ++number) {
        EXPECT_TRUE(IsRomanNumeral(ToRoman(number))) << number;
        EXPECT_TRUE(IsRomanNumeral(toLower(ToRoman(number)))) << number;
    }
    for (const char16_t *text : {u"mmmm", u"iiii", u"vv", u"ic", u"cmcm", u"xm", u"iviv", u"mm m", u"x1"})
        EXPECT_FALSE(IsRomanNumeral(text)) << shown(text);
    EXPECT_TRUE(IsRomanNumeral(u""));
}

} // namespace
