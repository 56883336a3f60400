// SPDX-License-Identifier: MIT
// PowerButtons that come from somewhere else.
#pragma once

#include "powerbuttons/button_file.h"

namespace tolvo {

class frmMain;

/// Puts shared PowerButtons into the row and into the store, the main one under a number from 1. It asks
/// before it replaces one; a box says what doesn't fit. False if nothing was taken.
bool takeSharedButtons(frmMain &session, const SharedButtons &shared, int number);

} // namespace tolvo
