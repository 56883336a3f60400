// SPDX-License-Identifier: MIT
#include "powerbuttons/ui/icon_painter.h"

#include "widgets/painted_icon.h"

#include <QFontMetricsF>
#include <algorithm>
#include <cmath>

namespace tolvo {

QFont iconFont(const Font &font) {
    QFont result(font.name.isEmpty() ? defaultIconFont() : font.name);
    result.setPixelSize(std::max(1, static_cast<int>(std::lround(font.size * iconUnitsPerPoint))));
    result.setBold(font.bold);
    result.setItalic(font.italic);
    // Hinting would move the letters by whole pixels, differently at each scale.
    result.setHintingPreference(QFont::PreferNoHinting);
    return result;
}

ButtonIcon shownIcon(const CPowerButton &button, int number) {
    ButtonIcon icon = iconOf(button);
    if (!icon.text.trimmed().isEmpty())
        return icon;
    icon = {QString::number(number), {defaultIconFont(), iconUnits / 2, false, false}, 0, 0};
    const QPointF position = centredPosition(icon);
    icon.x = position.x();
    icon.y = position.y();
    return icon;
}

void paintIcon(QPainter &painter, const QRectF &target, const ButtonIcon &icon) {
    painter.save();
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    painter.setClipRect(target, Qt::IntersectClip);
    painter.fillRect(target, Qt::white);
    painter.translate(target.topLeft());
    painter.scale(target.width() / iconUnits, target.height() / iconUnits);
    const QFont font = iconFont(icon.font);
    painter.setFont(font);
    painter.setPen(Qt::black);
    painter.drawText(QPointF(icon.x, icon.y + QFontMetricsF(font).ascent()), icon.text);
    painter.restore();
}

QIcon toQIcon(const ButtonIcon &icon) {
    return paintedIcon(
        [icon](QPainter &painter, const QRect &rect, QIcon::Mode) { paintIcon(painter, rect, icon); });
}

QPointF centredPosition(const ButtonIcon &icon) {
    const QFontMetricsF metrics(iconFont(icon.font));
    const QRectF ink = metrics.tightBoundingRect(icon.text).translated(0, metrics.ascent());
    const auto toHalf = [](double value) { return std::round(value * 2) / 2; };
    return {toHalf(iconUnits / 2 - ink.center().x()), toHalf(iconUnits / 2 - ink.center().y())};
}

} // namespace tolvo
