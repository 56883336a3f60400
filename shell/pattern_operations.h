// SPDX-License-Identifier: MIT
// The tools that look for a pattern in the lines, or in all of the text. They warn of a pattern that
// can't be looked for or takes too long; the text stays, as it does for an empty pattern and without a match
// to count.
#pragma once

#include "search/match_budget.h"
#include "shell/tool_table.h"
#include "text/line_choice.h"

namespace tolvo {

[[nodiscard]] QString choosePatternLines(const ToolInput &in, const PatternLinesSettings &settings);
[[nodiscard]] QString sortByPattern(const ToolInput &in, const PatternSortSettings &settings);
[[nodiscard]] QString countMatches(const ToolInput &in, const MatchCountSettings &settings);

/// What these make of a text. Each line is looked at by itself, as if it were the whole text. An empty
/// pattern leaves the text whole.
///
/// The lines that hold a pattern, or the others.
[[nodiscard]] ChosenLines patternLines(const QString &text, const PatternLinesSettings &settings,
                                       const cTextMethods &engine, MatchBudget budget = MatchBudget());
/// The lines in the order of the first match in each; those without one come last, in the order they had.
///   By the expression "\d+", u"b 2|x|a 10|c 1" gives u"c 1|b 2|a 10|x".
[[nodiscard]] ChosenLines sortedByPattern(const QString &text, const PatternSortSettings &settings,
                                          const cTextMethods &engine, MatchBudget budget = MatchBudget());

/// How often each match occurs in the text, as countedTexts() has it; a line end in a match shows as a blank.
/// Matches without length don't count. Empty if there is none.
///   By the expression "[a-z]+", u"a b1 A" gives u"2⇥a|1⇥b".
[[nodiscard]] ChosenLines countedMatches(const QString &text, const MatchCountSettings &settings,
                                         const cTextMethods &engine, MatchBudget budget = MatchBudget());

/// The same by the kind of the settings; the text if they have no pattern.
[[nodiscard]] ChosenLines withPattern(const QString &text, const ToolSettings &settings,
                                      const cTextMethods &engine);

} // namespace tolvo
