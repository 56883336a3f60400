// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

namespace tolvo {

/// The open descriptors of this process above standard error; none where the system doesn't list them.
[[nodiscard]] std::vector<int> openDescriptors();

} // namespace tolvo
