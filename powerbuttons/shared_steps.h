// SPDX-License-Identifier: MIT
// The steps of shared PowerButtons: which run which, how many there are, and what they say.
#pragma once

#include "powerbuttons/button_file.h"

#include <QStringList>
#include <optional>

namespace tolvo {

/// The number of the PowerButton that a step runs with settings of its own; nothing for any other step.
[[nodiscard]] std::optional<int> targetOfStep(const CAction &action);
/// Whether a step is to run a PowerButton, be it named or not.
[[nodiscard]] bool runsButton(const CAction &action);

/// What keeps SharedButtons from being run.
struct StepTrouble {
    enum class Kind { None, NoTarget, Cycle, TooMany, Unused };
    Kind kind = Kind::None;
    int button = 0; ///< the place of the one to blame, from 0
    int step = 0;   ///< its step, from 1; 0 if it is the button as such
};
/// The first trouble: a step that names no button of the list, buttons that run themselves, steps beyond
/// mostSharedSteps, and buttons that nothing runs.
[[nodiscard]] StepTrouble stepTrouble(const QList<std::shared_ptr<CPowerButton>> &buttons);

/// What the buttons do, one line for each step, the steps of a nested one below it:
///   "1. Title Case", "2. Remove blank lines: multiple", "3. Run PowerButton: Inner", "   3.1. ..."
[[nodiscard]] QStringList sharedStepLines(const SharedButtons &shared);

} // namespace tolvo
