// SPDX-License-Identifier: MIT
#include "tests/search/search_world.h"

namespace tolvo::test {

namespace {

class SimpleSearch : public SearchWorld {};

/// Options: d down, u up, s from the start, c match case, w whole words, x special characters, m smart
/// replace, a replace after find.
struct Row {
    const char *text, *find, *options, *picture;
    const char *said = "";
};

const char *const badHex =
    "Sorry, Tolvo has encountered an error.\r\n\r\nDetails:\r\nInvalid hex in \\xZZ (error "
    "512)\r\n in CSearch::replaceHex";

TEST_F(SimpleSearch, SelectsTheNextMatch) {
    const Row rows[] = {
        {"one «»two two", "two", "d", "one «two» two"},
        {"one «two» two", "two", "d", "one two «two»"},
        {"«aa»a", "aa", "d", "a«aa»"},
        {"two «»one", "two", "s", "«two» one"},
        {"two «»one", "two", "us", "«two» one"},
        {"two «»one", "two", "d", "two «»one", "Text not found"},
        {"two «one»", "two", "", "two «one»", "Text not found"},
        {"a«»b", "a", "u", "a«»b", "Text not found"}, // a hit just before the caret is not seen
        {"ab«»", "a", "u", "«a»b"},
        {"aaaa«»", "aa", "u", "aa«aa»"},
        {"two two «two»", "two", "u", "two «two» two"},
        {"«»\u00c9t\u00e9 \u0416", "\u00e9T\u00c9 \u0436", "d", "«\u00c9t\u00e9 \u0416»"},
        {"«»Two", "two", "dc", "«»Two", "Text not found"},
        {"«»a|b", "a\\nb", "dx", "«a|b»"},
        {"«»a|b", "a\\nb", "d", "«»a|b", "Text not found"},
        {"«»short", "longer than the text", "d", "«»short", "Text not found"},
        {"«»short", "", "d", "«»short"},
        {"«»cats", "cat", "dw", "«cat»s"}, // the text's last character is not looked at
        {"«»catsy", "cat", "dw", "«»catsy", "Text not found"},
        {"«»the_end", "end", "dw", "the_«end»"},
        {"«»ba a1b", "a", "dw", "ba «a»1b"},
        {"a bab abc«»", "a", "uw", "«a» bab abc"},
        {"«»f(abc", "(a", "dw", "«»f(abc", "Text not found"},
        {"«»f(a b", "(a", "dw", "f«(a» b"},
    };
    for (const Row &row : rows) {
        SCOPED_TRACE(std::string(row.text) + " " + row.find + " " + row.options);
        show(row.text);
        bool fromStart = has(row.options, 's');
        const bool found =
            search.SimpleSearch(row.find, has(row.options, 'x'), has(row.options, 'u'), has(row.options, 'd'),
                                fromStart, has(row.options, 'c'), has(row.options, 'w'));
        EXPECT_EQ(picture(), QString(row.picture));
        EXPECT_EQ(said(), QString(row.said));
        EXPECT_EQ(found, row.find[0] != '\0' && row.said[0] == '\0');
        EXPECT_EQ(fromStart, row.said[0] != '\0' || has(row.options, 's'));
    }
    EXPECT_EQ(directions, QList<SearchDirection>(2, SearchDirection::Down));
}

TEST_F(SimpleSearch, ReplacesTheSelectionOrSelectsFirst) {
    struct {
        Row row;
        const char *replace;
    } const rows[] = {
        {{"«ABC» abc", "abc", "d", "«xyz» abc"}, "xyz"},
        {{"«ABC» abc", "abc", "dm", "«XYZ» abc"}, "xyz"},
        {{"«»Abc", "abc", "d", "«Abc»"}, "xyz"},
        {{"«»Abc", "abc", "dam", "«Xyz»"}, "xyz"},
        {{"«»none", "abc", "da", "«»none", "Text not found"}, "xyz"},
        {{"x«cat»s", "cat", "dw", "x«dog»s"}, "dog"},
        {{"«»a|b", "a", "dax", "«a|»|b"}, "a\\n"},
        // On the way through a search the escapes of the find text are translated twice.
        {{"«»a|b \\n", "\\\\n", "dx", "a«|»b \\n"}, ""},
        {{"a|b «\\n»", "\\\\n", "dx", "a|b «-»"}, "-"},
        {{"«»x", "\\xZZ", "da", "«»x", "Text not found"}, "-"},
        {{"«»x", "\\xZZ", "dax", "«»x", badHex}, "-"},
    };
    for (const auto &[row, replace] : rows) {
        SCOPED_TRACE(std::string(row.text) + " " + row.find + " " + row.options);
        show(row.text);
        search.SimpleReplace(row.find, replace, has(row.options, 'x'), has(row.options, 'u'),
                             has(row.options, 'd'), has(row.options, 's'), has(row.options, 'c'),
                             has(row.options, 'w'), has(row.options, 'm'), has(row.options, 'a'));
        EXPECT_EQ(picture(), QString(row.picture));
        EXPECT_EQ(said(), QString(row.said));
    }
}

TEST_F(SimpleSearch, ReplacesAllInOneChange) {
    struct {
        Row row;
        const char *replace;
        int capacity = 65535;
    } const rows[] = {
        {{"aaa", "a", "", "«»aaaaaa", "3 strings replaced"}, "aa"},
        {{"aa«»a", "b", "", "aa«»a", "0 strings replaced"}, "c"},
        {{"Cat cat", "cat", "c", "«»Cat dog", "1 string replaced"}, "dog"},
        {{"Cat CAT cat", "cat", "m", "«»Dog DOG dog", "3 strings replaced"}, "dog"},
        {{"cat cats cat.", "cat", "w", "«»dog cats dog.", "2 strings replaced"}, "dog"},
        // A word that begins where a replacement ends: what stands there by now decides.
        {{"-a-ab", "-", "w", "«»xaxab", "2 strings replaced"}, "x"},
        {{"abab.", "ab", "w", "«»abab.", "0 strings replaced"}, ""},
        {{"a|b|", "\\n", "x", "«»a, b, ", "2 strings replaced"}, ", "},
        {{"x«»", "\\xZZ", "x", "x«»", badHex}, "-"},
        // What no longer has room is cut off at once, and not replaced.
        {{"aXaXaX", "a", "", "«»bbbbXbb", "2 strings replaced"}, "bbbb", 7},
    };
    for (const auto &[row, replace, capacity] : rows) {
        SCOPED_TRACE(std::string(row.text) + " " + row.find + " " + row.options);
        box.setCapacity(capacity);
        show(row.text);
        int changes = 0;
        box.onChange = [&] { ++changes; };
        search.SimpleReplaceAll(row.find, replace, has(row.options, 'x'), has(row.options, 'c'),
                                has(row.options, 'w'), has(row.options, 'm'), false);
        box.onChange = {};
        EXPECT_EQ(picture(), QString(row.picture));
        EXPECT_TRUE(said().startsWith(row.said));
        EXPECT_LE(changes, 1);
    }
    box.setCapacity(65535);
    box.setText(QString(16384, u'a'));
    search.SimpleReplaceAll("a", "b", false, true, false, false, false);
    EXPECT_EQ(said(), "16,384 strings replaced");
}

TEST_F(SimpleSearch, ListsAllMatches) {
    show("0123456789 0123456789 0123456789 Word and so on 0123456789 0123456789|word|Swords.");
    search.SimpleFindAll("word", false, false, true);
    EXPECT_EQ(list.lines, QStringList({"Line 1: 89 0123456789 0123456789 Word and so on 0123456789 012",
                                       "Line 2: word"}));
    EXPECT_EQ(list.locations, QList<qint32>({330004, 710004}));
    EXPECT_EQ(list.caption, "2 results found for word");
    search.SimpleFindAll("Swords", false, true, false);
    EXPECT_EQ(list.caption, "1 result found for Swords");
    EXPECT_EQ(list.lines, QStringList("Line 3: Swords."));
    search.SimpleFindAll("nowhere", false, false, false);
    EXPECT_EQ(list.caption, "0 results found for nowhere");
    EXPECT_EQ(list.lines, QStringList());
    search.SimpleFindAll("", false, false, false);
    EXPECT_EQ(list.timesShown, 3);

    box.setCapacity(MemoryTextBox::unlimited);
    box.setText(QString(214748, u' ') + "hit");
    search.SimpleFindAll("hit", false, false, false);
    EXPECT_EQ(list.locations, QList<qint32>({2147480003}));
    box.setText(QString(214749, u' ') + "hit");
    search.SimpleFindAll("hit", false, false, false);
    EXPECT_TRUE(said().contains("(error 6)\r\n in CSearch::SimpleFindAll"));
    EXPECT_EQ(list.timesShown, 4);
}

} // namespace

} // namespace tolvo::test
