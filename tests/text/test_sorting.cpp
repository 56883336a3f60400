// SPDX-License-Identifier: MIT
#include "base/numbers.h"
#include "tests/text/engine.h"
#include "text/partition_sort.h"

#include <algorithm>
#include <numeric>
#include <random>

using namespace tolvo;
using namespace tolvo::test;
using namespace Qt::StringLiterals;

namespace {

using Sorting = Engine;

TEST_F(Sorting, ordersLinesAsText) {
    expectExamples([this](QStringView text) { return engine.Sort(text); },
                   {u"apple|Banana|cherry→apple|Banana|cherry", u"b|a||c→a|b|c", u"one|→one", u"||→",
                    u"10|9|100→10|100|9", u"  b|\ta |\u00A0c→\ta |  b|\u00A0c", u"b|   |a→   |a|b",
                    u"_|z|1|A→1|A|z|_", u"\u00E9|\u00C8|\u0153→\u00C8|\u00E9|\u0153"});
}

TEST_F(Sorting, ordersLinesAsNumbers) {
    expectExamples([this](QStringView text) { return engine.Numsort(text); },
                   {u"10|9|100→9|10|100", u"  3 x|-1|2,5|none→-1|none|2,5|3 x",
                    u"1E3 units|999|10 apples|4 d6→10 apples|999|1E3 units|4 d6", u"b|   ||a→b|a"});
}

TEST_F(Sorting, turnsLinesRoundAndSortsItems) {
    EXPECT_EQ(engine.SortReverse(lines(u"b|a||c")), lines(u"c||a|b"));
    EXPECT_EQ(engine.SortReverse(lines(u"a|b|")), lines(u"|b|a"));
    expectExamples([this](QStringView text) { return engine.KeywordSort(text); },
                   {u"pear, apple,, Fig→apple, Fig, pear", u"b,,a→a, b",
                    u"b,a|no comma |d , c|→a, b|no comma |c, d|", u",|,,→|"});
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

TEST(PartitionOrder, isThatOfTheSteps) {
    std::mt19937 random(1);
    for (int round = 0; round < 3000; ++round) {
        const std::size_t count = random() % 90;
        const auto different = 1 + random() % (round % 3 == 0 ? 100 : 5);
        std::vector<std::int32_t> ranks(count); // without gaps: as many different ones as there are
        for (std::size_t i = 0; i < count; ++i)
            ranks[i] = static_cast<std::int32_t>(i % different);
        std::shuffle(ranks.begin(), ranks.end(), random);
        if (round % 7 == 0)
            std::sort(ranks.begin(), ranks.begin() + static_cast<std::ptrdiff_t>(count / 2));
        auto keys = ranks;
        std::vector<std::int32_t> order(count);
        std::iota(order.begin(), order.end(), 0);
        partitionSort(keys, order, 0, static_cast<int>(count) - 1);
        ASSERT_EQ(partitionOrder(ranks), order) << "round " << round;
    }
}

TEST_F(Sorting, equalKeysKeepTheOrderOfTheSteps) {
    // The middle one comes to the front, and again in the rest.
    EXPECT_EQ(engine.Sort(lines(u"a|A| a|a ")), lines(u" a|a|A|a "));
    EXPECT_EQ(engine.KeywordSort(u"a,A,AA,b"), u"a, A, AA, b");
    EXPECT_EQ(partitionOrder({0, 0, 0, 0}), (std::vector<std::int32_t>{2, 0, 1, 3}));
}

TEST_F(Sorting, hugeTextsOfEqualLinesComeThrough) {
    const QString text = u"a\r\n"_s.repeated(200'000);
    EXPECT_EQ(engine.Sort(text), text.chopped(2));
    EXPECT_EQ(engine.Numsort(text), text.chopped(2));
}

} // namespace
