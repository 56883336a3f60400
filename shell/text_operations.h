// SPDX-License-Identifier: MIT
// The text operations of the tools that are more than one call of the engine, as the table of tools runs
// them.
#pragma once

#include "shell/tool_table.h"
#include "text/coding.h"

namespace tolvo {

// With settings from a dialog or an Action

[[nodiscard]] QString indent(const ToolInput &in, const IndentSettings &settings);
[[nodiscard]] QString unindent(const ToolInput &in, const IndentSettings &settings);
[[nodiscard]] QString wrapWords(const ToolInput &in, const WordWrapSettings &settings);
[[nodiscard]] QString removeLines(const ToolInput &in, const RemoveLinesSettings &settings);
[[nodiscard]] QString bullets(const ToolInput &in, const BulletSettings &settings);
[[nodiscard]] QString numberedList(const ToolInput &in, const NumberListSettings &settings);
[[nodiscard]] QString lineNumbers(const ToolInput &in, const LineNumberSettings &settings);

// Without settings

[[nodiscard]] QString upperCase(const ToolInput &in);
[[nodiscard]] QString lowerCase(const ToolInput &in);
[[nodiscard]] QString initialCaps(const ToolInput &in);
[[nodiscard]] QString titleCase(const ToolInput &in);
[[nodiscard]] QString capitalise(const ToolInput &in);
[[nodiscard]] QString tabsToSpaces(const ToolInput &in);
[[nodiscard]] QString checkPunctuation(const ToolInput &in);
[[nodiscard]] QString shuffledLines(const ToolInput &in);
/// What a decoder gives, with a word on what it could not decode.
[[nodiscard]] QString decoded(const ToolInput &in, const DecodedText &decoded);

} // namespace tolvo
