// SPDX-License-Identifier: MIT
#pragma once

#include "powerbuttons/step_effects.h"
#include "shell/powerbutton_preview.h"

namespace tolvo {

/// The effect of the last of some results, for the eye. `results` is not empty.
[[nodiscard]] StepEffect effectOf(const QList<StepResult> &results);

} // namespace tolvo
