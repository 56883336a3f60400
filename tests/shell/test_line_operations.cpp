// SPDX-License-Identifier: MIT
// What becomes of a text by a pattern.
#include "shell/pattern_operations.h"
#include "tests/support/print.h"
#include "tests/support/silent_host.h"
#include "text/cTextMethods.h"

#include <gtest/gtest.h>

using namespace tolvo;
using namespace tolvo::test;
using namespace Qt::StringLiterals;

namespace {

using Mode = PatternLinesSettings::Mode;

struct PatternLines : ::testing::Test {
    SilentHost host;
    const cTextMethods engine{host, [](const QString &) { return false; }};
};

TEST_F(PatternLines, areLookedAtOneByOne) {
    struct Row {
        PatternLinesSettings settings;
        const char16_t *text;
        const char16_t *kept; ///< "|" is a line end
    };
    const Row rows[] = {
        {{.pattern = u"a\\s+b"_s, .mode = Mode::RegularExpression}, u"a|b|a b|a\nb", u"a b|a\nb"},
        {{.pattern = u"(?=b)|^$"_s, .mode = Mode::RegularExpression}, u"ab||c|", u"ab||"},
        {{.pattern = u"^b$"_s, .mode = Mode::RegularExpression}, u"a\nb|b|ab|b\ra", u"a\nb|b|b\ra"},
        {{.pattern = u"[^a]"_s, .mode = Mode::RegularExpression}, u"a|a|aa", u""},
        {{.pattern = u"É"_s, .mode = Mode::RegularExpression}, u"é|e", u"é"},
        {{.pattern = u"É"_s, .mode = Mode::RegularExpression, .matchCase = true}, u"é|É", u"É"},
        {{.pattern = u"b"_s, .wholeWords = true}, u"b|ab|a b|b!|", u"b|a b|b!|"},
        {{.pattern = u"a\\nb"_s, .specialChars = true}, u"a|b|a\\nb", u""},
        {{.pattern = u"a\\nb"_s}, u"a|b|a\\nb", u"a\\nb"},
        {{.pattern = u"a*c"_s, .mode = Mode::Wildcard}, u"abc|a|c|ac", u"abc|ac"},
        {{.pattern = u"?"_s, .mode = Mode::Wildcard}, u"a||\xD800|", u"a|\xD800|"},
        {{.pattern = u"a|b"_s}, u"", u""},
    };
    for (const auto &[settings, text, kept] : rows) {
        const auto unfolded = [](const char16_t *picture) {
            return QString::fromUtf16(picture).replace(u'|', u"\r\n"_s);
        };
        const ChosenLines chosen = patternLines(unfolded(text), settings, engine);
        EXPECT_EQ(chosen.text, unfolded(kept)) << shown(settings.pattern);
        EXPECT_EQ(chosen.trouble, u"");
    }
}

TEST_F(PatternLines, stayWhenThePatternIsNoneOrTakesTooLong) {
    const QString text = u"a\r\nb\r\n"_s;
    for (const auto &[pattern, trouble] :
         {std::pair(u"a)"_s, u"character 2"_s), {u"\\1("_s, u"not closed"_s}, {u"*"_s, u"character 1"_s}}) {
        const ChosenLines chosen =
            patternLines(text, {.pattern = pattern, .mode = Mode::RegularExpression}, engine);
        EXPECT_EQ(chosen.text, text);
        EXPECT_TRUE(chosen.trouble.contains(trouble)) << chosen.trouble.toStdString();
    }
    const ChosenLines escape = patternLines(text, {.pattern = u"\\xG"_s, .specialChars = true}, engine);
    EXPECT_TRUE(escape.text == text && escape.trouble.contains(u"Invalid hex"_s))
        << escape.trouble.toStdString();

    MatchBudget spent;
    spent.end(u"The search was interrupted"_s);
    const ChosenLines late =
        patternLines(text, {.pattern = u"a"_s, .mode = Mode::RegularExpression}, engine, spent);
    EXPECT_EQ(late.text, text);
    EXPECT_EQ(late.trouble, u"The search was interrupted");
}

} // namespace
