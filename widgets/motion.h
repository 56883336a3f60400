// SPDX-License-Identifier: MIT
#pragma once

class QWidget;

namespace tolvo {

/// False where the desktop asks for less motion, as far as the toolkit hears of it.
[[nodiscard]] bool wantsMotion(const QWidget &widget);

} // namespace tolvo
