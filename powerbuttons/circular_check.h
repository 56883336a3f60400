// SPDX-License-Identifier: MIT
// PowerButtons that run PowerButtons: whether one would end up running itself.
#pragma once

#include "powerbuttons/CPowerButton.h"

#include <QList>
#include <optional>

namespace tolvo {

/// Token of the Action that runs another PowerButton, and the key of its settings string that names it.
inline constexpr QLatin1StringView powerButtonToken("pbPBT");
inline constexpr QLatin1StringView powerButtonKey("PowerButton");

/// The number of the PowerButton that an Action runs; nothing for other tools and for a text that is not
/// a number.
///   2 for the settings string "PowerButton=2"
[[nodiscard]] std::optional<int> targetOf(const CAction &action);

/// Whether button `target` runs button `own`, directly or through any Actions of any other buttons. The
/// answer is a shortest way there, from `target` to `own`, both included; nothing if there is none. A loop
/// that doesn't pass through `own` counts for nothing.
///   {2, 3, 1} if button 2 runs 3 and 3 runs 1, for the target 2 and the own button 1
[[nodiscard]] std::optional<QList<int>> findCircle(const CPowerButtonCollection &buttons, int target,
                                                   int own);

/// The message about such a way, for the box titled "Circular reference!".
[[nodiscard]] QString circleMessage(const QList<int> &way);

} // namespace tolvo
