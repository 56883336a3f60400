// SPDX-License-Identifier: MIT
#include "shell/window_clearance.h"

#include <QList>
#include <algorithm>

namespace tolvo {

namespace {

constexpr int gap = 4;

/// Beside or below the main window, as far as the screen has room, in this order.
QList<QRect> outside(QSize size, const TextPlace &place) {
    const QList<QRect> places = {
        {QPoint(place.main.x() + place.main.width(), place.text.y()), size},
        {QPoint(place.main.x() - size.width(), place.text.y()), size},
        {QPoint(place.text.x(), place.main.y() + place.main.height()), size},
    };
    QList<QRect> fitting;
    std::copy_if(places.begin(), places.end(), std::back_inserter(fitting),
                 [&place](const QRect &area) { return place.screen.contains(area); });
    return fitting;
}

QRect movedInto(QRect area, const QRect &screen) {
    area.moveRight(std::min(area.right(), screen.right()));
    area.moveBottom(std::min(area.bottom(), screen.bottom()));
    area.moveLeft(std::max(area.left(), screen.left()));
    area.moveTop(std::max(area.top(), screen.top()));
    return area;
}

} // namespace

QPoint cornerOnScreen(const QRect &window, const QRect &screen) {
    return movedInto(window, screen).topLeft();
}

QPoint cornerBesideText(QSize window, const TextPlace &place) {
    if (const QList<QRect> free = outside(window, place); !free.isEmpty())
        return free.first().topLeft();
    QRect area(QPoint(), window);
    area.moveBottomRight(place.text.bottomRight());
    area = movedInto(area, place.screen);
    if (!area.intersects(place.line))
        return area.topLeft();
    QRect above = area;
    above.moveTop(place.text.top());
    above = movedInto(above, place.screen);
    if (!above.intersects(place.line))
        return above.topLeft();
    return cornerAside(area, place.line, place.screen).value_or(area.topLeft());
}

std::optional<QPoint> cornerAside(const QRect &window, const QRect &hit, const QRect &screen) {
    if (!window.intersects(hit))
        return {};
    const QRect free = hit.adjusted(-gap, -gap, gap, gap);
    const QPoint ways[] = {{free.left() - 1 - window.right(), 0},
                           {free.right() + 1 - window.left(), 0},
                           {0, free.top() - 1 - window.bottom()},
                           {0, free.bottom() + 1 - window.top()}};
    std::optional<QPoint> shortest;
    for (const QPoint &way : ways) {
        const bool isShorter = !shortest || way.manhattanLength() < shortest->manhattanLength();
        if (isShorter && screen.contains(window.translated(way)))
            shortest = way;
    }
    if (!shortest)
        return {};
    return window.topLeft() + *shortest;
}

} // namespace tolvo
