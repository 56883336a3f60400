// SPDX-License-Identifier: MIT
#pragma once

namespace tolvo {

struct ToolCall;

/// The tools chSPE and chGRA: the language, the check, and what is said if nothing was wrong. The language is
/// that of the Action, else the stored one for a call with the last settings, else the user chooses it.
/// A failure is reported, unless an Action runs: then it goes on to whoever runs the Action.
void checkSpelling(const ToolCall &call, bool grammar);

} // namespace tolvo
