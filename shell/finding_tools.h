// SPDX-License-Identifier: MIT
// The tools that leave only what a text mentions (text/finding.h). A text without any stays, and the status
// says so.
#pragma once

#include "shell/tool_table.h"

namespace tolvo {

[[nodiscard]] QString foundWebAddresses(const ToolInput &in);
[[nodiscard]] QString foundMailAddresses(const ToolInput &in);
[[nodiscard]] QString foundNumbers(const ToolInput &in);
[[nodiscard]] QString foundDates(const ToolInput &in);

} // namespace tolvo
