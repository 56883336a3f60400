// SPDX-License-Identifier: MIT
#include "shell/ui/row_painting.h"

#include "widgets/themed_icon.h"

#include <QPainter>

namespace tolvo {

void paintRowGround(QPainter &painter, const QRectF &area, const QPalette &palette, RowGround ground) {
    constexpr qreal radius = 4;
    const QColor line = accentOn(palette, QPalette::Base);
    QColor tint = line;
    tint.setAlpha(ground.pressed ? 70 : 34);
    painter.setPen(ground.framed ? QPen(line, 1.5) : QPen(Qt::NoPen));
    painter.setBrush(ground.tinted || ground.pressed ? QBrush(tint) : QBrush(Qt::NoBrush));
    painter.drawRoundedRect(area, radius, radius);
}

QColor quietText(const QPalette &palette, QPalette::ColorRole text, QPalette::ColorRole ground) {
    constexpr float share = 0.72F;
    const QColor front = palette.color(text);
    const QColor back = palette.color(ground);
    const auto mixed = [](float a, float b) { return a * share + b * (1 - share); };
    return QColor::fromRgbF(mixed(front.redF(), back.redF()), mixed(front.greenF(), back.greenF()),
                            mixed(front.blueF(), back.blueF()));
}

} // namespace tolvo
