// SPDX-License-Identifier: MIT
// The sizes in which the text can be shown, as shares of its own size.
#pragma once

namespace tolvo {

/// In percent.
inline constexpr int lowestZoom = 50;
inline constexpr int ownSize = 100;
inline constexpr int highestZoom = 400;

/// The next size above (`steps` of 1 and more) or below (-1 and less) a size, as many times as there are
/// steps; the last one at either end. A size between two of them goes on to the nearer in that direction.
///   zoomed(100, 1) is 110, zoomed(105, -1) is 100, zoomed(400, 1) is 400
[[nodiscard]] int zoomed(int percent, int steps);

} // namespace tolvo
