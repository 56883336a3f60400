// SPDX-License-Identifier: MIT
// The tools that take a text line by line and have settings, as the table of tools runs them.
#pragma once

#include "search/match_budget.h"
#include "shell/tool_table.h"
#include "text/line_choice.h"

namespace tolvo {

// These two say in the status line what became of the lines.
[[nodiscard]] QString removeDuplicates(const ToolInput &in, const DuplicateSettings &settings);
[[nodiscard]] QString chooseEveryLine(const ToolInput &in, const EveryLineSettings &settings);

/// The same for the lines that hold a pattern. A pattern that can't be looked for is said in a warning; the
/// text stays.
[[nodiscard]] QString choosePatternLines(const ToolInput &in, const PatternLinesSettings &settings);

/// A list of columns that can't be read is said in a warning; the text stays.
[[nodiscard]] QString chooseColumns(const ToolInput &in, const ColumnSettings &settings);

/// The lines that hold a pattern, or the others: each is looked at by itself, as if it were the whole text.
/// An empty pattern chooses nothing, and the text is whole.
[[nodiscard]] ChosenLines patternLines(const QString &text, const PatternLinesSettings &settings,
                                       const cTextMethods &engine, MatchBudget budget = MatchBudget());

} // namespace tolvo
