// SPDX-License-Identifier: MIT
// What the rows of the lists of this folder share that paint themselves.
#pragma once

#include <QColor>
#include <QStyleOptionViewItem>

namespace tolvo {

/// The colour of a row's text, by its state.
[[nodiscard]] QColor inkOf(const QStyleOptionViewItem &row);

/// Paints a row without its text: ground, selection and focus.
void paintBareRow(QPainter &painter, const QStyleOptionViewItem &row);

} // namespace tolvo
