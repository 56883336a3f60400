// SPDX-License-Identifier: MIT
// What the menus of the search window offer means what they say.
#include "search/pattern_elements.h"
#include "search/wildcard_translation.h"
#include "tests/search/search_world.h"
#include "tests/support/examples.h"

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
    forEachExample(
        "/tests/search/element_examples.txt", [this](const QString &section, const QStringList &row) {
            const SearchMode mode = section == u"Simple"     ? SearchMode::Simple
                                    : section == u"Wildcard" ? SearchMode::Wildcard
                                                             : SearchMode::RegularExpression;
            EXPECT_TRUE(written(SearchText::Find, mode, true).contains(row[0]));
            for (const int side : {2, 3}) {
                test::show(box, row[side]);
                list.clear();
                search.run(SearchVerb::FindAll, {.mode = mode, .find = row[1], .specialChars = true});
                EXPECT_EQ(list.lines.size(), side == 2 ? 1 : 0) << row[side].toStdString();
            }
        });
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
