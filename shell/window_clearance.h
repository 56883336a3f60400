// SPDX-License-Identifier: MIT
// Where a window stands so that the text can be seen. All in pixels of the desktop, frames included.
#pragma once

#include <QRect>
#include <optional>

namespace tolvo {

/// What a window of its own has to leave free.
struct TextPlace {
    QRect main; ///< the main window
    QRect text; ///< the text box in it
    QRect line; ///< the caret's line in the text
    QRect screen;
};

/// The corner of a window that comes up for the first time: beside the main window or below it if the screen
/// has room, else at an edge of the text. It lies over the caret's line only where there is no other way.
[[nodiscard]] QPoint cornerBesideText(QSize window, const TextPlace &place);

/// The corner of a window that lies on the screen as a whole, or begins there if the screen is too small.
[[nodiscard]] QPoint cornerOnScreen(const QRect &window, const QRect &screen);

/// Where a window goes that lies over `hit`: the shortest way that frees it and stays on the screen. Nothing
/// if the hit is free, or can't be freed.
///   A window {0, 0, 100, 50} over {90, 20, 30, 10} goes to (-14, 0) if the screen goes on there.
[[nodiscard]] std::optional<QPoint> cornerAside(const QRect &window, const QRect &hit, const QRect &screen);

} // namespace tolvo
