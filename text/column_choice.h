// SPDX-License-Identifier: MIT
// Some columns of a table, in an order of the user's choice.
#pragma once

#include "text/line_choice.h"

namespace tolvo {

/// Keeps the named columns, in the order in which they are named, or drops them and keeps the others. The
/// columns are found as text/tables.h says, and are parted in the result as they were: cells keep their
/// quotes and what line ends they hold, columns that blanks part are aligned again, the line under the head
/// of a Markdown table goes along. A cell that a row lacks is empty, blank lines stay blank. What is wrong
/// with a list of columns that can't be read stands in `trouble`.
///   chosenColumns(u"a, b, c|d, e, f", {.columns = u"3,1"}).text == u"c, a|f, d"
[[nodiscard]] ChosenLines chosenColumns(QStringView text, const ColumnSettings &settings);

} // namespace tolvo
