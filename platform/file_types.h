// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <optional>

namespace tolvo {

/// Whether the system has registered files with this extension, which comes without its full stop. Nothing on
/// a system that keeps no such register.
[[nodiscard]] std::optional<bool> isRegisteredType(const QString &extension);

} // namespace tolvo
