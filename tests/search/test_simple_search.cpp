// SPDX-License-Identifier: MIT
#include "tests/search/search_world.h"

namespace tolvo::test {

namespace {

class SimpleSearch : public SearchWorld {};

/// Whether a row's options hold a letter.
bool has(const char *options, char option) {
    return QLatin1StringView(options).contains(QLatin1Char(option));
}

/// Options: c match case, w whole words, x special characters, m smart replace.
struct Row {
    const char *text, *find, *options, *picture;
    const char *said = "";
};

const char *const badHex =
    "Sorry, Tolvo has encountered an error.\r\n\r\nDetails:\r\nInvalid hex in \\xZZ (error "
    "512)\r\n in CSearch::replaceHex";

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
