// SPDX-License-Identifier: MIT
#pragma once

#include "platform/font.h"

#include <QFont>

namespace tolvo {

/// The toolkit's font of the same name, or the nearest one that is installed. A size of 0 or below leaves the
/// size to the toolkit.
[[nodiscard]] QFont toQFont(const Font &font);
/// The stored form of a font of the toolkit.
[[nodiscard]] Font fromQFont(const QFont &font);

} // namespace tolvo
