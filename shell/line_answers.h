// SPDX-License-Identifier: MIT
// What the status line says of the tools of lines.
#pragma once

#include "shell/tool_table.h"

namespace tolvo {

/// Says how many lines went, and gives the result.
[[nodiscard]] QString withoutLines(const ToolInput &in, const QString &result);

/// Says in a warning why the text stays, and gives it.
[[nodiscard]] QString unchanged(const ToolInput &in, const QString &trouble);

} // namespace tolvo
