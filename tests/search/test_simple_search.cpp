// SPDX-License-Identifier: MIT
#include "tests/search/search_world.h"

namespace tolvo::test {

namespace {

class SimpleSearch : public SearchWorld {};

TEST_F(SimpleSearch, ReplacesAllThatHasRoom) {
    box.setCapacity(7);
    show("aXaXaX");
    search.SimpleReplaceAll("a", "bbbb", false, false, false, false, false);
    EXPECT_EQ(picture(), "«»bbbbXbb");
    EXPECT_TRUE(said().startsWith("2 strings replaced"));
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
