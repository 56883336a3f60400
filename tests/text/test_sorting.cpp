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

/// The partition step by step, one swap at a time.
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

TEST(PartitionOrder, bringsTheMiddleOfEqualKeysToTheFront) {
    // The middle one comes to the front, and again in the rest.
    EXPECT_EQ(partitionOrder({0, 0, 0, 0}), (std::vector<std::int32_t>{2, 0, 1, 3}));
}

TEST_F(Sorting, hugeTextsOfEqualLinesComeThrough) {
    const QString text = u"a\r\n"_s.repeated(200'000);
    EXPECT_EQ(engine.Sort(text), text.chopped(2));
    EXPECT_EQ(engine.Numsort(text), text.chopped(2));
}

} // namespace
