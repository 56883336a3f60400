// SPDX-License-Identifier: MIT
// Icons that are painted anew each time they are shown, sharp at every scale.
#pragma once

#include <QIcon>
#include <functional>

class QPainter;
class QRect;

namespace tolvo {

/// Paints the icon into a square or any other rectangle.
using PaintIcon = std::function<void(QPainter &, const QRect &, QIcon::Mode)>;

/// An icon that calls `paint` each time.
[[nodiscard]] QIcon paintedIcon(PaintIcon paint);

} // namespace tolvo
