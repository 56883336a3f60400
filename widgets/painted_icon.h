// SPDX-License-Identifier: MIT
// Icons that are painted anew each time they are shown, sharp at every scale.
#pragma once

#include <QIcon>
#include <functional>

class QPainter;
class QRect;

namespace tolvo {

using PaintIcon = std::function<void(QPainter &, const QRect &, QIcon::Mode)>;

[[nodiscard]] QIcon paintedIcon(PaintIcon paint);

} // namespace tolvo
