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

/// The number of the PowerButton that an Action runs; nothing for other tools and for texts that are no
/// number.
[[nodiscard]] std::optional<int> targetOf(const CAction &action);

/// Whether button `target` runs button `own`, directly or through any Actions of any other buttons. The
/// answer is a shortest way there, from `target` to `own`, both included; nothing if there is none. Loops
/// that don't pass through `own` end the search, they are not what is asked for.
[[nodiscard]] std::optional<QList<int>> findCircle(const CPowerButtonCollection &buttons, int target,
                                                   int own);

/// What the user is told about it, for the box titled "Circular reference!".
[[nodiscard]] QString circleMessage(const QList<int> &way);

} // namespace tolvo
