// SPDX-License-Identifier: MIT
#include "tests/text/engine.h"

using namespace tolvo;
using namespace tolvo::test;

namespace {

using Spacing = Engine;

TEST_F(Spacing, indents) {
    EXPECT_EQ(engine.Indent(lines(u"a|  |\t|"), u"> "), lines(u"> a||> \t|"));
    EXPECT_EQ(engine.Unindent(lines(u"> a|>b| > c|> > d|"), u"> "), lines(u"a|>b| > c|> d|"));
}

TEST_F(Spacing, removesBlankLines) {
    struct Row {
        bool single, multiple;
        const char16_t *one, *three;
    };
    for (const Row &row : {Row{false, false, u"a||b", u"a|||||b"},
                           {true, false, u"a|b", u"a||||b"},
                           {false, true, u"a||b", u"a||b"},
                           {true, true, u"a|b", u"a|b"}}) {
        EXPECT_EQ(engine.removeExtraLines(lines(u"a |\t|b | |"), row.single, row.multiple), lines(row.one));
        EXPECT_EQ(engine.removeExtraLines(lines(u"a|| \u00A0||b"), row.single, row.multiple),
                  lines(row.three));
    }
    EXPECT_EQ(engine.removeExtraLines(lines(u"a|b|"), false, false), lines(u"a|b"));
}

TEST_F(Spacing, tabsToSpaces) {
    EXPECT_EQ(engine.Tab2space(lines(u"ab\tc|ab\tc\t"), 3, 8), lines(u"ab   c|ab      c       "));
    EXPECT_EQ(engine.Tab2space(lines(u"ab\tc"), -5, 8), lines(u"ab   c"));
    EXPECT_EQ(engine.Tab2space(lines(u"1234567\t8"), 0, 8), lines(u"1234567 8"));
    EXPECT_EQ(engine.Tab2space(lines(u"\ta"), 0, 0), lines(u" a"));
}

} // namespace
