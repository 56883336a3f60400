// SPDX-License-Identifier: MIT
// What the menus of the search window offer means what they say.
#include "search/pattern_elements.h"
#include "search/wildcard_translation.h"
#include "tests/search/search_world.h"

namespace tolvo::test {
namespace {

QStringList written(SearchText text, SearchMode mode, bool specialChars) {
    QStringList all;
    for (const PatternElement &element : patternElements(text, mode, specialChars))
        all += element.written.toString();
    return all;
}

TEST(PatternElements, AreThoseOfTheHelp) {
    QStringList offered = written(SearchText::Find, SearchMode::Wildcard, false);
    offered += written(SearchText::Replace, SearchMode::Wildcard, false);
    // Of two ways the menu shows one, and what has no meaning of its own it leaves out.
    const QStringList leftOut = {".", "@*", "@+", "$3 ... $9"};
    int compared = 0;
    const QStringList lines = wildcardHelp.toString().replace("&&", "&").split("\\n");
    for (const QString &line : lines) {
        const qsizetype colon = line.indexOf(u':');
        if (colon <= 0 || colon + 1 == line.size())
            continue;
        const QStringList symbols = line.first(colon).split(" or ");
        for (const QString &symbol : symbols) {
            EXPECT_NE(offered.contains(symbol), leftOut.contains(symbol)) << symbol.toStdString();
            ++compared;
        }
    }
    EXPECT_EQ(compared, 17);
}

using PatternElementsTest = SearchWorld;

/// Each element between two bounds finds what it is said to find, and nothing else.
TEST_F(PatternElementsTest, FindWhatTheySay) {
    using enum SearchMode;
    struct Row {
        SearchMode mode;
        const char *written, *filled, *found, *notFound;
    };
    const Row rows[] = {
        {Wildcard, "?", "<?>", "<x>", "<>"},
        {Wildcard, "*", "<*>", "<>", "<"},
        {Wildcard, "+", "<+>", "<xy>", "<>"},
        {Wildcard, "&", "<&>", "<x>", "<1>"},
        {Wildcard, "!", "<!>", "<1>", "<->"},
        {Wildcard, "%", "<%>", "<1>", "<x>"},
        {Wildcard, "%*", "<%*>", "<>", "<x>"},
        {Wildcard, "%+", "<%+>", "<12>", "<>"},
        {Wildcard, "~", "<~>", "< >", "<x>"},
        {Wildcard, "~+", "<~+>", "<  >", "<>"},
        {Wildcard, "#", "<#>", "<1,234.5>", "<x>"},
        {Wildcard, "@", "<@>", "<word>", "<+>"},
        {Wildcard, "[]", "<[ab]>", "<a>", "<c>"},
        {Wildcard, "[^]", "<[^ab]>", "<c>", "<a>"},
        {Wildcard, "\\?", "<\\?>", "<?>", "<x>"},
        {Wildcard, "\\n", "<\\n>", "<|>", "<n>"},
        {Wildcard, "\\x41", "<\\x41>", "<A>", "<x>"},
        {Wildcard, "\\u20AC", "<\\u20AC>", "<€>", "<u>"},
        {Simple, "\\n", "<\\n>", "<|>", "<n>"},
        {Simple, "\\t", "<\\t>", "<\t>", "<t>"},
        {Simple, "\\x41", "<\\x41>", "<A>", "<x>"},
        {Simple, "\\u20AC", "<\\u20AC>", "<€>", "<u>"},
        {Simple, "\\\\", "<\\\\>", "<\\>", "<\\\\>"},
        {RegularExpression, ".", "<.>", "<x>", "<|>"},
        {RegularExpression, "\\d", "<\\d>", "<1>", "<x>"},
        {RegularExpression, "\\w", "<\\w>", "<_>", "<->"},
        {RegularExpression, "\\s", "<\\s>", "< >", "<x>"},
        {RegularExpression, "[]", "<[a-f]>", "<a>", "<g>"},
        {RegularExpression, "[^]", "<[^a]>", "<c>", "<a>"},
        {RegularExpression, "*?", "<x*?>", "<xx>", "<y>"},
        {RegularExpression, "{2,4}", "<x{2,4}>", "<xx>", "<x>"},
        {RegularExpression, "\\b", "\\bx\\b", "x", "xy"},
        {RegularExpression, "()", "<(x)>", "<x>", "<>"},
        {RegularExpression, "|", "<(x|y)>", "<y>", "<>"},
        {RegularExpression, "(?=)", "x(?=y)", "xy", "xz"},
        {RegularExpression, "(?!)", "x(?!y)", "xz", "xy"},
        {RegularExpression, "\\.", "<\\.>", "<.>", "<x>"},
    };
    for (const auto &[mode, element, filled, found, notFound] : rows) {
        EXPECT_TRUE(written(SearchText::Find, mode, true).contains(element)) << element;
        for (const char *text : {found, notFound}) {
            test::show(box, QString::fromUtf8(text));
            list.clear();
            search.run(SearchVerb::FindAll, {.mode = mode, .find = filled, .specialChars = true});
            EXPECT_EQ(list.lines.size(), text == found ? 1 : 0) << filled << " in " << text;
        }
    }
}

TEST(PatternElements, AreThoseOfTheBox) {
    using enum SearchMode;
    struct Row {
        SearchText text;
        SearchMode mode;
        bool specialChars;
        const char *all;
    };
    const Row rows[] = {
        {SearchText::Find, Simple, false, ""},
        {SearchText::Replace, Simple, false, ""},
        {SearchText::Form, Simple, false, "$&"},
        {SearchText::Form, Simple, true, "$& \\n \\t \\x41 \\u20AC \\\\"},
        {SearchText::Replace, RegularExpression, false, "$& $1 $2 $$ \\n \\t \\x41 \\u20AC \\\\"},
        {SearchText::DecimalSep, Wildcard, true, ""},
    };
    for (const Row &row : rows)
        EXPECT_EQ(written(row.text, row.mode, row.specialChars).join(u' ').toStdString(), row.all);
}

} // namespace
} // namespace tolvo::test
