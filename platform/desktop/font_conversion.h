// SPDX-License-Identifier: MIT
#pragma once

#include "platform/font.h"

#include <QFont>

namespace tolvo {

/// The toolkit's font of the same name; where it is not installed, the system finds the nearest. A size of 0
/// or below leaves the size to the toolkit.
[[nodiscard]] QFont toQFont(const Font &font);
[[nodiscard]] Font fromQFont(const QFont &font);

} // namespace tolvo
