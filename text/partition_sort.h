// SPDX-License-Identifier: MIT
// The order in which the sorts leave lines with equal keys. The sorts are a quicksort with the middle element
// as pivot (Kernighan and Ritchie, The C Programming Language, 2nd edition, section 4.10; halves round to the
// even index), which isn't stable: its swaps decide where equal keys end up. Here that order is reproduced on
// ranks instead of keys, without recursion and without its quadratic time for equal keys.
#pragma once

#include <cstdint>
#include <vector>

namespace tolvo {

/// The indices (from 0) of the elements in sorted order. Ranks count from 0 without a gap; equal keys have
/// equal ranks.
///   partitionOrder({0, 0, 0, 0}) == {2, 0, 1, 3}
[[nodiscard]] std::vector<std::int32_t> partitionOrder(std::vector<std::int32_t> ranks);

} // namespace tolvo
