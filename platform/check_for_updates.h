// SPDX-License-Identifier: MIT
// Gen_Procs: the launch of the update companion.
#pragma once

#include "platform/message_box.h"
#include "platform/processes.h"

#include <QString>

namespace tolvo {

/// Starts Refresher.exe of the program's folder with "/update", "/stats" and "/quiet" as set, in this order,
/// in a normal window with the focus, and doesn't wait for it. With `askedFor` the companion shows its answer
/// in any case. A failure is reported as runCheckForUpdates's and not thrown.
void runCheckForUpdates(Processes &processes, MessageBoxes &boxes, const QString &programFolder, bool update,
                        bool stats, bool quiet, bool askedFor = false);

} // namespace tolvo
