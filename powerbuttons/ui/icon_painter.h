// SPDX-License-Identifier: MIT
// Paints the icon of a PowerButton: in the main window, in the editor, in the icon editor.
#pragma once

#include "powerbuttons/icon_geometry.h"

#include <QFont>
#include <QIcon>
#include <QPainter>
#include <QRectF>

namespace tolvo {

/// The side of an icon at 100 %, in pixels independent of the device.
inline constexpr int iconSide = static_cast<int>(iconUnits);

/// What is shown of a button's icon: its number in place of a text that it doesn't have.
[[nodiscard]] ButtonIcon shownIcon(const CPowerButton &button, int number);

/// Fills `target` with white and prints the text, scaled from the icon's units: sharp at every size, nothing
/// outside `target`.
void paintIcon(QPainter &painter, const QRectF &target, const ButtonIcon &icon);

/// The same as an icon for buttons and menus.
[[nodiscard]] QIcon toQIcon(const ButtonIcon &icon);

/// The toolkit's font for an icon's text, in icon units.
[[nodiscard]] QFont iconFont(const Font &font);

/// Where the text has to start so that its ink stands in the middle of the icon.
[[nodiscard]] QPointF centredPosition(const ButtonIcon &icon);

} // namespace tolvo
