// SPDX-License-Identifier: MIT
// Icons that follow the palette: drawn from data/icons/*.svg each time they are painted, so that they are
// sharp at every scale and readable in light and dark.
#pragma once

#include <QColor>
#include <QIcon>
#include <QPalette>
#include <QString>

namespace tolvo {

/// The icon of data/icons/NAME.svg. In the file "currentColor" stands for the text colour, "accentColor" for
/// accentOn(). It is readable on that ground of the palette: QPalette::Button for an icon on a push button.
[[nodiscard]] QIcon themedIcon(const QString &name, QPalette::ColorRole ground = QPalette::Window);

/// The dark green of the tools (red 1, green 99, blue 49) on a light ground, a lighter green on a dark one.
[[nodiscard]] QColor accent(const QPalette &palette);

/// Of the two greens the one that can be read on that ground of the palette; the ground's text colour where
/// neither can, that is with a contrast under 4.5.
[[nodiscard]] QColor accentOn(const QPalette &palette, QPalette::ColorRole ground);

/// True if the palette's windows are dark.
[[nodiscard]] bool isDark(const QPalette &palette);

} // namespace tolvo
