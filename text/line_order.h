// SPDX-License-Identifier: MIT
// Lines in an order of the user's choice.
#pragma once

#include "text/line_settings.h"

#include <QList>
#include <QString>
#include <QStringView>

namespace tolvo {

/// The lines of a text in order. The order is stable, also a descending one: lines with the same place keep
/// theirs. Lines without a number, or without the column, count as 0 or as empty. Character codes are those
/// of Unicode, so that a surrogate pair comes after U+FFFF. By a column, the rows of text/table_rows.h are
/// the lines. A line end at the end of the text stays there.
///   sortedLines(u"b|a10|a2", {}) == u"a2|a10|b"
[[nodiscard]] QString sortedLines(QStringView text, const SortLinesSettings &settings);

/// The places of texts, from 0, as the order, the language, `descending`, `ignoreCase` and `unique` of the
/// settings put them.
[[nodiscard]] QList<qsizetype> placesInOrder(const QList<QStringView> &texts,
                                             const SortLinesSettings &settings);

} // namespace tolvo
