// SPDX-License-Identifier: MIT
#include "text/partition_sort.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace tolvo {

namespace {

using Ranks = std::vector<std::int32_t>;
using Place = std::ptrdiff_t;

struct Range {
    Place first;
    Place last;
};

class Sorter {
  public:
    explicit Sorter(Ranks ranks) : m_ranks(std::move(ranks)), m_order(m_ranks.size()) {
        std::iota(m_order.begin(), m_order.end(), 0);
        const auto highest = std::max_element(m_ranks.begin(), m_ranks.end());
        std::vector<Place> counts(highest == m_ranks.end() ? 0 : static_cast<std::size_t>(*highest) + 1);
        for (const std::int32_t rank : m_ranks)
            ++counts[static_cast<std::size_t>(rank)];
        m_places.resize(counts.size());
        std::exclusive_scan(counts.begin(), counts.end(), m_places.begin(), Place{0});
    }

    Ranks run() {
        std::vector<Range> waiting;
        push(waiting, {0, static_cast<Place>(m_ranks.size()) - 1});
        while (!waiting.empty()) {
            const Range range = waiting.back();
            waiting.pop_back();
            sort(range, waiting);
        }
        return std::move(m_order);
    }

  private:
    static void push(std::vector<Range> &waiting, const Range &range) {
        if (range.first < range.last)
            waiting.push_back(range);
    }

    /// Partitions the range; goes on with the longer part at once and leaves the shorter one waiting, which
    /// keeps the stack of waiting ranges short.
    void sort(Range range, std::vector<Range> &waiting) {
        while (range.first < range.last) {
            const Place sum = range.first + range.last;
            Place middle = sum / 2;
            if (sum % 2 == 1 && middle % 2 == 1)
                ++middle; // a half goes to the even neighbour
            swap(middle, range.first);
            const Place split = partition(range.first, range.last);
            Range left{range.first, split - 1};
            Range right{split + 1, range.last};
            if (left.last - left.first > right.last - right.first)
                std::swap(left, right);
            push(waiting, left);
            range = right;
        }
    }

    /// Moves what is below the pivot (at `first`) before it and returns the pivot's new place. Step by step
    /// each smaller element would change places with the first of those passed over; here a whole run of
    /// smaller ones does so at once. A range holds just the elements that belong to its places in the end, so
    /// the number of those below is known in advance: none if the pivot's equals lie before the range.
    Place partition(Place first, Place last) {
        const std::int32_t pivot = m_ranks[static_cast<std::size_t>(first)];
        const Place split = std::max(first, m_places[static_cast<std::size_t>(pivot)]);
        Place at = first + 1;
        for (Place next = at; next <= split;) {
            const bool onlySmallerOnes = last - at == split - next;
            const Place run =
                onlySmallerOnes ? at : find(at, last, [pivot](std::int32_t rank) { return rank < pivot; });
            const Place end = onlySmallerOnes
                                  ? last + 1
                                  : find(run, last, [pivot](std::int32_t rank) { return rank >= pivot; });
            exchange(m_ranks, next, run, end);
            exchange(m_order, next, run, end);
            next += end - run;
            at = end;
        }
        swap(split, first);
        return split;
    }

    /// The first place from `from` on whose rank fits, last + 1 without any. Whole blocks first: the compiler
    /// tests one with few instructions.
    template <class Fits>
    [[nodiscard]] Place find(Place from, Place last, Fits fits) const {
        constexpr Place block = 64;
        const std::int32_t *const ranks = m_ranks.data();
        for (; last - from >= block && !fits(ranks[from]); from += block) {
            std::int32_t any = 0;
            for (Place i = 0; i < block; ++i)
                any |= static_cast<std::int32_t>(fits(ranks[from + i]));
            if (any != 0)
                break;
        }
        while (from <= last && !fits(ranks[from]))
            ++from;
        return from;
    }

    /// What swapping window + 0 with run + 0, window + 1 with run + 1 and so on, up to the run's end, makes
    /// of the elements from `window` to `end`, also where the run is longer than the window before it.
    static void exchange(Ranks &elements, Place window, Place run, Place end) {
        const Place passed = run - window;
        const Place moved = end - run;
        if (passed == 0 || moved == 0)
            return;
        const auto at = [&elements](Place place) { return elements.begin() + place; };
        if (moved <= passed) {
            std::swap_ranges(at(run), at(end), at(window));
            return;
        }
        std::rotate(at(window), at(run), at(end));
        std::rotate(at(end - passed), at(end - passed + moved % passed), at(end));
    }

    void swap(Place a, Place b) {
        std::swap(m_ranks[static_cast<std::size_t>(a)], m_ranks[static_cast<std::size_t>(b)]);
        std::swap(m_order[static_cast<std::size_t>(a)], m_order[static_cast<std::size_t>(b)]);
    }

    Ranks m_ranks;
    Ranks m_order;
    std::vector<Place> m_places; ///< where the elements of a rank begin in sorted order
};

} // namespace

std::vector<std::int32_t> partitionOrder(std::vector<std::int32_t> ranks) {
    return Sorter(std::move(ranks)).run();
}

} // namespace tolvo
