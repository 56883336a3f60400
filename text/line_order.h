// SPDX-License-Identifier: MIT
// Lines in an order of the user's choice.
#pragma once

#include "text/line_settings.h"

#include <QString>
#include <QStringView>

namespace tolvo {

/// The lines of a text in order. The order is stable, also a descending one: lines with the same place keep
/// theirs. Lines without a number, or without the column, count as 0 or as empty. Character codes are those
/// of Unicode, so that a surrogate pair comes after U+FFFF. A line end at the end of the text stays there.
///   sortedLines(u"b|a10|a2", {}) == u"a2|a10|b"
[[nodiscard]] QString sortedLines(QStringView text, const SortLinesSettings &settings);

} // namespace tolvo
