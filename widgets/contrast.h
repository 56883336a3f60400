// SPDX-License-Identifier: MIT
// Contrast of colours, as the Web Content Accessibility Guidelines 2.1 define it.
#pragma once

#include <QColor>
#include <QPalette>

namespace tolvo {

/// What lines and signs need at least, and what text needs.
inline constexpr double lineContrast = 3.0;
inline constexpr double textContrast = 4.5;

/// From 1 (the same lightness) to 21 (black and white).
[[nodiscard]] double contrast(const QColor &one, const QColor &other);

/// Black or white, whichever is easier to read on a ground.
[[nodiscard]] QColor readableOn(const QColor &ground);

/// The mildest mixture of a ground and an ink that stands out from the ground by `least`; the ink itself if
/// that is too weak as well.
[[nodiscard]] QColor mixed(const QColor &ground, const QColor &ink, double least);

/// The colour of thin lines around controls on the palette's windows.
[[nodiscard]] QColor edgeColour(const QPalette &palette);

} // namespace tolvo
