// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace tolvo {

class CPowerButton;

/// The steps of a PowerButton in words: "1. Trim line ends, 2. Title case (off)". Of many steps the first
/// eight are named and the rest is counted: "..., and 4 more". Empty without steps.
[[nodiscard]] QString stepWords(const CPowerButton &button);

} // namespace tolvo
