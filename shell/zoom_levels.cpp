// SPDX-License-Identifier: MIT
#include "shell/zoom_levels.h"

#include <algorithm>
#include <array>

namespace tolvo {

namespace {

constexpr std::array levels{lowestZoom, 60,  70,  80,  90,  ownSize, 110,        125,
                            150,        175, 200, 250, 300, 350,     highestZoom};

} // namespace

int zoomed(int percent, int steps) {
    for (; steps > 0; --steps) {
        const auto *next = std::upper_bound(levels.begin(), levels.end(), percent);
        percent = next == levels.end() ? highestZoom : *next;
    }
    for (; steps < 0; ++steps) {
        const auto *next = std::lower_bound(levels.begin(), levels.end(), percent);
        percent = next == levels.begin() ? lowestZoom : *std::prev(next);
    }
    return percent;
}

} // namespace tolvo
