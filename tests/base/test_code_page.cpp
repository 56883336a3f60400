// SPDX-License-Identifier: MIT
#include "base/character_sets.h"
#include "base/code_page.h"
#include "tests/support/print.h"

#include <gtest/gtest.h>

using namespace tolvo;

namespace {

TEST(CodePage, goesThereAndBack) {
    for (int code = 0; code < 256; ++code)
        EXPECT_EQ(toAnsi(fromAnsi(static_cast<std::uint8_t>(code))), code);
    EXPECT_EQ(fromAnsi(0x80), u'\u20AC');
    EXPECT_EQ(fromAnsi(0x9F), u'\u0178');
    EXPECT_EQ(fromAnsi(0xA0), u'\u00A0');
    EXPECT_EQ(toAnsi(u'\u0391'), '?');
}

TEST(CodePage, knowsItsLetters) {
    for (const QChar letter : QStringView(u"azAZ\u00E9\u00DF\u00FF\u00D8\u0153\u0178\u0192\u00AA\u00B5"))
        EXPECT_TRUE(isLetter(letter.unicode())) << int{letter.unicode()};
    for (const QChar other : QStringView(u"09_-'\u00D7\u00F7\u20AC\u2019\u0391\u0431\u4E00\u0130\u00B2"))
        EXPECT_FALSE(isLetter(other.unicode())) << int{other.unicode()};
    EXPECT_FALSE(IsAlpha(u""));
    EXPECT_TRUE(IsAlpha(u"a1"));
    EXPECT_FALSE(IsAlpha(u"1a"));
    const auto count = [](bool (*is)(char16_t)) {
        int found = 0;
        for (char16_t unit = 0; unit < 0xFFFF; ++unit)
            found += is(unit) ? 1 : 0;
        return found;
    };
    EXPECT_EQ(count(isUpperLetter), 60);
    EXPECT_EQ(count(isLowerLetter), 65);
    EXPECT_EQ(SEARCH_CHARS_UPPER().size(), 60);
    EXPECT_EQ(SEARCH_CHARS_LOWER().size(), 65);
}

TEST(CodePage, mapsCaseUnitByUnit) {
    struct Case {
        const char16_t *text, *upper, *lower;
    };
    for (const Case &c : {Case{u"aZ9_", u"AZ9_", u"az9_"},
                          {u"\u00E9\u00FF\u0153", u"\u00C9\u0178\u0152", u"\u00E9\u00FF\u0153"},
                          {u"\u00DF\uFB01", u"\u00DF\uFB01", u"\u00DF\uFB01"},
                          {u"\u0130\u03A3", u"\u0130\u03A3", u"\u0130\u03C3"},
                          {u"\xD801\xDC28", u"\xD801\xDC28", u"\xD801\xDC28"}}) {
        EXPECT_EQ(toUpper(QStringView(c.text)), QStringView(c.upper));
        EXPECT_EQ(toLower(QStringView(c.text)), QStringView(c.lower));
    }
    EXPECT_TRUE(equalsIgnoringCase(u"\u00C9t\u00E9", u"\u00E9T\u00C9"));
    EXPECT_FALSE(equalsIgnoringCase(u"ss", u"\u00DF"));
    EXPECT_FALSE(equalsIgnoringCase(u"a", u"ab"));
}

} // namespace
