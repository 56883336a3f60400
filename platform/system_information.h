// SPDX-License-Identifier: MIT
#pragma once

namespace tolvo {

class Processes;

/// StartSysInfo: starts the system information program of the desktop; false if there is none.
[[nodiscard]] bool StartSysInfo(Processes &processes);

} // namespace tolvo
