// SPDX-License-Identifier: MIT
#pragma once

#include "powerbuttons/CPowerButton.h"

#include <QString>

namespace tolvo {

/// The settings of a step in words: what is switched on, numbers with their names, texts in quotes. `buttons`
/// gives the name of a PowerButton that the step runs. Empty for a tool without settings.
///   "Width=60, Justify=0, Hanging=1, Tab=True" of a step with settings of its own: "width 60, hanging, tab"
///   "Mode=2, Find=a*, MatchCase=1": "wildcard, find “a*”, match case"
///   "asks when run" and "as used last" for the other two ways to get settings
[[nodiscard]] QString settingsInWords(const CAction &action, const CPowerButtonCollection &buttons);

/// The step of a position from 1 as a line of a list: "2. Word wrap: width 60, tab". "2. (no tool yet)" for a
/// blank one.
[[nodiscard]] QString stepLine(int position, const CAction &action, const CPowerButtonCollection &buttons);

} // namespace tolvo
