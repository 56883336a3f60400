// SPDX-License-Identifier: MIT
#pragma once

namespace tolvo {

class frmMain;

/// Makes a PowerButton, in the first empty place, of the tools that the user has run since the last copy
/// (TextHistory::latestActions) and opens its editor. Without any, or without a place, it says so.
void recordPowerButton(frmMain &session);

} // namespace tolvo
