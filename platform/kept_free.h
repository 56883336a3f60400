// SPDX-License-Identifier: MIT
// Where the window of a companion may stand: beside what must stay visible.
#pragma once

#include <QList>
#include <QPoint>
#include <QRect>
#include <QString>
#include <QStringView>
#include <optional>

namespace tolvo {

/// The areas as a text: writtenAreas({{1, 2, 30, 40}}) is "1 2 30 40".
[[nodiscard]] QString writtenAreas(const QList<QRect> &areas);
/// Reads such a text; what is no area is left out.
[[nodiscard]] QList<QRect> readAreas(QStringView text);

/// The corner of a window of that size beside the first of the areas that leaves room on the screen: right of
/// it, else left, below or above. Without any room, in the lower right corner of the screen.
[[nodiscard]] QPoint placeBeside(const QList<QRect> &areas, QSize size, const QRect &screen);

} // namespace tolvo
