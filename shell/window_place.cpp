// SPDX-License-Identifier: MIT
#include "shell/window_place.h"

#include <QStringList>
#include <algorithm>

namespace tolvo {

namespace {

constexpr QSize smallestAtFirst{820, 560};
constexpr QSize largestAtFirst{1100, 800};
constexpr QLatin1StringView maximisedWord("max");

} // namespace

QString written(const WindowPlace &place) {
    const QRect &area = place.area;
    QString text =
        QStringLiteral("%1,%2,%3,%4").arg(area.x()).arg(area.y()).arg(area.width()).arg(area.height());
    return place.maximised ? text + u',' + maximisedWord : text;
}

std::optional<WindowPlace> readPlace(const QString &text) {
    QStringList parts = text.split(u',');
    const bool maximised = parts.size() == 5 && parts.last() == maximisedWord;
    if (maximised)
        parts.removeLast();
    if (parts.size() != 4)
        return std::nullopt;
    QList<int> numbers;
    for (const QString &part : parts) {
        bool isNumber = false;
        numbers += part.toInt(&isNumber);
        if (!isNumber)
            return std::nullopt;
    }
    const QRect area(numbers[0], numbers[1], numbers[2], numbers[3]);
    return area.isEmpty() ? std::nullopt : std::optional(WindowPlace{area, maximised});
}

std::optional<WindowPlace> placeOnScreens(const QString &text, const QList<QRect> &screens) {
    const auto place = readPlace(text);
    const bool there = place && std::any_of(screens.begin(), screens.end(), [&place](const QRect &screen) {
                           return screen.contains(place->area);
                       });
    return there ? place : std::nullopt;
}

QString screenName(QSize size, double scale) {
    return QStringLiteral("%1x%2@%3").arg(size.width()).arg(size.height()).arg(scale);
}

QSize firstSize(QSize room, QSize frame) {
    const QSize part(room.width() * 7 / 10, room.height() * 13 / 20);
    return part.expandedTo(smallestAtFirst).boundedTo(largestAtFirst).boundedTo(room - frame);
}

} // namespace tolvo
