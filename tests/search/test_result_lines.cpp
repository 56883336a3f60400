// SPDX-License-Identifier: MIT
// How the list of a Find All shows its hits.
#include "search/result_lines.h"
#include "tests/search/search_world.h"

namespace tolvo::test {
namespace {

using ResultLines = SearchWorld;

TEST_F(ResultLines, ShowTheHitOnOneLine) {
    using enum SearchMode;
    struct Row {
        SearchMode mode;
        const char *find, *text, *shown;
    };
    const Row rows[] = {
        {Simple, "cat", "a cat", "Line 1: a «cat»"},
        {Simple, "aa", "bbbbbbbbbbbbbbbbbbbbbbbbbbaaaaaaaaaaaaaaaaaaaaaaaaaaaaa",
         "Line 1: bbbbbbbbbbbbbbbbbbbbbbbbb«aa»aaaaaaaaaaaaaaaaaaaaaaaaa"},
        {Simple, "t\\n\\td", "cat|\tdog", "Line 1: ca«t¶ d»og"},
        {Simple, "\\nd", "cat|dog", "Line 2: «¶d»og"},
        {RegularExpression, "\\w+$", "one two|three", "Line 1: one «two»"},
        {RegularExpression, "o\\nt", "one two|three", "Line 1: one tw«o¶t»hree"},
        {RegularExpression, "\\nt", "two|three", "Line 2: two«¶t»hree"},
    };
    for (const auto &[mode, find, text, shown] : rows) {
        test::show(box, QString::fromUtf8(text));
        search.run(SearchVerb::FindAll, {.mode = mode, .find = find, .specialChars = true});
        ASSERT_FALSE(list.shown.isEmpty()) << text;
        EXPECT_EQ(list.shown.first().toStdString(), shown);
    }
}

} // namespace
} // namespace tolvo::test
