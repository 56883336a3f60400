// SPDX-License-Identifier: MIT
#pragma once

namespace tolvo {

/// Sets the memory up for texts of many megabytes, where the system lets us: memory that held one text is
/// kept for the next, and comes in large pages. Must come first in main. A no-op elsewhere.
void prepareForLargeTexts();

} // namespace tolvo
