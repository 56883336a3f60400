// SPDX-License-Identifier: MIT
// How a row of the left column looks, in the panel and in the list of results: colours of the ground that it
// stands on.
#pragma once

#include <QColor>
#include <QPalette>
#include <QRectF>

class QPainter;

namespace tolvo {

/// The ground of a row: a tint while the pointer is on it or it is chosen, a deeper one while it is pressed,
/// a frame with the focus.
struct RowGround {
    bool tinted = false;
    bool pressed = false;
    bool framed = false;
};
void paintRowGround(QPainter &painter, const QRectF &area, const QPalette &palette, RowGround ground);

/// Text of less weight on the ground of fields; its contrast stays above 4.5 to 1 where that of the text is
/// above 7 to 1.
[[nodiscard]] QColor quietText(const QPalette &palette, QPalette::ColorRole text, QPalette::ColorRole ground);

} // namespace tolvo
