// SPDX-License-Identifier: MIT
#include "tests/text/engine.h"

using namespace tolvo;
using namespace tolvo::test;

namespace {

using Spacing = Engine;

struct Case {
    QString (cTextMethods::*tool)(QStringView) const;
    const char16_t *text;
    const char16_t *expected;
};

TEST_F(Spacing, examples) {
    constexpr auto trail = &cTextMethods::TrimTrail;
    constexpr auto both = &cTextMethods::TrimWhiteSpace;
    constexpr auto single = &cTextMethods::SingleSpace;
    constexpr auto toTabs = &cTextMethods::Spaces2tab;
    constexpr auto regular = &cTextMethods::RegularEOL;
    for (const Case &c : {
             Case{trail, u" a \t|\u00A0|b\r|", u" a||b|"},
             {trail, u"a ", u"a"},
             {&cTextMethods::LTrimWhiteSpace, u" ||\t\u00A0a |", u"a |"},
             {both, u"\t\u00A0 | a b\u00A0|", u"|a b|"},
             {&cTextMethods::TrimStopChars, u".a.?)]} ,;:!", u".a.?)]} "},
             {&cTextMethods::TrimQuotes, u"\"‘a'b”’", u"a'b"},
             {single, u"  a   b  ", u"  a b"},
             {single, u"\u00A0\u00A0a\u00A0b|  |", u"  a b||"},
             {single, u"a \t  \t b\t", u"a\t\tb"},
             {toTabs, u"a   b c  |  ", u"a\tb c\t|\t"},
             {regular, u"a\rb\nc|d\r", u"a|b|c|d"},
             {regular, u"\n\r\r\n\r\r", u"||||"},
         })
        EXPECT_EQ((engine.*c.tool)(lines(c.text)), lines(c.expected));
}

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

TEST_F(Spacing, joinsLinesOfParagraphs) {
    constexpr auto joined = &cTextMethods::Paragraph;
    for (const Case &c : {
             Case{joined, u"a  |b|c", u"a b c"},
             {joined, u"a|||| b|c|", u"a|| b c|"},
             {joined, u"a|* b|- c|\td|e", u"a|* b|- c|\td e"},
             {joined, u"1. a|b|iv) c|d|mix it|up", u"1. a|b iv) c|d mix it up"},
             {joined, u"12|a", u"12 a"},
             {joined, u"|a| |b", u"a|b"},
             {joined, u"", u""},
         })
        EXPECT_EQ((engine.*c.tool)(lines(c.text)), lines(c.expected))
            << testing::PrintToString(lines(c.text));
}

TEST_F(Spacing, tabsToSpaces) {
    EXPECT_EQ(engine.Tab2space(lines(u"ab\tc|ab\tc\t"), 3, 8), lines(u"ab   c|ab      c       "));
    EXPECT_EQ(engine.Tab2space(lines(u"ab\tc"), -5, 8), lines(u"ab   c"));
    EXPECT_EQ(engine.Tab2space(lines(u"1234567\t8"), 0, 8), lines(u"1234567 8"));
    EXPECT_EQ(engine.Tab2space(lines(u"\ta"), 0, 0), lines(u" a"));
}

} // namespace
