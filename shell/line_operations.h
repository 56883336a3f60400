// SPDX-License-Identifier: MIT
// The tools that take a text line by line and have settings, as the table of tools runs them.
#pragma once

#include "shell/tool_table.h"

namespace tolvo {

// These two say in the status line what became of the lines.
[[nodiscard]] QString removeDuplicates(const ToolInput &in, const DuplicateSettings &settings);
[[nodiscard]] QString chooseEveryLine(const ToolInput &in, const EveryLineSettings &settings);

/// Warns of a list of columns that can't be read; the text stays.
[[nodiscard]] QString chooseColumns(const ToolInput &in, const ColumnSettings &settings);

} // namespace tolvo
