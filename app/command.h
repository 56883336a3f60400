// SPDX-License-Identifier: MIT
#pragma once

#include "app/arguments.h"

namespace tolvo {

class KeeperSession;

/// Runs a Command on the desktop's clipboard and reports by notification and on standard error. Makes the
/// application itself. Gives the exit code, after `keeper` has passed it on and the clipboard has been taken
/// over.
int runCommand(int argc, char **argv, const Arguments &arguments, KeeperSession &keeper);

} // namespace tolvo
