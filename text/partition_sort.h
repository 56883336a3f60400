// SPDX-License-Identifier: MIT
// The order in which the sorts leave lines with equal keys. The sorts are a partition sort with the middle
// element as pivot, which isn't stable: where equal keys end up follows from its swaps, and users get that
// order. It is reproduced here on ranks instead of keys and without recursion, in time that equal keys don't
// make quadratic.
#pragma once

#include <cstdint>
#include <vector>

namespace tolvo {

/// The sorted order of elements with these ranks, as the indices of the elements from the first to the last.
/// Ranks count from 0 without a gap; equal keys have equal ranks.
[[nodiscard]] std::vector<std::int32_t> partitionOrder(std::vector<std::int32_t> ranks);

} // namespace tolvo
