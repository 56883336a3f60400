// SPDX-License-Identifier: MIT
#include "powerbuttons/circular_check.h"

#include "base/strings.h"

#include <array>

namespace tolvo {

std::optional<int> targetOf(const CAction &action) {
    if (!action.Tool() || action.Tool()->Token() != powerButtonToken)
        return {};
    bool isNumber = false;
    const int target = action.Param(powerButtonKey).toInt(&isNumber);
    return isNumber ? std::optional(target) : std::nullopt;
}

std::optional<QList<int>> findCircle(const CPowerButtonCollection &buttons, int target, int own) {
    // Breadth first: cameFrom holds for each button that has been seen one that runs it.
    std::array<int, CPowerButtonCollection::buttonCount + 1> cameFrom{};
    const auto known = [](int number) {
        return number >= 1 && number <= CPowerButtonCollection::buttonCount;
    };
    const auto seen = [&](int number) -> int & { return cameFrom.at(static_cast<std::size_t>(number)); };
    if (!known(target) || !known(own))
        return {};

    QList<int> waiting{target};
    seen(target) = target;
    while (!waiting.isEmpty()) {
        const int number = waiting.takeFirst();
        if (number == own) {
            QList<int> way{own};
            while (way.first() != target)
                way.prepend(seen(way.first()));
            return way;
        }
        const auto button = buttons.Item(number);
        for (int position = 1; button && position <= button->Count(); ++position) {
            const std::optional<int> next = targetOf(*button->Item(position));
            if (next && known(*next) && seen(*next) == 0) {
                seen(*next) = number;
                waiting.append(*next);
            }
        }
    }
    return {};
}

QString circleMessage(const QList<int> &way) {
    QString path;
    for (const int number : way)
        path += QStringLiteral(", which contains PowerButton ") + QString::number(number);
    return FillTemplate(
               QStringLiteral("You cannot add PowerButton %0 to this PowerButton, because it contains "
                              "a reference to this one.\r\n\r\nThis is PowerButton %1"),
               {QString::number(way.first()), QString::number(way.last())}) +
           path + QStringLiteral(".\r\n\r\nPlease resolve this problem and try again.");
}

} // namespace tolvo
