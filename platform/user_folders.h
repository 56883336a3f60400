// SPDX-License-Identifier: MIT
// Where the user's own files lie. The folders need not exist.
#pragma once

#include <QString>

namespace tolvo {

/// The folder of the settings: tolvo in the user's folder for configuration; on Windows Tolvo in the roaming
/// folder, which follows the user from machine to machine.
[[nodiscard]] QString userSettingsFolder();

/// The folder of what the user has collected, such as dictionaries; on Windows the same.
[[nodiscard]] QString userDataFolder();

} // namespace tolvo
