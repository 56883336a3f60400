// SPDX-License-Identifier: MIT
#pragma once

#include "powerbuttons/CPowerButton.h"
#include "powerbuttons/CPowerButtonMethods.h"

namespace tolvo {

/// Adds a tool as the last step of the button of a number from 1, in the store too; a tool with a dialog runs
/// with the settings last used. A button that nobody has defined takes the tool's name. False for a tool that
/// needs settings of its own as a step, which only the editor can ask for.
bool addStep(CPowerButtonCollection &buttons, CPowerButtonMethods &methods, const ToolPtr &tool, int number);

} // namespace tolvo
