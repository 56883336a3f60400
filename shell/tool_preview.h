// SPDX-License-Identifier: MIT
#pragma once

#include "shell/text_state.h"
#include "shell/tool_table.h"

#include <optional>

namespace tolvo {

/// What a text tool with settings would make of the text and the selection of a box, which stay. Nothing if
/// the row is no such tool, or can't work on that text.
[[nodiscard]] std::optional<TextState> textAfterTool(const ToolRow &row, const ToolSettings &settings,
                                                     const cTextMethods &engine, const TextBox &present);

} // namespace tolvo
