// SPDX-License-Identifier: MIT
#include "platform/file_types.h"

namespace tolvo {

std::optional<bool> isRegisteredType(const QString &) {
    return std::nullopt;
}

} // namespace tolvo
