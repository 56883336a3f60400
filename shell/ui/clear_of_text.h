// SPDX-License-Identifier: MIT
// Keeps windows of their own from lying over what the user looks at.
#pragma once

class QWidget;

namespace tolvo {

class MainWindow;

/// Wayland alone places its windows itself, and says nothing of where they are.
[[nodiscard]] bool canPlaceWindows();

/// Places a window that is about to be shown beside the text.
void placeBesideText(QWidget &window, MainWindow &main);

/// Moves a window that has grown back onto its screen.
void moveOntoScreen(QWidget &window);

/// Moves a window off the selection, if it lies over the beginning of it. A hidden window stays.
void moveOffSelection(QWidget &window, MainWindow &main);

} // namespace tolvo
