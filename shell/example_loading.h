// SPDX-License-Identifier: MIT
#pragma once

namespace tolvo {

class CPowerButtonCollection;
class frmMain;

/// True if a PowerButton has a name or a step.
[[nodiscard]] bool anyPowerButtonDefined(const CPowerButtonCollection &buttons);

/// Stores the example PowerButtons in places that nobody has used, here or in another run, as many as there
/// are, and shows them.
void loadExamplePowerButtons(frmMain &session);

} // namespace tolvo
