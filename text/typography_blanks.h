// SPDX-License-Identifier: MIT
#pragma once

#include "text/typography_rules.h"

namespace tolvo {

/// Keeps together what must not be parted at a line's end: number and unit, abbreviation and name, the word
/// before a dash, the thousands of a number; in French puts the blanks before high signs.
///   English: u"5 km on p. 7" gets no-break blanks before "km" and "7"
[[nodiscard]] QString withNoBreakBlanks(QStringView text, const TypographyRules &rules);

} // namespace tolvo
