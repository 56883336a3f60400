// SPDX-License-Identifier: MIT
#pragma once

namespace tolvo {

class Processes;

/// Starts the desktop's system information program; false if none is installed.
[[nodiscard]] bool StartSysInfo(Processes &processes);

} // namespace tolvo
