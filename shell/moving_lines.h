// SPDX-License-Identifier: MIT
#pragma once

namespace tolvo {

struct ToolContext;

/// Move the line of the caret, or all lines that the selection touches, by one line; the selection goes with
/// them. At the first or the last line the status says so and nothing moves.
void moveLinesUp(const ToolContext &context);
void moveLinesDown(const ToolContext &context);

} // namespace tolvo
