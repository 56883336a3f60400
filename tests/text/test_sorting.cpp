// SPDX-License-Identifier: MIT
#include "base/numbers.h"
#include "tests/text/engine.h"
#include "text/partition_sort.h"

#include <algorithm>
#include <random>

using namespace tolvo;
using namespace tolvo::test;

namespace {

using Sorting = Engine;

struct Case {
    const char16_t *text;
    const char16_t *expected;
};

TEST_F(Sorting, ordersLinesAsText) {
    for (const Case &c : {Case{u"apple|Banana|cherry", u"apple|Banana|cherry"},
                          {u"b|a||c", u"a|b|c"},
                          {u"one|", u"one"},
                          {u"||", u""},
                          {u"10|9|100", u"10|100|9"},
                          {u"  b|\ta |\u00A0c", u"\ta |  b|\u00A0c"},
                          {u"b|   |a", u"   |a|b"},
                          {u"_|z|1|A", u"1|A|z|_"},
                          {u"\u00E9|\u00C8|\u0153", u"\u00C8|\u00E9|\u0153"}})
        EXPECT_EQ(engine.Sort(lines(c.text)), lines(c.expected));
}

TEST_F(Sorting, ordersLinesAsNumbers) {
    for (const Case &c : {Case{u"10|9|100", u"9|10|100"},
                          {u"  3 x|-1|2,5|none", u"-1|none|2,5|3 x"},
                          {u"1E3 units|999|10 apples|4 d6", u"10 apples|999|1E3 units|4 d6"},
                          {u"b|   ||a", u"b|a"}})
        EXPECT_EQ(engine.Numsort(lines(c.text)), lines(c.expected));
}

TEST_F(Sorting, turnsLinesRoundAndSortsItems) {
    EXPECT_EQ(engine.SortReverse(lines(u"b|a||c")), lines(u"c||a|b"));
    EXPECT_EQ(engine.SortReverse(lines(u"a|b|")), lines(u"|b|a"));
    for (const Case &c : {Case{u"pear, apple,, Fig", u"apple, Fig, pear"},
                          {u"b,,a", u"a, b"},
                          {u"b,a|no comma |d , c|", u"a, b|no comma |c, d|"},
                          {u",|,,", u"|"}})
        EXPECT_EQ(engine.KeywordSort(lines(c.text)), lines(c.expected));
}

TEST_F(Sorting, refusesWhatItCannotSort) {
    for (const char16_t *text : {u"", u"  ", u"one line", u"a\nb", u"a\rb"}) {
        EXPECT_EQ(engine.Sort(QStringView(text)), sortError);
        EXPECT_EQ(engine.Numsort(QStringView(text)), sortError);
        EXPECT_EQ(engine.SortReverse(QStringView(text)), sortError);
        EXPECT_EQ(engine.KeywordSort(QStringView(text)), sortError);
    }
}

/// The partition steps as they are told, one swap at a time.
void partitionSort(std::vector<std::int32_t> &keys, std::vector<std::int32_t> &order, int first, int last) {
    const auto swap = [&](int a, int b) {
        std::swap(keys[a], keys[b]);
        std::swap(order[a], order[b]);
    };
    if (first >= last)
        return;
    swap(static_cast<int>(roundHalfToEven((first + last) / 2.0)), first);
    int split = first;
    for (int i = first + 1; i <= last; ++i) {
        if (keys[i] < keys[first])
            swap(++split, i);
    }
    swap(split, first);
    partitionSort(keys, order, first, split - 1);
    partitionSort(keys, order, split + 1, last);
}

void withoutGaps(std::vector<std::int32_t> &ranks) {
    std::vector<std::int32_t> used = ranks;
    std::sort(used.begin(), used.end());
    used.erase(std::unique(used.begin(), used.end()), used.end());
    for (auto &rank : ranks)
        rank = static_cast<std::int32_t>(std::lower_bound(used.begin(), used.end(), rank) - used.begin());
}

TEST(PartitionOrder, isThatOfTheSteps) {
    std::mt19937 random(1);
    for (int round = 0; round < 3000; ++round) {
        const std::size_t count = random() % 90;
        const auto different = 1 + random() % (round % 3 == 0 ? 100 : 5);
        std::vector<std::int32_t> ranks(count);
        for (auto &rank : ranks)
            rank = static_cast<std::int32_t>(random() % different);
        withoutGaps(ranks);
        if (round % 7 == 0)
            std::sort(ranks.begin(), ranks.begin() + static_cast<std::ptrdiff_t>(count / 2));
        auto keys = ranks;
        std::vector<std::int32_t> order(count);
        for (std::size_t i = 0; i < count; ++i)
            order[i] = static_cast<std::int32_t>(i);
        partitionSort(keys, order, 0, static_cast<int>(count) - 1);
        ASSERT_EQ(partitionOrder(ranks), order) << "round " << round;
    }
}

TEST_F(Sorting, equalKeysKeepTheOrderOfTheSteps) {
    // The middle one comes to the front, and again in the rest.
    EXPECT_EQ(engine.Sort(lines(u"a|A| a|a ")), lines(u" a|a|A|a "));
    EXPECT_EQ(engine.KeywordSort(u"a,A,AA,b"), u"a, A, AA, b");
}

TEST_F(Sorting, hugeTextsOfEqualLinesComeThrough) {
    const QString text = QStringLiteral("a\r\n").repeated(200'000);
    EXPECT_EQ(engine.Sort(text), text.chopped(2));
    EXPECT_EQ(engine.Numsort(text), text.chopped(2));
}

} // namespace
