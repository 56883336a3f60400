// SPDX-License-Identifier: MIT
// How Refresher.exe shows its work when it isn't quiet: in a window, or on standard output in a build without
// windows.
#pragma once

#include "companions/refresh.h"

#include <functional>

namespace tolvo {

/// Does the work and shows what came of it. Returns when the user has seen it.
RefreshOutcome refreshAloud(int argc, char **argv, const std::function<RefreshOutcome(HttpClient &)> &work);

} // namespace tolvo
