// SPDX-License-Identifier: MIT
#pragma once

#include "spelling/spelling_errors.h"

namespace tolvo {

/// The errors in their order, but for one that lies inside another: it comes before that one, the shortest
/// first, so that correcting the one leaves the other its words. Services report a phrase and a word of it.
///   "the quick fox" 4-17, "quick" 8-13 gives "quick", "the quick fox"
[[nodiscard]] CSpellingErrors innerFirst(const CSpellingErrors &errors);

} // namespace tolvo
