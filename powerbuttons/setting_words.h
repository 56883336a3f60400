// SPDX-License-Identifier: MIT
#pragma once

#include "powerbuttons/CAction.h"

#include <QString>

namespace tolvo {

/// The settings string of a step in words: what is switched on, numbers with their names, texts in quotes.
///   "Width=60, Justify=0, Hanging=1, Tab=True": "width 60, hanging, tab"
///   "Mode=2, Find=a*, MatchCase=1": "wildcard, find “a*”, match case"
[[nodiscard]] QString settingsInWords(const CAction &action);

} // namespace tolvo
