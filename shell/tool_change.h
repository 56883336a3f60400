// SPDX-License-Identifier: MIT
#pragma once

#include "shell/text_state.h"

namespace tolvo {

/// One run of a tool or of a PowerButton that has changed the text.
struct ToolChange {
    TextState before;
    QString name; ///< of what ran, as its control shows it: "Title Case"
};

} // namespace tolvo
