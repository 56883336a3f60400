// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

namespace tolvo {

/// The descriptors above standard error that this process has open; none where the system doesn't tell.
[[nodiscard]] std::vector<int> openDescriptors();

} // namespace tolvo
