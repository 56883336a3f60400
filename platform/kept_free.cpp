// SPDX-License-Identifier: MIT
#include "platform/kept_free.h"

#include <QStringList>
#include <algorithm>

namespace tolvo {

namespace {

constexpr int gap = 8; ///< between the two windows
constexpr qsizetype numbersOfAnArea = 4;

/// The corner within the screen that lies nearest to the wanted one.
QPoint within(const QRect &screen, QSize size, QPoint corner) {
    return {
        std::clamp(corner.x(), screen.left(), std::max(screen.left(), screen.right() + 1 - size.width())),
        std::clamp(corner.y(), screen.top(), std::max(screen.top(), screen.bottom() + 1 - size.height()))};
}

QList<QPoint> cornersAround(const QRect &area, QSize size) {
    return {{area.right() + 1 + gap, area.top()},
            {area.left() - gap - size.width(), area.top()},
            {area.left(), area.bottom() + 1 + gap},
            {area.left(), area.top() - gap - size.height()}};
}

} // namespace

QString writtenAreas(const QList<QRect> &areas) {
    QStringList numbers;
    for (const QRect &area : areas) {
        for (const int number : {area.x(), area.y(), area.width(), area.height()})
            numbers += QString::number(number);
    }
    return numbers.join(u' ');
}

QList<QRect> readAreas(QStringView text) {
    const QList<QStringView> numbers = text.split(u' ');
    QList<QRect> areas;
    for (qsizetype i = 0; i + numbersOfAnArea <= numbers.size(); i += numbersOfAnArea) {
        const QRect area(numbers[i].toInt(), numbers[i + 1].toInt(), numbers[i + 2].toInt(),
                         numbers[i + 3].toInt());
        if (!area.isEmpty())
            areas += area;
    }
    return areas;
}

QPoint placeBeside(const QList<QRect> &areas, QSize size, const QRect &screen) {
    for (const QRect &area : areas) {
        // As far beside the first as the screen lets it, even where only this one can stay free.
        for (const QPoint corner : cornersAround(areas.first(), size) + cornersAround(area, size)) {
            const QRect place(within(screen, size, corner), size);
            if (screen.contains(place) && !place.intersects(area))
                return place.topLeft();
        }
    }
    return within(screen, size, screen.bottomRight());
}

} // namespace tolvo
